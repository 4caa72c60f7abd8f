#include "common/album_cell.h"
#include "common/lock_overlay.h"
#include "objc/replacement.h"
#include "photos/albumsscreen/hooks.h"
#include "photos/albumsscreen/locked_titles.h"
#include "settings/settings.h"

namespace rollkeeper::albumsScreen {

namespace {

// The same helper fills the cells of the album list, which have the album list's measures.
Cover coverOf(PUAlbumListCellContentView contentView) {
    if (ifKindOf<PUAlbumListViewController>(contentView.viewControllerForAncestor())) return albumListCover();
    const CGSize size = contentView.stackView().frame().size;
    return {.width = static_cast<std::int32_t>(size.width),
            .height = static_cast<std::int32_t>(size.height),
            .isLaidOutLater = true};
}

} // namespace

void configureContentView(PUAlbumListCellContentViewHelper self, SEL command,
                          PUAlbumListCellContentView contentView, PHCollection collection, NSString title,
                          bool animated, bool enabled, bool editing) {
    original<configureContentView>(self, command, contentView, collection, title, animated, enabled, editing);
    if (!settings::enabled || albumListFillsCell) return;
    const bool locked = static_cast<bool>(ifLocked(contentView.title()));
    updateLockOverlay(contentView, locked, coverOf(contentView));
}

// Nil, and the hard press shows and opens nothing.
UIViewController previewController(PXHorizontalCollectionGadget self, SEL command, CGPoint location,
                                   UIView sourceView, CGRect* sourceRect) {
    const UIViewController preview =
        original<previewController>(self, command, location, sourceView, sourceRect);
    if (!settings::enabled || !preview.respondsTo<"assetCollection">()) return preview;
    const PHCollection shown = cast<PUPhotosAlbumViewController>(preview).assetCollection();
    return lockedTitleOf(shown) ? UIViewController() : preview;
}

} // namespace rollkeeper::albumsScreen
