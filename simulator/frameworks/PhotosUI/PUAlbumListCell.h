#pragma once

#import "UIKit/UIKit.h"

@class PUAlbumListCellContentView;

/// What the user may do with an album while the list is in edit mode.
typedef NS_OPTIONS(NSUInteger, PUAlbumEditCapabilities) {
    PUAlbumEditCapabilitiesNone = 0,
    PUAlbumEditCapabilitiesDelete = 1 << 0,
    PUAlbumEditCapabilitiesRename = 1 << 1,
    PUAlbumEditCapabilitiesReorder = 1 << 2,
};

/// The square that shows an album's cover, with rounded corners.
@interface PUStackView : UIView {
    UIImageView* _coverView;
    UIImageView* _symbolView;
    UIImageView* _cornerOverlayView;
}
@property (nonatomic, readonly) UIImageView* coverView;
/// Shows the picture or, for nil, the symbol on grey.
- (void)setCover:(UIImage*)cover orSymbol:(const char*)outline;
@end

@protocol PUAlbumListCellDelegate <NSObject>
- (void)albumListCellContentView:(PUAlbumListCellContentView*)contentView performDeleteAction:(id)sender;
@end

/// One album of the list: its cover, title and subtitle and, in edit mode, its delete button.
@interface PUAlbumListCellContentView : UIView {
    PUStackView* _stackView;
    UITextField* _titleTextField;
    UILabel* _subtitleLabel;
    UIButton* _deleteButton;
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
@property (nonatomic, readonly) UITextField* _titleTextField;
@property (nonatomic, readonly) UILabel* _subtitleLabel;
/// nil unless the album can be deleted now.
@property (nonatomic, readonly) UIButton* _deleteButton;
/// YES for an album that may be deleted.
- (BOOL)showsDeleteButtonWhenEditing;
- (void)_deleteAction:(id)sender;
@end

/// An album in the grid of albums.
@interface PUAlbumListCell : UICollectionViewCell {
    PUAlbumListCellContentView* _albumListCellContentView;
}
@property (nonatomic, readonly) PUAlbumListCellContentView* albumListCellContentView;
@end
