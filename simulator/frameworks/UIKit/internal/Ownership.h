// Owning references to Objective-C objects as C++ values.
#pragma once

#import <Foundation/Foundation.h>

#include <Block.h>

#include <utility>

namespace simulator {

// Retains what it holds.
template <typename Object = id> class Retained {
  public:
    Retained() = default;
    Retained(Object object) : m_object([object retain]) {}
    Retained(const Retained& other) : m_object([other.m_object retain]) {}
    Retained(Retained&& other) noexcept : m_object(std::exchange(other.m_object, nil)) {}
    ~Retained() { [m_object release]; }

    Retained& operator=(Retained other) noexcept {
        std::swap(m_object, other.m_object);
        return *this;
    }

    Object get() const { return m_object; }
    explicit operator bool() const { return m_object != nil; }

  private:
    Object m_object = nil;
};

// Holds a copy of a block, or none. `retain` does not work on blocks here, `_Block_copy` does.
template <typename Block> class OwnedBlock {
  public:
    OwnedBlock(Block block) : m_block(copied(block)) {}
    OwnedBlock(const OwnedBlock& other) : m_block(copied(other.m_block)) {}
    ~OwnedBlock() {
        if (m_block) _Block_release(reinterpret_cast<const void*>(m_block));
    }

    OwnedBlock& operator=(const OwnedBlock&) = delete;

    // Runs the block, if any.
    template <typename... Arguments> void operator()(Arguments... arguments) const {
        if (m_block) m_block(arguments...);
    }

  private:
    static Block copied(Block block) {
        if (!block) return nullptr;
        return reinterpret_cast<Block>(_Block_copy(reinterpret_cast<const void*>(block)));
    }

    Block m_block = nullptr;
};

} // namespace simulator
