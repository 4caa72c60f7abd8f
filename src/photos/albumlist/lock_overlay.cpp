#include "photos/albumlist/lock_overlay.h"

#include "common/album_cell.h"
#include "common/tags.h"
#include "settings/settings.h"
#include "state/paths.h"

namespace rollkeeper::albumList {

namespace {

// Values of "lockedAlbumPreview"; any other value draws nothing.
namespace preview {
constexpr std::int32_t blurred = 0;
constexpr std::int32_t padlockPicture = 1;
constexpr std::int32_t smallLock = 2;
} // namespace preview

CGRect thumbnailBounds() {
    return {{0, 0}, {static_cast<CGFloat>(albumCellWidth), static_cast<CGFloat>(albumCellHeight)}};
}

// Both coordinates come from the width alone; halves are truncated to whole points.
void addLockGlyph(UIView overlay) {
    const std::int32_t side = settings::fixedLayoutFlag ? 50 : 0;
    const std::int32_t origin = albumCellWidth / 2 - side / 2;
    const Owner<UIImageView> glyph =
        UIImageView::withImage(UIImage::withContentsOfFile(path::whiteLockImage()));
    glyph->setFrame({{static_cast<CGFloat>(origin), static_cast<CGFloat>(origin)},
                     {static_cast<CGFloat>(side), static_cast<CGFloat>(side)}});
    overlay.addSubview(glyph.get());
}

Owner<UIImageView> makeBlurredOverlay() {
    Owner<UIImageView> overlay = UIImageView::withFrame(thumbnailBounds());
    overlay->setBackgroundColor(UIColor::clearColor());
    const Owner<UIVisualEffectView> blur =
        UIVisualEffectView::withEffect(UIBlurEffect::effectWithStyle(UIBlurEffectStyle::dark));
    blur->setFrame(overlay->bounds());
    blur->layer().setCornerRadius(5.0);
    blur->layer().setMasksToBounds(true);
    overlay->addSubview(blur.get());
    addLockGlyph(overlay.get());
    return overlay;
}

Owner<UIImageView> makePadlockOverlay() {
    Owner<UIImageView> overlay = UIImageView::withImage(UIImage::withContentsOfFile(path::padlockImage()));
    overlay->setFrame(thumbnailBounds());
    return overlay;
}

Owner<UIImageView> makeSmallLockOverlay() {
    const CGFloat divisor = settings::fixedLayoutFlag ? 1.5 : 0.0;
    Owner<UIImageView> overlay =
        UIImageView::withFrame({{0, 0}, {albumCellWidth / divisor, albumCellHeight / divisor}});
    addLockGlyph(overlay.get());
    return overlay;
}

Owner<UIImageView> makeOverlay() {
    switch (settings::lockedAlbumPreview) {
    case preview::blurred:
        return makeBlurredOverlay();
    case preview::padlockPicture:
        return makePadlockOverlay();
    case preview::smallLock:
        return makeSmallLockOverlay();
    default:
        return Owner<UIImageView>();
    }
}

void addOverlay(PUAlbumListCellContentView contentView) {
    const Owner<UIImageView> overlay = makeOverlay();
    if (!overlay) return;
    overlay->setTag(tag::lockOverlay);
    const UIView stackView = contentView.stackView();
    stackView.addSubview(overlay.get());
    overlay->setAutoresizingMask(UIViewAutoresizing::flexibleWidthAndHeight);
    stackView.setAutoresizesSubviews(true);
}

} // namespace

void updateLockOverlay(PUAlbumListCellContentView contentView, bool locked) {
    if (!locked) {
        contentView.viewWithTag(tag::lockOverlay).removeFromSuperview();
        return;
    }
    if (!contentView.viewWithTag(tag::lockOverlay)) addOverlay(contentView);
    // An overlay from an earlier setting is kept, and a small one is enlarged to the whole thumbnail.
    contentView.viewWithTag(tag::lockOverlay).setFrame(thumbnailBounds());
}

} // namespace rollkeeper::albumList
