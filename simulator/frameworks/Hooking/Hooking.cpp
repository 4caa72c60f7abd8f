#include "device/conditions.h"
#include "device/next_function.h"
#include "frameworks/Hooking/HookCalls.h"
#include "frameworks/Hooking/InstallationLog.h"
#include "frameworks/Hooking/Trampoline.h"

#include <objc/runtime.h>

// The runtime's own: its tables of what each class answers, which it leaves stale in subclasses when a method
// gets another implementation.
extern "C" void __objc_update_dispatch_table_for_class(Class cls);

namespace simulator {
namespace {

bool isOwnMethod(Class cls, Method method) {
    return class_getSuperclass(cls) == Nil ||
           class_getInstanceMethod(class_getSuperclass(cls), method_getName(method)) != method;
}

void put(Class cls, Method method, bool own, IMP replacement) {
    if (own) {
        method_setImplementation(method, replacement);
        __objc_update_dispatch_table_for_class(cls);
        return;
    }
    const auto add = NEXT_FUNCTION(class_addMethod);
    add(cls, method_getName(method), replacement, method_getTypeEncoding(method));
}

// An original that is looked up when it is called: what some hooking frameworks hand out for inherited
// methods.
IMP lateOriginal(Class superclass, SEL selector) {
    return trampoline([=] { return class_getMethodImplementation(superclass, selector); });
}

void install(Class cls, Method method, IMP replacement, IMP* slot) {
    const HookingStyle style = currentConditions()->hooking;
    const bool own = isOwnMethod(cls, method);
    const IMP original = !own && style.inheritedResolvedLate
                             ? lateOriginal(class_getSuperclass(cls), method_getName(method))
                             : method_getImplementation(method);
    if (slot != nullptr && style.slotWrittenFirst) *slot = original;
    put(cls, method, own, replacement);
    if (slot != nullptr && !style.slotWrittenFirst) *slot = original;
}

} // namespace
} // namespace simulator

extern "C" void MSHookMessageEx(Class cls, SEL selector, IMP replacement, IMP* slot) {
    Method method = cls == Nil ? nullptr : class_getInstanceMethod(cls, selector);
    if (method != nullptr)
        simulator::install(cls, method, simulator::notingCalls(cls, selector, replacement), slot);
    simulator::logInstallation({
        .kind = simulator::Installation::Kind::replaced,
        .className = cls == Nil ? "" : class_getName(cls),
        .methodKind = cls != Nil && class_isMetaClass(cls) ? '+' : '-',
        .selector = sel_getName(selector),
        .encoding = method == nullptr ? "" : method_getTypeEncoding(method),
        .implementation = reinterpret_cast<const void*>(replacement),
        .slot = static_cast<const void*>(slot),
        .installed = method != nullptr,
    });
}
