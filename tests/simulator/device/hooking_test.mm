#include "frameworks/Hooking/Hooking.h"

#include "frameworks/Hooking/InstallationLog.h"
#include "simulator/device/device_test.h"

#include <sys/mman.h>

#include <csignal>

// Classes to be hooked: a method of their own, one inherited, a class method, and arguments of every kind of
// register.
@interface HookedBase : NSObject
- (int)inherited;
- (NSRect)movedRect:(NSRect)rect by:(double)distance flag:(BOOL)flag;
@end
@implementation HookedBase
- (int)inherited {
    return 1;
}
- (NSRect)movedRect:(NSRect)rect by:(double)distance flag:(BOOL)flag {
    rect.origin.x += flag ? distance : -distance;
    return rect;
}
@end

@interface HookedClass : HookedBase
- (int)own;
+ (int)shared;
@end
@implementation HookedClass
- (int)own {
    return 10;
}
+ (int)shared {
    return 100;
}
@end

namespace simulator::test {
namespace {

using IntMethod = int (*)(id, SEL);
using RectMethod = NSRect (*)(id, SEL, NSRect, double, BOOL);

IMP ownOriginal, inheritedOriginal, sharedOriginal, rectOriginal, secondOriginal;

int call(IMP method, id self, SEL command) { return reinterpret_cast<IntMethod>(method)(self, command); }
int hookedOwn(id self, SEL command) { return call(ownOriginal, self, command) + 1; }
int hookedInherited(id self, SEL command) { return call(inheritedOriginal, self, command) + 1; }
int hookedShared(id self, SEL command) { return call(sharedOriginal, self, command) + 1; }
int hookedTwice(id self, SEL command) { return call(secondOriginal, self, command) * 2; }
int changedInherited(id, SEL) { return 5; }

NSRect hookedRect(id self, SEL command, NSRect rect, double distance, BOOL flag) {
    return reinterpret_cast<RectMethod>(rectOriginal)(self, command, rect, distance * 2, flag);
}

void hook(Class cls, SEL selector, auto* replacement, IMP* slot) {
    MSHookMessageEx(cls, selector, reinterpret_cast<IMP>(replacement), slot);
}

class Hooking : public DeviceTest, public testing::WithParamInterface<HookingStyle> {
  protected:
    Hooking() {
        device().changeConditions([](Conditions& conditions) { conditions.hooking = GetParam(); });
    }

