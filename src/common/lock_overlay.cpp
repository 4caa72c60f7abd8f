#include "common/lock_overlay.h"

#include "common/album_cell.h"
#include "common/tags.h"
#include "settings/settings.h"
#include "state/paths.h"

namespace rollkeeper {

namespace {

// Values of "lockedAlbumPreview"; any other value draws nothing.
namespace preview {
constexpr std::int32_t blurred = 0;
constexpr std::int32_t padlockPicture = 1;
constexpr std::int32_t smallLock = 2;
} // namespace preview

CGRect boundsOf(const Cover& cover) {
    return {{0, 0}, {static_cast<CGFloat>(cover.width), static_cast<CGFloat>(cover.height)}};
}

// Both coordinates come from the width alone; halves are truncated to whole points.
void addLockGlyph(UIView overlay, const Cover& cover) {
    const std::int32_t side = settings::fixedLayoutFlag ? 50 : 0;
    const std::int32_t origin = cover.width / 2 - side / 2;
    const Owner<UIImageView> glyph =
        UIImageView::withImage(UIImage::withContentsOfFile(path::whiteLockImage()));
    glyph->setFrame({{static_cast<CGFloat>(origin), static_cast<CGFloat>(origin)},
                     {static_cast<CGFloat>(side), static_cast<CGFloat>(side)}});
    overlay.addSubview(glyph.get());
}

Owner<UIImageView> makeBlurredOverlay(const Cover& cover) {
    Owner<UIImageView> overlay = UIImageView::withFrame(boundsOf(cover));
    overlay->setBackgroundColor(UIColor::clearColor());
    const Owner<UIVisualEffectView> blur =
        UIVisualEffectView::withEffect(UIBlurEffect::effectWithStyle(UIBlurEffectStyle::dark));
    blur->setFrame(overlay->bounds());
    blur->layer().setCornerRadius(5.0);
    blur->layer().setMasksToBounds(true);
    overlay->addSubview(blur.get());
    addLockGlyph(overlay.get(), cover);
    return overlay;
}

Owner<UIImageView> makePadlockOverlay(const Cover& cover) {
    Owner<UIImageView> overlay = UIImageView::withImage(UIImage::withContentsOfFile(path::padlockImage()));
    overlay->setFrame(boundsOf(cover));
    return overlay;
}

Owner<UIImageView> makeSmallLockOverlay(const Cover& cover) {
    const CGFloat divisor = settings::fixedLayoutFlag ? 1.5 : 0.0;
    Owner<UIImageView> overlay =
        UIImageView::withFrame({{0, 0}, {cover.width / divisor, cover.height / divisor}});
    addLockGlyph(overlay.get(), cover);
    return overlay;
}

Owner<UIImageView> makeOverlay(const Cover& cover) {
    switch (settings::lockedAlbumPreview) {
    case preview::blurred:
        return makeBlurredOverlay(cover);
    case preview::padlockPicture:
        return makePadlockOverlay(cover);
    case preview::smallLock:
        return makeSmallLockOverlay(cover);
    default:
        return Owner<UIImageView>();
    }
}

void addOverlay(PUAlbumListCellContentView contentView, const Cover& cover) {
    const Owner<UIImageView> overlay = makeOverlay(cover);
    if (!overlay) return;
    overlay->setTag(tag::lockOverlay);
    const UIView stackView = contentView.stackView();
    stackView.addSubview(overlay.get());
    overlay->setAutoresizingMask(UIViewAutoresizing::flexibleWidthAndHeight);
    stackView.setAutoresizesSubviews(true);
}

// The blur covers whatever the overlay comes to cover, and the lock stays in its middle.
void goWithLayout(UIView overlay) {
    for (UIView drawn : each<UIView>(overlay.subviews()))
        drawn.setAutoresizingMask(ifKindOf<UIVisualEffectView>(drawn)
                                      ? UIViewAutoresizing::flexibleWidthAndHeight
                                      : UIViewAutoresizing::flexibleMargins);
}

} // namespace

Cover albumListCover() {
    return {.width = albumCellWidth, .height = albumCellHeight, .isLaidOutLater = false};
}

void updateLockOverlay(PUAlbumListCellContentView contentView, bool locked, const Cover& cover) {
    if (!locked) {
        contentView.viewWithTag(tag::lockOverlay).removeFromSuperview();
        return;
    }
    if (!contentView.viewWithTag(tag::lockOverlay)) addOverlay(contentView, cover);
    // An overlay from an earlier setting is kept, and a small one is enlarged to the whole thumbnail.
    const UIView overlay = contentView.viewWithTag(tag::lockOverlay);
    overlay.setFrame(boundsOf(cover));
    if (cover.isLaidOutLater) goWithLayout(overlay);
}

} // namespace rollkeeper
