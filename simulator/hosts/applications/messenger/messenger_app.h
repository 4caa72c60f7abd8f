/// What a user sees in Messenger's two album lists. Main thread; the running application must be it.
#pragma once

#import "hosts/applications/common/AlbumPickerViewController.h"

/// The albums of the composer's photo picker.
@interface MNPhotosAlbumDataSource : NSObject {
    NSArray* _albums;
}
- (NSInteger)numberOfAlbums;
- (id)albumAtIndex:(NSInteger)index;
@end

/// A row of the montage's album list, with a preview of the album's newest photo.
@interface MNMontageAlbumCell : UITableViewCell {
    PHAsset* _asset;
}
@property (nonatomic, retain) PHAsset* asset;
@end

/// The album list of the montage.
@interface MNMontageAlbumListViewController : AlbumPickerViewController {
    PHAssetCollection* _chosenAlbum;
}
- (id)_albumAtIndexPath:(NSIndexPath*)path;
/// The album that was tapped last, nil when none could be had.
@property (nonatomic, retain) PHAssetCollection* chosenAlbum;
@end

namespace simulator::messenger {

/// The first screen.
MNMontageAlbumListViewController* montage();

/// The composer's picker: like describePicker(); an album that the data source does not hand out is null.
nlohmann::json listComposer();

/// The montage's rows: [{"title": "Holidays", "preview": identifier or null, "opens": true or false}].
nlohmann::json listMontage();

/// {"do": "listPicker"} lists the composer.
void addVerbs();

} // namespace simulator::messenger
