// Ownership in two words: adopt what you were given, share what you borrowed.
//
// Owner retains on copy and releases on destruction. Everything else in the library is a borrowed handle.
#pragma once

#include "objc/nsobject.h"

#include <utility>

namespace rollkeeper {

inline void retainReference(Object object) { cast<NSObject>(object).retain(); }
inline void releaseReference(Object object) { cast<NSObject>(object).release(); }

// Blocks are copied and released by their own runtime: a stack block must not be retained.
inline void retainReference(Block& block) { block.pointer = _Block_copy(block.pointer); }
inline void releaseReference(Block block) {
    if (block) _Block_release(block.pointer);
}

template <typename Handle> class Owner {
  public:
    Owner() = default;
    Owner(const Owner& other) : handle_(other.handle_) { retain(); }
    Owner(Owner&& other) noexcept : handle_(std::exchange(other.handle_, Handle())) {}
    ~Owner() { releaseReference(handle_); }

    Owner& operator=(Owner other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }

    // Takes over a reference that the caller owns already (alloc, new, copy).
    static Owner adopting(Handle handle) {
        Owner owner;
        owner.handle_ = handle;
        return owner;
    }

    // Adds a reference of its own to a borrowed object.
    static Owner sharing(Handle handle) {
        Owner owner;
        owner.handle_ = handle;
        owner.retain();
        return owner;
    }

    [[nodiscard]] Handle get() const { return handle_; }
    operator Handle() const { return handle_; }
    Handle* operator->() { return &handle_; }
    const Handle* operator->() const { return &handle_; }
    explicit operator bool() const { return static_cast<bool>(handle_); }

    // Hands the reference on to the caller, who releases it.
    [[nodiscard]] Handle leak() { return std::exchange(handle_, Handle()); }

  private:
    void retain() {
        if (handle_) retainReference(handle_);
    }

    Handle handle_;
};

template <typename Handle> Owner<Handle> adopt(Handle handle) { return Owner<Handle>::adopting(handle); }
// A new object made by `new`; nil where the process lacks the class.
template <ObjectHandle Wrapper> Owner<Wrapper> make() {
    return Owner<Wrapper>::adopting(sendToSubclass<Wrapper, NSObject, "new", Wrapper>());
}

template <typename Handle> Owner<Handle> share(Handle handle) { return Owner<Handle>::sharing(handle); }

// `kept` lives at least as long as `keeper`, which keeps one object in this way.
inline void keepAlive(Object kept, Object keeper) {
    static constinit char key = 0;
    constexpr std::uintptr_t retain = 1; // OBJC_ASSOCIATION_RETAIN_NONATOMIC
    objc_setAssociatedObject(keeper.pointer, &key, kept.pointer, retain);
}

// For a method's result: alive until the caller's autorelease pool ends.
template <ObjectHandle Handle> Handle autoreleased(Owner<Handle> owner) {
    return cast<Handle>(owner.leak().autorelease());
}

} // namespace rollkeeper
