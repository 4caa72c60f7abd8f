#include "capture/album_chooser.h"
#include "capture/hooks.h"
#include "capture/selected_album.h"
#include "common/tags.h"
#include "objc/replacement.h"
#include "settings/settings.h"
#include "state/paths.h"

namespace rollkeeper {

namespace {

constexpr CGFloat imageSide = 28;
constexpr CGFloat labelFontSize = 12;
constexpr CGPoint labelOrigin = {91, 65};
constexpr CGSize widestLabel = {380, 20};
constexpr CGSize labelBesideCustomButton = {100, 40};
// Five sixths, held in single precision.
constexpr CGFloat minimumScaleFactor = 0.8333333F;

// A button that some cameras have in the way.
bool hasCustomDrawButton(CAMBottomBar bar) {
    const Class customButton = classNamed<"CustomDrawButton">();
    bool found = false;
    for (UIView view : each<UIView>(bar.subviews()))
        found = found || (customButton && view.isKindOfClass(customButton));
    return found;
}

Owner<UIImageView> addAlbumImage(CAMBottomBar bar, bool besideCustomButton) {
    const UIView background = bar.backgroundView();
    const CGSize size = background.frame().size;
    Owner<UIImageView> image = UIImageView::withImage(UIImage::withContentsOfFile(path::albumImage()));
    image->setFrame({{0, 0}, {imageSide, imageSide}});
    image->setCenter({2 * size.width / 7 + (besideCustomButton ? imageSide : 0), size.height * 0.5 + 5});
    const auto tap = UITapGestureRecognizer::withTarget(bar, selector<"chooseAlbum">());
    tap->setNumberOfTapsRequired(1);
    tap->setDelegate(bar);
    image->addGestureRecognizer(tap.get());
    image->setTag(tag::cameraAlbumImage);
    image->setUserInteractionEnabled(true);
    background.addSubview(image.get());
    background.setUserInteractionEnabled(true);
    return image;
}

CGRect labelFrame(CGSize constraint) {
    return {labelOrigin, sizeOfText(camera::selectedAlbum(), UIFont::systemFontOfSize(labelFontSize),
                                    constraint, NSLineBreakMode::byTruncatingTail)};
}

CGPoint labelCenter(UIView image) {
    const CGPoint center = image.center();
    return {center.x, center.y + imageSide};
}

void addAlbumLabel(CAMBottomBar bar, UIView image, CGSize constraint) {
    const Owner<UILabel> label = UILabel::withFrame(labelFrame(constraint));
    label->setFont(UIFont::systemFontOfSize(labelFontSize));
    label->setCenter(labelCenter(image));
    label->setText(camera::selectedAlbum());
    label->setNumberOfLines(1);
    label->setBaselineAdjustment(UIBaselineAdjustment::alignBaselines);
    label->setAdjustsFontSizeToFitWidth(true);
    label->setAdjustsLetterSpacingToFitWidth(true);
    label->setMinimumScaleFactor(minimumScaleFactor);
    label->setClipsToBounds(true);
    label->setBackgroundColor(UIColor::clearColor());
    label->setTextColor(UIColor::whiteColor());
    label->setTextAlignment(NSTextAlignment::center);
    label->setTag(tag::cameraAlbumLabel);
    bar.backgroundView().addSubview(label.get());
}

UILabel albumLabel(CAMBottomBar bar) {
    return cast<UILabel>(bar.backgroundView().viewWithTag(tag::cameraAlbumLabel));
}

// Always measured in the wide constraint, also beside a custom button.
void relabel(CAMBottomBar bar) {
    const UILabel label = albumLabel(bar);
    label.setText(camera::selectedAlbum());
    label.setFrame(labelFrame(widestLabel));
    label.setCenter(labelCenter(bar.backgroundView().viewWithTag(tag::cameraAlbumImage)));
}

void chooseForCamera(NSObject bar, NSString title) {
    camera::setSelectedAlbum(title);
    relabel(cast<CAMBottomBar>(bar));
    camera::persistSelectedAlbum();
}

} // namespace

// A created album is chosen like a picked one.
constexpr AlbumChooserPolicy cameraChooserPolicy = {
    .picked = chooseForCamera,
    .created = chooseForCamera,
    .presenter = [](NSObject bar) { return cast<CAMBottomBar>(bar).viewControllerForAncestor(); },
    .anchor = [](NSObject bar) { return cast<CAMBottomBar>(bar).viewWithTag(tag::cameraAlbumImage); },
};

namespace camera {

void layoutBottomBar(CAMBottomBar self, SEL command) {
    original<layoutBottomBar>(self, command);
    if (!settings::enabled || !settings::enableCameraPicker) return;
    if (!self.respondsTo<"backgroundView">()) return; // iOS 7: nothing to put the button into

    const bool besideCustomButton = hasCustomDrawButton(self);
    if (!self.viewWithTag(tag::cameraAlbumImage)) {
        const Owner<UIImageView> image = addAlbumImage(self, besideCustomButton);
        addAlbumLabel(self, image.get(), besideCustomButton ? labelBesideCustomButton : widestLabel);
    }
    albumLabel(self).setText(selectedAlbum());
}

void chooseAlbum(CAMBottomBar self, SEL) { presentAlbumChooser(AlbumChooser::camera, self); }

void createNewAlbum(CAMBottomBar self, SEL) { presentNewAlbumAlert(AlbumChooser::camera, self); }

} // namespace camera
} // namespace rollkeeper
