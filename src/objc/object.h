// The root of the value handles: a struct that is nothing but the object's pointer.
//
// A handle owns nothing, travels in a register like the pointer and may be nil. The typed wrappers of the
// platform's classes (platform/) derive from Object and hold no members of their own.
#pragma once

#include "objc/runtime.h"

#include <type_traits>

namespace rollkeeper {

struct Object {
    id pointer = nullptr;

    explicit operator bool() const { return pointer != nullptr; }

    // Identity, not equality: ask isEqual: for the latter.
    friend bool operator==(Object left, Object right) { return left.pointer == right.pointer; }
};

template <typename T>
concept ObjectHandle =
    std::is_base_of_v<Object, T> && sizeof(T) == sizeof(id) && std::is_trivially_copyable_v<T>;

// The same object under another wrapper. Only for results whose class the platform promises.
template <ObjectHandle Wrapper> Wrapper cast(Object object) {
    Wrapper result;
    result.pointer = object.pointer;
    return result;
}

// A block as the platform sees it: borrowed, possibly nil. Made by objc/block.h.
struct Block {
    void* pointer = nullptr;
    explicit operator bool() const { return pointer != nullptr; }
};

} // namespace rollkeeper
