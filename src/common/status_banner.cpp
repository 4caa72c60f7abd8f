#include "common/status_banner.h"

#include "common/tags.h"
#include "objc/global.h"

namespace rollkeeper {

namespace {

constexpr NSTimeInterval fadeDuration = 0.3;
constexpr NSTimeInterval readingTime = 1.0;
constexpr CGFloat bannerWidth = 180;
constexpr CGFloat bannerHeight = 45;
constexpr CGFloat bannerHeightWithSpinner = 70;

constinit MainThreadGlobal<UIActivityIndicatorView> statusBannerSpinner;

UIView rootView() { return UIApplication::sharedApplication().keyWindow().rootViewController().view(); }

void fadeOutAndRemove(Owner<UIView> view, NSTimeInterval delay) {
    UIView::animate(fadeDuration, delay, UIViewAnimationOptions::allowUserInteraction,
                    block<void()>([](UIView fading) { fading.setAlpha(0.0); }, view),
                    block<void(bool)>([](UIView faded, bool) { faded.removeFromSuperview(); }, view));
}

Owner<UIView> makeBanner(NSString message, BannerLife life) {
    const CGSize screen = UIScreen::mainScreen().bounds().size;
    const CGFloat height = life == BannerLife::hidesItself ? bannerHeight : bannerHeightWithSpinner;
    Owner<UIView> banner = UIView::withFrame(
        {{screen.width * 0.5 - bannerWidth / 2, screen.height * 0.5 - 30}, {bannerWidth, height}});
    banner->setBackgroundColor(UIColor::blackColor().colorWithAlphaComponent(0.8));
    banner->layer().setCornerRadius(15.0);
    banner->setUserInteractionEnabled(false);

    const Owner<UILabel> label = UILabel::withFrame({{0, 0}, {bannerWidth, 40}});
    label->setText(message);
    label->setTextAlignment(NSTextAlignment::center);
    label->setTextColor(UIColor::whiteColor());
    banner->addSubview(label.get());
    return banner;
}

} // namespace

void showStatusBanner(NSString message, BannerLife life) {
    const Owner<UIView> banner = makeBanner(message, life);
    banner->setAlpha(0.0);
    banner->setTag(tag::statusBanner);
    rootView().addSubview(banner.get());

    UIView::animate(fadeDuration, 0.0, UIViewAnimationOptions::allowUserInteraction,
                    block<void()>([](UIView shown) { shown.setAlpha(1.0); }, banner),
                    block<void(bool)>(
                        [](UIView shown, BannerLife shownFor, bool) {
                            if (shownFor == BannerLife::hidesItself)
                                fadeOutAndRemove(share(shown), readingTime);
                        },
                        banner, life));
}

void showProgressSpinner() {
    statusBannerSpinner.get().removeFromSuperview();
    const Owner<UIActivityIndicatorView> spinner =
        UIActivityIndicatorView::withStyle(UIActivityIndicatorViewStyle::white);
    spinner->setHidesWhenStopped(true);
    spinner->layer().setCornerRadius(5);
    spinner->setOpaque(false);
    const CGSize size = rootView().frame().size;
    spinner->setCenter({size.width / 2, size.height / 2 + 18});
    rootView().addSubview(spinner.get());
    spinner->startAnimating();
    statusBannerSpinner.set(spinner);
}

void dismissStatusBanner() {
    statusBannerSpinner.get().stopAnimating();
    statusBannerSpinner.get().removeFromSuperview();
    statusBannerSpinner.clear();
    if (const UIView banner = rootView().viewWithTag(tag::statusBanner)) fadeOutAndRemove(share(banner), 0.0);
}

} // namespace rollkeeper
