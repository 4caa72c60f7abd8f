#include "albums_page.h"

#include "bundle.h"
#include "platform/core_foundation.h"
#include "platform/photos.h"

namespace rollkeeper::pane {

namespace {

PSSpecifier albumSwitch(PSListController page, NSString title) {
    const NSString label = title.length() > 0 ? title : text("albums.untitled"_ns);
    const PSSpecifier row = PSSpecifier::rowNamed(label, PSCellType::switchCell, page,
                                                  selector<"setPreferenceValue:specifier:">(),
                                                  selector<"readPreferenceValue:">());
    const NSString key = "albumName"_ns.stringByAppendingString(title);
    row.setIdentifier(key);
    row.setProperty(key, "key"_ns);
    row.setProperty(NSNumber::numberWithBool(true), "default"_ns);
    return row;
}

// Albums of the same title share one switch, since the setting goes by the title.
void addAlbumSwitches(PSListController page, NSMutableArray rows) {
    const PHFetchResult albums = PHAssetCollection::fetchAssetCollections(
        PHAssetCollectionType::album, PHAssetCollectionSubtype::any, PHFetchOptions());
    const Owner<NSMutableSet> known = make<NSMutableSet>();
    for (PHAssetCollection album : each<PHAssetCollection>(albums)) {
        const NSString title = album.localizedTitle();
        if (!title || known->containsObject(title)) continue;
        known->addObject(title);
        rows.addObject(albumSwitch(page, title));
    }
}

NSString footerKey(bool hasAlbums) {
    if (!hasAlbums) return "albums.none"_ns;
    const bool areSwitchesObeyed = kCFCoreFoundationVersionNumber >= coreFoundationVersion::ios11;
    return areSwitchesObeyed ? "albums.footer"_ns : "albums.needsIos11"_ns;
}

} // namespace

Owner<NSMutableArray> albumsPageRows(PSListController page) {
    Owner<NSMutableArray> rows = rowsFromPropertyList(page);
    const NSUInteger fixedRows = rows->count();
    addAlbumSwitches(page, rows);
    const auto group = cast<PSSpecifier>(rows->firstObject());
    group.setProperty(text(footerKey(rows->count() > fixedRows)), "footerText"_ns);
    return rows;
}

} // namespace rollkeeper::pane
