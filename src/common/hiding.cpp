#include "common/hiding.h"

namespace rollkeeper {

namespace {

// Most applications have PhotosUI only once somebody loads it.
Class hidingHelper() {
    if (const Class helper = classNamed<PUAssetHidingHelper::className>()) return helper;
    NSBundle::bundleWithPath("/System/Library/Frameworks/PhotosUI.framework"_ns).load();
    return classNamed<PUAssetHidingHelper::className>();
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

Owner<NSMutableArray> photosIn(NSObject selection) {
    Owner<NSMutableArray> photos = make<NSMutableArray>();
    for (NSObject element : each<NSObject>(selection))
        photos->addObject(ifKindOf<PHAsset>(element));
    return photos;
}

} // namespace rollkeeper
