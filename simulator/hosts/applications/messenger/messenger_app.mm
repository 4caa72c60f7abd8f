#include "hosts/applications/messenger/messenger_app.h"

#include "hosts/applications/common/AlbumPickerViewController.h"
#include "hosts/applications/common/screen.h"
#include "hosts/host.h"

namespace simulator::messenger {

MessengerApplication* application() {
    return static_cast<MessengerApplication*>([UIApplication sharedApplication]);
}

nlohmann::json listComposer() {
    MNPhotosAlbumDataSource* source = [application() photosAlbumDataSource];
    [source reload];
    auto rows = nlohmann::json::array();
    for (NSInteger index = 0; index < [source numberOfAlbums]; ++index) {
        PHAssetCollection* album = [source albumAtIndex:index];
        if (album == nil) {
            rows.push_back(nullptr);
            continue;
        }
        rows.push_back(describeCollections(@[ album ], ^(PHAssetCollection* each) {
            return [PHAsset fetchAssetsInAssetCollection:each options:nil];
        })[0]);
    }
    return rows;
}

nlohmann::json listMontage() {
    MNMontageAlbumListViewController* list = [application() montageAlbumList];
    [list viewWillAppear:NO];
    auto rows = nlohmann::json::array();
    for (NSInteger row = 0; row < [list tableView:[list table] numberOfRowsInSection:0]; ++row) {
        NSIndexPath* path = [NSIndexPath indexPathForRow:row inSection:0];
        auto cell = static_cast<MNMontageAlbumCell*>([list tableView:[list table]
                                               cellForRowAtIndexPath:path]);
        PHAsset* preview = [cell asset];
        [list tableView:[list table] didSelectRowAtIndexPath:path];
        rows.push_back(
            {{"title", text([[cell textLabel] text])},
             {"preview", preview ? nlohmann::json(text([preview localIdentifier])) : nlohmann::json()},
             {"opens", [list chosenAlbum] != nil}});
    }
    return rows;
}

void addVerbs() {
    registerVerb("listPicker", [](const nlohmann::json&) {
        return nlohmann::json{{"composer", listComposer()}, {"montage", listMontage()}};
    });
}

} // namespace simulator::messenger
