// Blocks own the objects that they capture, as on the device: the Linux block runtime copies the pointer
// only.
#include "device/next_function.h"

#import <Foundation/Foundation.h>

extern "C" {

void _Block_object_assign(void* destination, const void* object, const int flags);
void _Block_object_dispose(const void* object, const int flags);

} // extern "C"

namespace {

constexpr int isObject = 3; // the field flags of an object pointer, and of nothing else

} // namespace

void _Block_object_assign(void* destination, const void* object, const int flags) {
    if (flags == isObject)
        *static_cast<id*>(destination) = [static_cast<id>(const_cast<void*>(object)) retain];
    else
        NEXT_FUNCTION(_Block_object_assign)(destination, object, flags);
}

void _Block_object_dispose(const void* object, const int flags) {
    if (flags == isObject)
        [static_cast<id>(const_cast<void*>(object)) release];
    else
        NEXT_FUNCTION(_Block_object_dispose)(object, flags);
}
