#pragma once

#import "PhotosUI/PUStackView.h"
#import "UIKit/UIKit.h"

@class PUAlbumListCellContentView;

/// What the user may do with an album while the list is in edit mode.
typedef NS_OPTIONS(NSUInteger, PUAlbumEditCapabilities) {
    PUAlbumEditCapabilitiesNone = 0,
    PUAlbumEditCapabilitiesDelete = 1 << 0,
    PUAlbumEditCapabilitiesRename = 1 << 1,
    PUAlbumEditCapabilitiesReorder = 1 << 2,
};

@protocol PUAlbumListCellDelegate <NSObject>
- (void)albumListCellContentView:(PUAlbumListCellContentView*)contentView performDeleteAction:(id)sender;
@end

/// One album of the list: its cover, title and subtitle and, in edit mode, its delete button.
@interface PUAlbumListCellContentView : UIView {
    PUStackView* _stackView;
    UITextField* _titleTextField;
    UILabel* _subtitleLabel;
    UIButton* _deleteButton;
    NSString* _title;
    NSString* _subtitle;
    NSUInteger _editCapabilities;
    BOOL _editing;
    id<PUAlbumListCellDelegate> _delegate;
}
@property (nonatomic, copy) NSString* title;
@property (nonatomic, copy) NSString* subtitle;
/// PUAlbumEditCapabilities.
@property (nonatomic) NSUInteger editCapabilities;
@property (nonatomic, getter=isEditing) BOOL editing;
/// Not retained.
@property (nonatomic, assign) id<PUAlbumListCellDelegate> delegate;
@property (nonatomic, readonly) PUStackView* stackView;
/// YES for an album that may be deleted.
- (BOOL)showsDeleteButtonWhenEditing;
/// nil unless the album can be deleted now.
- (UIButton*)_deleteButton;
- (UITextField*)_titleTextField;
- (UILabel*)_subtitleLabel;
- (void)_deleteAction:(id)sender;
@end

/// An album in the grid of albums.
@interface PUAlbumListCell : UICollectionViewCell {
    PUAlbumListCellContentView* _albumListCellContentView;
}
@property (nonatomic, readonly) PUAlbumListCellContentView* albumListCellContentView;
@end

/// An album in a plain list of albums.
@interface PUAlbumListTableViewCell : UITableViewCell {
    PUAlbumListCellContentView* _albumListCellContentView;
}
@property (nonatomic, readonly) PUAlbumListCellContentView* albumListCellContentView;
@end
