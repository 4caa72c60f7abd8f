// Functions of the device's Objective-C runtime that the runtime here lacks.
#pragma once

#include <objc/runtime.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// The implementation for a message as this release of the device has it; raises NSInvalidArgumentException
// naming class and selector when the object does not understand it. The receiver must not be nil.
IMP objc_msgLookup(id receiver, SEL selector);

void* objc_autoreleasePoolPush(void);
void objc_autoreleasePoolPop(void* pool);

// Zeroing weak references. Storing, loading and the last release of the object may happen on different
// threads.
id objc_initWeak(id* location, id object);
id objc_storeWeak(id* location, id object);
id objc_loadWeakRetained(id* location); // the caller owns the result
void objc_destroyWeak(id* location);

// Keeps `value` for as long as `object` lives, or until the key is set again; each policy but 0 (assign)
// retains.
void objc_setAssociatedObject(id object, const void* key, id value, uintptr_t policy);

#ifdef __cplusplus
}

namespace simulator {

// Lets go of what is kept for an object that is about to be deallocated.
void dropAssociatedObjects(id object);

} // namespace simulator
#endif
