// The C functions of the Objective-C runtime, of blocks and of the main queue that the library imports.
//
// They are declared here because the library is built without the platform's headers. All of them may be
// called from any thread. Every name stands in src/allowed-imports.txt as well.
#pragma once

#include <cstddef>
#include <cstdint>

struct objc_object;
struct objc_class;
struct objc_selector;
struct objc_method;
struct objc_ivar;
struct dispatch_queue_s;

namespace rollkeeper {

using id = ::objc_object*;
using Class = ::objc_class*;
using SEL = ::objc_selector*;
using Method = ::objc_method*;
using Ivar = ::objc_ivar*;
using IMP = void (*)();

} // namespace rollkeeper

extern "C" {

rollkeeper::Class objc_getClass(const char* name);
rollkeeper::Class object_getClass(rollkeeper::id object);
rollkeeper::Class objc_allocateClassPair(rollkeeper::Class superclass, const char* name,
                                         std::size_t extraBytes);
void objc_registerClassPair(rollkeeper::Class newClass);
bool class_addMethod(rollkeeper::Class target, rollkeeper::SEL selector, rollkeeper::IMP implementation,
                     const char* encoding);
rollkeeper::Method class_getInstanceMethod(rollkeeper::Class target, rollkeeper::SEL selector);
rollkeeper::Ivar class_getInstanceVariable(rollkeeper::Class target, const char* name);
rollkeeper::IMP method_getImplementation(rollkeeper::Method method);
rollkeeper::id object_getIvar(rollkeeper::id object, rollkeeper::Ivar variable);
rollkeeper::SEL sel_registerName(const char* name);

void* objc_autoreleasePoolPush();
void objc_autoreleasePoolPop(void* pool);

rollkeeper::id objc_storeWeak(rollkeeper::id* location, rollkeeper::id object);
rollkeeper::id objc_loadWeakRetained(rollkeeper::id* location);

// Under the address `key`, and let go of with `object`. `policy`: OBJC_ASSOCIATION_...
void objc_setAssociatedObject(rollkeeper::id object, const void* key, rollkeeper::id value,
                              std::uintptr_t policy);

void* _Block_copy(const void* block);
void _Block_release(const void* block);

extern ::dispatch_queue_s _dispatch_main_q;
void dispatch_async(::dispatch_queue_s* queue, void* block);
// A time `nanoseconds` after `base`, which is 0 for now.
std::uint64_t dispatch_time(std::uint64_t base, std::int64_t nanoseconds);
void dispatch_after(std::uint64_t when, ::dispatch_queue_s* queue, void* block);

#ifdef __APPLE__
void objc_msgSend();
#else
// The form of a message on Linux: looks the implementation up and leaves the call to us. Never asked for nil.
rollkeeper::IMP objc_msgLookup(rollkeeper::id receiver, rollkeeper::SEL selector);
#endif

} // extern "C"
