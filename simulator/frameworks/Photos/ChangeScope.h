// The change that a change block is filling: requests find it by the thread they are made on.
#pragma once

#include "photolibrary/change.h"

#include <cstdint>

namespace simulator {

/// For its lifetime, requests of the calling thread go into one change.
class ChangeScope {
  public:
    ChangeScope();
    ~ChangeScope();
    ChangeScope(const ChangeScope&) = delete;
    ChangeScope& operator=(const ChangeScope&) = delete;

    /// The innermost one of the calling thread; nullptr outside every change block.
    static ChangeScope* current();

    /// Unlike an address never used twice: a request that outlives its block must not pass for another's.
    std::uint64_t number() const { return m_number; }
    Change& change() { return m_change; }

  private:
    std::uint64_t m_number;
    Change m_change;
};

} // namespace simulator
