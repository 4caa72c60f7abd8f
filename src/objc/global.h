// Objects that live as long as the process, or until they are replaced.
//
// Nothing here has a destructor: a host that exits must not run code of ours while its threads still do.
#pragma once

#include "objc/cached_pointer.h"
#include "objc/owner.h"

namespace rollkeeper {

// An owned global of the main thread: an object or a block.
template <typename Handle> class MainThreadGlobal {
    static_assert(ObjectHandle<Handle> || std::is_same_v<Handle, Block>);

  public:
    [[nodiscard]] Handle get() const { return handle_; }
    explicit operator bool() const { return static_cast<bool>(handle_); }

    void set(Handle handle) { adoptIn(share(handle)); }

    // Empties the global and hands its reference to the caller, so that what is replayed outlives the global.
    [[nodiscard]] Owner<Handle> take() { return adopt(std::exchange(handle_, Handle())); }

    void clear() { adoptIn(Owner<Handle>()); }

  private:
    void adoptIn(Owner<Handle> next) { (void)adopt(std::exchange(handle_, next.leak())); }

    Handle handle_;
};

// A global that any thread reads while another replaces it. What was published is never freed, since a reader
// may still use it: publish only what has changed.
template <ObjectHandle Handle> class PublishedGlobal {
  public:
    [[nodiscard]] Handle get() const { return cast<Handle>(Object{value_.load()}); }

    void publish(Owner<Handle> next) { value_.store(next.leak().pointer); }

  private:
    CachedPointer<id> value_;
};

// A global that any thread replaces and only the main thread reads. The reader takes the object out while it
// adds a reference of its own, so that nobody can free it in between; what was replaced is released.
template <ObjectHandle Handle> class ReplacedGlobal {
  public:
    void replace(Owner<Handle> next) {
        (void)adopt(cast<Handle>(Object{value_.exchange(next.leak().pointer)}));
    }

    // Main thread.
    [[nodiscard]] Owner<Handle> get() {
        Owner<Handle> taken = adopt(cast<Handle>(Object{value_.exchange(nullptr)}));
        Owner<Handle> result = taken;
        if (taken && value_.storeIfEmpty(taken.get().pointer)) (void)taken.leak();
        return result;
    }

  private:
    CachedPointer<id> value_;
};

} // namespace rollkeeper
