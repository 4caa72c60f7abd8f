#include "common/hiding.h"

namespace rollkeeper {

namespace {

Owner<PUAssetHidingHelper> makeHelper() {
    Owner<PUAssetHidingHelper> helper = make<PUAssetHidingHelper>();
    // iOS 8 has a class of this name that does something else.
    if (!helper->respondsTo<"applyHiddenState:completionHandler:">()) return Owner<PUAssetHidingHelper>();
    return helper;
}

} // namespace

bool canHideAssets() { return static_cast<bool>(makeHelper()); }

void apply(Photos state, NSArray assets, Block completion) {
    const Owner<PUAssetHidingHelper> helper = makeHelper();
    if (assets) helper->setAssets(assets);
    helper->applyHiddenState(state == Photos::hidden, completion);
}

Owner<NSMutableArray> arrayOf(NSObject selection) {
    Owner<NSMutableArray> elements = make<NSMutableArray>();
    for (NSObject element : each<NSObject>(selection))
        elements->addObject(element);
    return elements;
}

} // namespace rollkeeper
