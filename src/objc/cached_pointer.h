// A process-wide pointer that several threads may fill at once, each with an answer that is right.
#pragma once

namespace rollkeeper {

template <typename Pointer> class CachedPointer {
  public:
    [[nodiscard]] Pointer load() const { return __atomic_load_n(&value_, __ATOMIC_ACQUIRE); }

    void store(Pointer value) { __atomic_store_n(&value_, value, __ATOMIC_RELEASE); }

    // Stores `value` unless another thread was first; returns whether it did.
    bool storeIfEmpty(Pointer value) {
        Pointer expected = nullptr;
        return __atomic_compare_exchange_n(&value_, &expected, value, false, __ATOMIC_ACQ_REL,
                                           __ATOMIC_ACQUIRE);
    }

    Pointer exchange(Pointer value) { return __atomic_exchange_n(&value_, value, __ATOMIC_ACQ_REL); }

  private:
    Pointer value_ = nullptr;
};

} // namespace rollkeeper
