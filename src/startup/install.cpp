#include "startup/install.h"

#include "platform/hooking.h"

namespace rollkeeper {

namespace {

// Stands in a slot whose method does not exist: should a hooking framework install the row all the same,
// there is nothing below it to call.
id nothing() { return nullptr; }

Class classOf(const HookRow& row) {
    const Class named = objc_getClass(row.className);
    return row.method == MethodKind::classMethod ? object_getClass(reinterpret_cast<id>(named)) : named;
}

// Some hooking frameworks fill the slot only after the replacement is in place, when another thread may be
// running it already: so the slot holds the present implementation from the start.
void replace(Class target, SEL selector, const HookFunction& function) {
    const Method present = target ? class_getInstanceMethod(target, selector) : nullptr;
    *function.slot = present ? method_getImplementation(present) : reinterpret_cast<IMP>(&nothing);
    MSHookMessageEx(target, selector, function.implementation(), function.slot);
}

void installRow(const HookRow& row) {
    const Class target = classOf(row);
    const SEL selector = sel_registerName(row.selector);
    if (row.function.slot) {
        replace(target, selector, row.function);
    } else {
        class_addMethod(target, selector, row.function.implementation(), row.function.encoding);
    }
}

bool isThere(const HookRow& row) {
    const Class target = classOf(row);
    return target && (!row.function.slot || class_getInstanceMethod(target, sel_registerName(row.selector)));
}

} // namespace

void install(HookGroup group) {
    for (const HookRow& row : hookTable())
        if (row.group == group && (group != HookGroup::albumsScreen || isThere(row))) installRow(row);
}

} // namespace rollkeeper
