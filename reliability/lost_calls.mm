#include "lost_calls.h"

#include "device/next_function.h"

#import "CoreFoundation/CoreFoundation.h"
#import "Dispatch/Dispatch.h"
#import "Hooking/Hooking.h"
#import "ObjectiveC/ObjectiveC.h"
#import "RocketBootstrap/RocketBootstrap.h"
#import "UIKit/UIKit.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <dlfcn.h>
#include <mutex>
#include <string_view>

namespace reliability {
namespace {

std::atomic<bool> counts = false;
std::mutex lock; // guards the rest
std::vector<Call>& calls() {
    static auto& made = *new std::vector<Call>;
    return made;
}
std::size_t lostNumber = 0;
Loss lostHow = Loss::silent;

// Whether this call is the one.
bool isLost(std::string name, bool canBeRefused = false) {
    const std::lock_guard guard(lock);
    calls().push_back({std::move(name), canBeRefused});
    return calls().size() == lostNumber;
}

bool isLibrary(const void* caller) {
    Dl_info found{};
    return dladdr(caller, &found) != 0 && std::strstr(found.dli_fname, "/librollkeeper.so") != nullptr;
}

bool loses(const void* caller, const char* function) {
    return counts && isLibrary(caller) && isLost(function);
}

// What is lost gives the zero of its type. An object that cannot be initialised is let go of by its
// initialiser.
id noObject(id, SEL) { return nil; }
id noInitialisation(id object, SEL) {
    [object release];
    return nil;
}
double noNumber(id, SEL) { return 0; }
CGSize noSize(id, SEL) { return {}; }
CGRect noRect(id, SEL) { return {}; }

IMP lossOf(id receiver, SEL selector) {
    const std::string_view name = sel_getName(selector);
    if (name.starts_with("init")) return reinterpret_cast<IMP>(noInitialisation);
    Method method = class_getInstanceMethod(object_getClass(receiver), selector);
    const std::string_view type = method == nullptr ? "@" : method_getTypeEncoding(method);
    if (type.starts_with("{CGRect") || type.starts_with("{_NSRect")) return reinterpret_cast<IMP>(noRect);
    if (type.starts_with("{CG")) return reinterpret_cast<IMP>(noSize);
    return type.starts_with('d') ? reinterpret_cast<IMP>(noNumber) : reinterpret_cast<IMP>(noObject);
}

NSError* refusal() { return [NSError errorWithDomain:@"refused" code:-1 userInfo:nil]; }

// As the platform does: on a queue of its own, later.
void tellLater(void (^tell)(void)) {
    static dispatch_queue_t queue = dispatch_queue_create("refusals", DISPATCH_QUEUE_SERIAL);
    dispatch_async(queue, tell);
}

void refuseChanges(id, SEL, id, void (^handler)(BOOL, NSError*)) {
    tellLater(^{
        if (handler) handler(NO, refusal());
    });
}
void refuseEvaluation(id, SEL, NSInteger, id, void (^reply)(BOOL, NSError*)) {
    tellLater(^{
        reply(NO, refusal());
    });
}
void refuseHiding(id, SEL, BOOL, void (^handler)(void)) {
    tellLater(^{
        if (handler) handler();
    });
}
int refuseImage(id, SEL, id, CGSize, NSInteger, id, void (^handler)(UIImage*, NSDictionary*)) {
    handler(nil, nil);
    return 0;
}

const struct {
    const char* selector;
    IMP refusal;
} refusals[] = {
    {"performChanges:completionHandler:", reinterpret_cast<IMP>(refuseChanges)},
    {"evaluatePolicy:localizedReason:reply:", reinterpret_cast<IMP>(refuseEvaluation)},
    {"applyHiddenState:completionHandler:", reinterpret_cast<IMP>(refuseHiding)},
    {"requestImageForAsset:targetSize:contentMode:options:resultHandler:",
     reinterpret_cast<IMP>(refuseImage)},
};

IMP sent(id receiver, SEL selector, IMP implementation) {
    const char* name = sel_getName(selector);
    for (const char* memory : {"retain", "release", "autorelease"})
        if (std::strcmp(name, memory) == 0) return implementation;
    const auto* refused = std::ranges::find_if(
        refusals, [&](const auto& each) { return std::strcmp(each.selector, name) == 0; });
    const bool canBeRefused = refused != std::end(refusals);
    const char kind = class_isMetaClass(object_getClass(receiver)) ? '+' : '-';
    if (!isLost(std::string(1, kind) + "[" + object_getClassName(receiver) + " " + name + "]", canBeRefused))
        return implementation;
    return canBeRefused && lostHow == Loss::refused ? refused->refusal : lossOf(receiver, selector);
}

} // namespace

void countCalls(std::size_t lost, Loss loss) {
    const std::lock_guard guard(lock);
    calls().clear();
    lostNumber = lost;
    lostHow = loss;
    counts = true;
}

std::vector<Call> stopCounting() {
    counts = false;
    const std::lock_guard guard(lock);
    return std::exchange(calls(), {});
}

} // namespace reliability

