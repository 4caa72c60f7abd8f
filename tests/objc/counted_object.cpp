#include "counted_object.h"

#include <atomic>

namespace rollkeeper::test {

namespace {

std::atomic<std::size_t> count;

void dealloc(NSObject self, SEL command) {
    --count;
    const Method inherited = class_getInstanceMethod(objc_getClass("NSObject"), command);
    reinterpret_cast<void (*)(NSObject, SEL)>(method_getImplementation(inherited))(self, command);
}

void registerClass() {
    const Class made = objc_allocateClassPair(objc_getClass("NSObject"), CountedObject::className.text, 0);
    class_addMethod(made, sel_registerName("dealloc"), reinterpret_cast<IMP>(&dealloc), "v@:");
    objc_registerClassPair(made);
}

} // namespace

Owner<CountedObject> CountedObject::create() {
    if (!objc_getClass(className.text)) registerClass();
    ++count;
    return make<CountedObject>();
}

std::size_t CountedObject::alive() { return count; }

} // namespace rollkeeper::test
