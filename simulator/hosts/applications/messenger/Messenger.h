#pragma once

#import "Photos/Photos.h"
#import "UIKit/UIKit.h"

/// The albums of the composer's photo picker.
@interface MNPhotosAlbumDataSource : NSObject {
    NSArray* _albums;
}
- (NSInteger)numberOfAlbums;
- (id)albumAtIndex:(NSInteger)index;
- (void)reload;
@end

/// A row of the montage's album list, with a preview of the album's newest photo.
@interface MNMontageAlbumCell : UITableViewCell {
    PHAsset* _asset;
}
@property (nonatomic, retain) PHAsset* asset;
@end

/// The album list of the montage.
@interface MNMontageAlbumListViewController : UIViewController <UITableViewDataSource, UITableViewDelegate> {
    MNPhotosAlbumDataSource* _dataSource;
    NSArray* _albums;
    UITableView* _table;
    PHAssetCollection* _chosenAlbum;
}
- (instancetype)initWithDataSource:(MNPhotosAlbumDataSource*)dataSource;
- (id)_albumAtIndexPath:(NSIndexPath*)path;
- (UITableViewCell*)tableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path;
- (UITableView*)table;
/// The album that was tapped last, nil when none could be had.
- (PHAssetCollection*)chosenAlbum;
@end

@interface MessengerApplication : UIApplication {
    MNPhotosAlbumDataSource* _dataSource;
    MNMontageAlbumListViewController* _montage;
    UIWindow* _window;
}
- (MNPhotosAlbumDataSource*)photosAlbumDataSource;
- (MNMontageAlbumListViewController*)montageAlbumList;
@end
