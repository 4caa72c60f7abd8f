// Owning and weak references to Objective-C objects as C++ values.
#pragma once

#import <Foundation/Foundation.h>

#import "ObjectiveC/ObjectiveC.h"

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

    // Takes over a reference that the caller owns.
    static Retained adopted(Object object) {
        Retained result;
        result.m_object = object;
        return result;
    }
    static Retained copyOf(Object object) { return adopted([object copy]); }

    Object get() const { return m_object; }
    // Safe to hand out even if this reference is replaced right after.
    Object autoreleased() const { return [[m_object retain] autorelease]; }
    explicit operator bool() const { return m_object != nil; }

  private:
    Object m_object = nil;
};

// Holds a copy of a block, or none. `retain` does not work on blocks here, `_Block_copy` does.
template <typename Block> class OwnedBlock {
  public:
    OwnedBlock() = default;
    OwnedBlock(Block block) : m_block(copied(block)) {}
    OwnedBlock(const OwnedBlock& other) : m_block(copied(other.m_block)) {}
    OwnedBlock(OwnedBlock&& other) noexcept : m_block(std::exchange(other.m_block, nullptr)) {}
    ~OwnedBlock() {
        if (m_block) _Block_release(reinterpret_cast<const void*>(m_block));
    }

    OwnedBlock& operator=(OwnedBlock other) noexcept {
        std::swap(m_block, other.m_block);
        return *this;
    }

    Block get() const { return m_block; }
    explicit operator bool() const { return m_block != nullptr; }

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

// Becomes nil when its object goes.
class Weak {
  public:
    Weak() = default;
    Weak(id object) { objc_initWeak(&m_location, object); }
    Weak(const Weak& other) : Weak(other.get()) {}
    ~Weak() { objc_destroyWeak(&m_location); }

    Weak& operator=(const Weak& other) {
        if (this != &other) objc_storeWeak(&m_location, other.get());
        return *this;
    }

    id get() const { return [objc_loadWeakRetained(const_cast<id*>(&m_location)) autorelease]; }

  private:
    id m_location = nil;
};

} // namespace simulator
