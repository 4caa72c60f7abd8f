// Both kinds of method-hooking framework.
#include "frameworks/Hooking/HookCalls.h"
#include "frameworks/Hooking/Hooking.h"

#include "frameworks/ObjectiveC/ObjectiveC.h"
#include "simulator/device/device_fixture.h"

namespace simulator::test {
namespace {

using IntMethod = int (*)(id, SEL);
using RectMethod = NSRect (*)(id, SEL, NSRect, double, BOOL);

IMP original;

int ten(id, SEL) { return 10; }
int five(id, SEL) { return 5; }
int oneMore(id self, SEL command) { return reinterpret_cast<IntMethod>(original)(self, command) + 1; }
NSRect moved(id, SEL, NSRect rect, double distance, BOOL flag) {
    rect.origin.x += flag ? distance : -distance;
    return rect;
}
NSRect movedTwice(id self, SEL command, NSRect rect, double distance, BOOL flag) {
    return reinterpret_cast<RectMethod>(original)(self, command, rect, distance * 2, flag);
}

class Hooking : public DeviceTest, public testing::WithParamInterface<HookingStyle> {
  protected:
    Hooking() {
        change([](Conditions& conditions) { conditions.hooking = GetParam(); });
        class_addMethod(base, number, reinterpret_cast<IMP>(ten), "i@:");
        class_addMethod(base, rect, reinterpret_cast<IMP>(moved),
                        "{_NSRect={_NSPoint=dd}{_NSSize=dd}}@:{_NSRect={_NSPoint=dd}{_NSSize=dd}}dC");
    }

    // Hooks cannot be taken back: each test has classes of its own.
    static Class madeClass(Class superclass) {
        static int made = 0;
        Class cls = objc_allocateClassPair(superclass, ("Hooked" + std::to_string(made++)).c_str(), 0);
        objc_registerClassPair(cls);
        return cls;
    }
    static void hook(Class cls, SEL selector, auto* replacement, IMP* slot = &original) {
        MSHookMessageEx(cls, selector, reinterpret_cast<IMP>(replacement), slot);
    }
    int numberOf(id receiver) const {
        return reinterpret_cast<IntMethod>(objc_msgLookup(receiver, number))(receiver, number);
    }
    int numberOfNew(Class cls) const { return numberOf([[cls new] autorelease]); }

    const SEL number = sel_registerName("numberForHooking");
    const SEL rect = sel_registerName("movedRect:by:flag:");
    Class base = madeClass([NSObject class]);
    Class derived = madeClass(base);
};

TEST_P(Hooking, overrides_an_inherited_method_on_the_named_class_alone) {
    hook(derived, number, oneMore);
    EXPECT_EQ(numberOfNew(derived), 11);
    EXPECT_EQ(numberOfNew(base), 10);
    method_setImplementation(class_getInstanceMethod(base, number), reinterpret_cast<IMP>(five));
    EXPECT_EQ(numberOfNew(derived), GetParam().inheritedResolvedLate ? 6 : 11);
}

TEST_P(Hooking, passes_every_argument_on_to_an_inherited_original) {
    hook(derived, rect, movedTwice);
    id object = [[derived new] autorelease];
    const auto method = reinterpret_cast<RectMethod>(objc_msgLookup(object, rect));
    EXPECT_TRUE(NSEqualRects(method(object, rect, NSMakeRect(1, 2, 3, 4), 5, YES), NSMakeRect(11, 2, 3, 4)));
    EXPECT_EQ(method(object, rect, NSMakeRect(1, 2, 3, 4), 5, NO).origin.x, -9);
}

// The slot given is where the runtime keeps the method's implementation: what is written last stays.
TEST_P(Hooking, writes_the_slot_before_or_after_as_the_style_says) {
    const Method method = class_getInstanceMethod(base, number);
    hook(base, number, five, &reinterpret_cast<IMP*>(method)[2]);
    EXPECT_EQ(method_getImplementation(method),
              reinterpret_cast<IMP>(GetParam().slotWrittenFirst ? five : ten));
}

TEST_P(Hooking, notes_each_call_where_the_conditions_ask_for_it) {
    change([](Conditions& conditions) { conditions.hooking.callsNoted = true; });
    hook(derived, number, oneMore);
    hook(derived, rect, movedTwice, nullptr); // is not called
    EXPECT_TRUE(hookCalls().empty());
    id object = [[derived new] autorelease];
    numberOf(object);
    EXPECT_EQ(numberOf(object), 11);
    EXPECT_EQ(numberOfNew(base), 10);
    const std::vector<HookCalls> calls = hookCalls();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0].method, std::string("-[") + class_getName(derived) + " numberForHooking]");
    EXPECT_EQ(calls[0].count, 2U);
}

INSTANTIATE_TEST_SUITE_P(BothFrameworks, Hooking,
                         testing::Values(HookingStyle{true, false}, HookingStyle{false, false},
                                         HookingStyle{true, true}, HookingStyle{false, true}));

} // namespace
} // namespace simulator::test
