// A reference to an object that may have gone: gone reads as nil.
#pragma once

#include "objc/owner.h"

namespace rollkeeper {

// For globals: it is never destroyed, and never copied, since the runtime remembers its address.
template <ObjectHandle Handle> class WeakGlobal {
  public:
    constexpr WeakGlobal() = default;
    WeakGlobal(const WeakGlobal&) = delete;
    WeakGlobal& operator=(const WeakGlobal&) = delete;

    // Costs a comparison when the object is the one already stored. Main thread.
    void set(Handle handle) {
        if (handle == lastStored_ && load()) return;
        lastStored_ = handle;
        objc_storeWeak(&location_, handle.pointer);
    }

    [[nodiscard]] Owner<Handle> load() {
        return adopt(cast<Handle>(Object{objc_loadWeakRetained(&location_)}));
    }

  private:
    id location_ = nullptr;
    Object lastStored_; // compared only, never sent to: it may have gone
};

} // namespace rollkeeper
