// Loses one of the calls by which the library leaves its own code: a message or a C function does nothing and
// gives zero, or tells its block of a failure. Memory management is never lost: retain, release, autorelease,
// blocks' copies.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace reliability {

enum class Loss { silent, refused };

struct Call {
    std::string name;
    bool canBeRefused = false; // takes a block that hears of failures
};

// From here on calls count, on any thread, and the `lost`-th is lost; 0 for none.
void countCalls(std::size_t lost = 0, Loss loss = Loss::silent);
// The calls since then, in their order.
std::vector<Call> stopCounting();

} // namespace reliability
