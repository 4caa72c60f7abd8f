#include "capture/album_chooser.h"

#include "capture/newest_photo.h"
#include "common/albums.h"
#include "common/sheets.h"

namespace rollkeeper {

namespace {

const AlbumChooserPolicy& policyOf(AlbumChooser chooser) {
    return chooser == AlbumChooser::camera ? cameraChooserPolicy : shareSheetChooserPolicy;
}

// Added to the owner's class.
struct AlbumChooserOwner {
    static constexpr FixedString className = "AlbumChooserOwner";
    static void createNewAlbum(NSObject owner) { send<AlbumChooserOwner, "createNewAlbum", void>(owner); }
};

void addAlbum(Alert& sheet, AlbumChooser chooser, NSObject owner, NSString title) {
    sheet.addAction(
        title,
        [](AlbumChooser asked, NSObject who, NSString album, UIAlertAction) {
            policyOf(asked).picked(who, album);
        },
        chooser, share(owner), share(title));
}

void createFromField(AlbumChooser chooser, NSObject owner, UITextField field) {
    const Owner<NSString> title = share(field.text());
    if (!title || title->isEqualToString(""_ns)) return;
    createAlbum(title, AfterCreation::nothing);
    policyOf(chooser).created(owner, title);
}

} // namespace

void presentAlbumChooser(AlbumChooser chooser, NSObject owner) {
    Alert sheet(UIAlertControllerStyle::actionSheet, "Choose Album"_ns,
                "Choose the album to save the photo to."_ns);
    addAlbum(sheet, chooser, owner, cameraRollTitle());
    const Owner<NSMutableArray> titles = regularAlbumTitles(make<PHFetchOptions>());
    for (NSString title : each<NSString>(titles.get()))
        addAlbum(sheet, chooser, owner, title);
    sheet.addCancel("Cancel"_ns);
    sheet.addAction(
        "- Create new album -"_ns,
        [](NSObject who, UIAlertAction) { AlbumChooserOwner::createNewAlbum(who); }, share(owner));
    sheet.present(policyOf(chooser).presenter(owner), policyOf(chooser).anchor(owner));
}

// There is no way out but "OK", which does nothing while the field is empty.
void presentNewAlbumAlert(AlbumChooser chooser, NSObject owner) {
    Alert alert(UIAlertControllerStyle::alert, "Enter new album title"_ns, ""_ns);
    const UITextField field = alert.addTextField(localized(""_ns));
    alert.addAction(
        "OK"_ns,
        [](AlbumChooser asked, NSObject who, UITextField typed, UIAlertAction) {
            createFromField(asked, who, typed);
        },
        chooser, share(owner), share(field));
    alert.present(policyOf(chooser).presenter(owner));
}

} // namespace rollkeeper
