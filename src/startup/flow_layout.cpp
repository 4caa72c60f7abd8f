#include "startup/flow_layout.h"

#include "objc/replacement.h"
#include "platform/uikit.h"

namespace rollkeeper {

namespace {

// [super init], by the superclass's own implementation.
NSObject initFlowLayout(UICollectionViewFlowLayout self, SEL command) {
    const Method inherited =
        class_getInstanceMethod(classNamed<UICollectionViewFlowLayout::className>(), command);
    using Init = NSObject (*)(UICollectionViewFlowLayout, SEL);
    return reinterpret_cast<Init>(method_getImplementation(inherited))(self, command);
}

} // namespace

void registerFlowLayout() {
    // Without its superclass the class would become a root class.
    const Class superclass = classNamed<UICollectionViewFlowLayout::className>();
    if (!superclass) return;
    const Class flowLayout = objc_allocateClassPair(superclass, "RKFlowLayout", 0);
    if (!flowLayout) return; // the name is taken: the library was loaded twice
    constexpr HookFunction init = addition<"@@:", initFlowLayout>();
    class_addMethod(flowLayout, selector<"init">(), init.implementation(), init.encoding);
    objc_registerClassPair(flowLayout);
}

} // namespace rollkeeper