// The program's own definitions, which the loader finds first, of what the library imports.
#define UNLESS_LOST(result)                                                                                  \
    if (reliability::loses(__builtin_return_address(0), __func__)) return result
#define PASS_ON(name, ...) return NEXT_FUNCTION(name)(__VA_ARGS__)

extern "C" {

IMP objc_msgLookup(id receiver, SEL selector) {
    const IMP found = NEXT_FUNCTION(objc_msgLookup)(receiver, selector);
    return reliability::counts ? reliability::sent(receiver, selector, found) : found;
}

// clang-format off
Class objc_getClass(const char* name) { UNLESS_LOST(Nil); PASS_ON(objc_getClass, name); }
Class objc_allocateClassPair(Class base, const char* name, std::size_t extra) { UNLESS_LOST(Nil); PASS_ON(objc_allocateClassPair, base, name, extra); }
BOOL class_addMethod(Class cls, SEL selector, IMP imp, const char* types) { UNLESS_LOST(NO); PASS_ON(class_addMethod, cls, selector, imp, types); }
Method class_getInstanceMethod(Class cls, SEL selector) { UNLESS_LOST(nullptr); PASS_ON(class_getInstanceMethod, cls, selector); }
Ivar class_getInstanceVariable(Class cls, const char* name) { UNLESS_LOST(nullptr); PASS_ON(class_getInstanceVariable, cls, name); }
id objc_loadWeakRetained(id* location) { UNLESS_LOST(nil); PASS_ON(objc_loadWeakRetained, location); }
id objc_storeWeak(id* location, id object) { UNLESS_LOST(nil); PASS_ON(objc_storeWeak, location, object); }
void objc_setAssociatedObject(id object, const void* key, id value, uintptr_t policy) { UNLESS_LOST(); PASS_ON(objc_setAssociatedObject, object, key, value, policy); }
void dispatch_async(dispatch_queue_t queue, dispatch_block_t block) { UNLESS_LOST(); PASS_ON(dispatch_async, queue, block); }
void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, dispatch_block_t block) { UNLESS_LOST(); PASS_ON(dispatch_after, when, queue, block); }
void MSHookMessageEx(Class cls, SEL selector, IMP replacement, IMP* slot) { UNLESS_LOST(); PASS_ON(MSHookMessageEx, cls, selector, replacement, slot); }
void rocketbootstrap_distributedmessagingcenter_apply(CPDistributedMessagingCenter* centre) { UNLESS_LOST(); PASS_ON(rocketbootstrap_distributedmessagingcenter_apply, centre); }
CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter(void) { UNLESS_LOST(nullptr); PASS_ON(CFNotificationCenterGetDarwinNotifyCenter); }
void CFNotificationCenterAddObserver(CFNotificationCenterRef centre, const void* observer, CFNotificationCallback callback, CFStringRef name, const void* object, CFNotificationSuspensionBehavior behaviour) { UNLESS_LOST(); PASS_ON(CFNotificationCenterAddObserver, centre, observer, callback, name, object, behaviour); }
// clang-format on

} // extern "C"
