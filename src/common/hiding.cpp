#include "common/hiding.h"

#include "common/albums.h"

namespace rollkeeper {

namespace {

// Most applications have PhotosUI only once somebody loads it.
Class hidingHelper() {
    if (const Class helper = classNamed<PUAssetHidingHelper::className>()) return helper;
    NSBundle::bundleWithPath("/System/Library/Frameworks/PhotosUI.framework"_ns).load();
    return classNamed<PUAssetHidingHelper::className>();
}

constexpr double changesReachLibrary = 1.0; // seconds, as a rule

// As the library has them by now.
Owner<NSMutableArray> strandedOf(NSArray photos) {
    const Owner<NSMutableArray> identifiers = make<NSMutableArray>();
    for (PHAsset photo : each<PHAsset>(photos))
        identifiers->addObject(photo.localIdentifier());
    Owner<NSMutableArray> stranded = make<NSMutableArray>();
    const Owner<PHFetchOptions> options = optionsIncludingHidden();
    for (PHAsset photo : each<PHAsset>(PHAsset::fetchAssetsWithLocalIdentifiers(identifiers.get(), options)))
        if (photo.isHidden() && countOfAlbumsHolding(photo) == 0) stranded->addObject(photo);
    return stranded;
}

} // namespace

// iOS 8 has a class of this name that does something else.
bool canHideAssets() {
    const Class helper = hidingHelper();
    return helper && class_getInstanceMethod(helper, selector<"applyHiddenState:completionHandler:">());
}

void apply(Photos state, NSArray assets, Block completion) {
    if (!canHideAssets()) return;
    const Owner<PUAssetHidingHelper> helper = make<PUAssetHidingHelper>();
    if (assets) helper->setAssets(assets);
    helper->applyHiddenState(state == Photos::hidden, completion);
}

void showStrandedLater(Owner<NSMutableArray> photos) {
    if (photos->count() == 0) return;
    onMainQueueAfter(
        changesReachLibrary,
        [](NSMutableArray leaving) {
            const Owner<NSMutableArray> stranded = strandedOf(leaving);
            if (stranded->count() > 0) apply(Photos::shown, stranded.get(), Block());
        },
        std::move(photos));
}

Owner<NSMutableArray> photosIn(NSObject selection) {
    Owner<NSMutableArray> photos = make<NSMutableArray>();
    for (NSObject element : each<NSObject>(selection))
        photos->addObject(ifKindOf<PHAsset>(element));
    return photos;
}

} // namespace rollkeeper