    HookedClass* object = [[[HookedClass alloc] init] autorelease];
    HookedBase* base = [[[HookedBase alloc] init] autorelease];
};

TEST_P(Hooking, replaces_a_method_and_hands_out_the_original) {
    hook([HookedClass class], @selector(own), hookedOwn, &ownOriginal);
    EXPECT_EQ([object own], 11);
}

TEST_P(Hooking, replaces_a_method_for_subclasses_as_well) {
    EXPECT_EQ([object inherited], 1);
    hook([HookedBase class], @selector(inherited), hookedInherited, &inheritedOriginal);
    EXPECT_EQ([object inherited], 2);
}

TEST_P(Hooking, overrides_an_inherited_method_on_the_named_class_alone) {
    hook([HookedClass class], @selector(inherited), hookedInherited, &inheritedOriginal);
    EXPECT_EQ([object inherited], 2);
    EXPECT_EQ([base inherited], 1);
}

TEST_P(Hooking, resolves_an_inherited_original_when_the_style_says) {
    hook([HookedClass class], @selector(inherited), hookedInherited, &inheritedOriginal);
    method_setImplementation(class_getInstanceMethod([HookedBase class], @selector(inherited)),
                             reinterpret_cast<IMP>(changedInherited));
    EXPECT_EQ([object inherited], GetParam().inheritedResolvedLate ? 6 : 2);
}

TEST_P(Hooking, passes_every_argument_on_to_an_inherited_original) {
    hook([HookedClass class], @selector(movedRect:by:flag:), hookedRect, &rectOriginal);
    const NSRect moved = [object movedRect:NSMakeRect(1, 2, 3, 4) by:5 flag:YES];
    EXPECT_TRUE(NSEqualRects(moved, NSMakeRect(11, 2, 3, 4)));
    EXPECT_EQ([object movedRect:NSMakeRect(1, 2, 3, 4) by:5 flag:NO].origin.x, -9);
}

TEST_P(Hooking, replaces_class_methods_on_the_metaclass) {
    hook(object_getClass(static_cast<id>([HookedClass class])), @selector(shared), hookedShared,
         &sharedOriginal);
    EXPECT_EQ([HookedClass shared], 101);
}

// A slot that nobody may touch: the write to it faults, and the handler sees whether the replacement is in
// place yet.
class GuardedSlot {
  public:
    GuardedSlot() {
        s_page = mmap(nullptr, pageSize, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        struct sigaction action{};
        action.sa_handler = written;
        sigaction(SIGSEGV, &action, &m_previous);
    }
    ~GuardedSlot() {
        sigaction(SIGSEGV, &m_previous, nullptr);
        munmap(s_page, pageSize);
    }

    IMP* get() { return static_cast<IMP*>(s_page); }
    static bool wasInstalledWhenWritten() { return s_installed; }

  private:
    static constexpr std::size_t pageSize = 65536;

    static void written(int) {
        s_installed = class_getMethodImplementation([HookedClass class], @selector(own)) ==
                      reinterpret_cast<IMP>(hookedOwn);
        mprotect(s_page, pageSize, PROT_READ | PROT_WRITE);
    }

    static inline void* s_page;
    static inline bool s_installed;
    struct sigaction m_previous{};
};

TEST_P(Hooking, writes_the_slot_before_or_after_as_the_style_says) {
    GuardedSlot slot;
    hook([HookedClass class], @selector(own), hookedOwn, slot.get());
    ASSERT_NE(*slot.get(), nullptr);
    EXPECT_NE(slot.wasInstalledWhenWritten(), GetParam().slotWrittenFirst);
}

TEST_P(Hooking, chains_a_second_replacement) {
    hook([HookedClass class], @selector(inherited), hookedInherited, &inheritedOriginal);
    hook([HookedClass class], @selector(inherited), hookedTwice, &secondOriginal);
    EXPECT_EQ([object inherited], 4);
}

TEST_P(Hooking, installs_nothing_for_a_nil_class_or_an_unknown_method) {
    const IMP untouched = reinterpret_cast<IMP>(changedInherited);
    IMP slot = untouched;
    hook(Nil, @selector(own), hookedOwn, &slot);
    hook([HookedClass class], @selector(shared), hookedOwn, &slot);
    EXPECT_EQ(slot, untouched);
    EXPECT_FALSE([object respondsToSelector:@selector(shared)]);
}

INSTANTIATE_TEST_SUITE_P(BothFrameworks, Hooking,
                         testing::Values(HookingStyle{true, false}, HookingStyle{false, false},
                                         HookingStyle{true, true}, HookingStyle{false, true}),
                         [](const auto& info) {
                             return std::string(info.param.slotWrittenFirst ? "slot_first" : "slot_last") +
                                    (info.param.inheritedResolvedLate ? "_late" : "_early");
                         });

TEST_F(DeviceTest, installations_are_logged_in_order) {
    clearInstallationLog();
    IMP slot = nullptr;
    hook([HookedClass class], @selector(own), hookedOwn, &ownOriginal);
    hook(Nil, @selector(own), hookedOwn, &slot);
    beginLoggingAddedMethods();
    class_addMethod([HookedClass class], sel_registerName("addedWhileLoading"),
                    reinterpret_cast<IMP>(hookedOwn), "i@:");
    endLoggingAddedMethods();
    class_addMethod([HookedClass class], sel_registerName("addedLater"), reinterpret_cast<IMP>(hookedOwn),
                    "i@:");

    const auto* implementation = reinterpret_cast<const void*>(hookedOwn);
    const auto& log = installationLog();
    ASSERT_EQ(log.size(), 3u);
    EXPECT_EQ(log[0].encoding.substr(0, 1), "i");
    EXPECT_EQ(log[0], (Installation{Installation::Kind::replaced, "HookedClass", '-', "own", log[0].encoding,
                                    implementation, static_cast<const void*>(&ownOriginal), true}));
    EXPECT_EQ(log[1], (Installation{Installation::Kind::replaced, "", '-', "own", "", implementation,
                                    static_cast<const void*>(&slot), false}));
    EXPECT_EQ(log[2], (Installation{Installation::Kind::added, "HookedClass", '-', "addedWhileLoading",
                                    "i@:", implementation, nullptr, true}));
}

} // namespace
} // namespace simulator::test
