// Objects whose lives are counted, made with the runtime's functions alone: what the bridge keeps and lets go
// shows exactly.
#pragma once

#include "objc/owner.h"

#include <cstddef>

namespace rollkeeper::test {

struct CountedObject : NSObject {
    static constexpr FixedString className = "CountedObject";

    // Registers the class at first use.
    static Owner<CountedObject> create();
    static std::size_t alive();

    NSUInteger retainCount() const { return send<CountedObject, "retainCount", NSUInteger>(*this); }
};

} // namespace rollkeeper::test
