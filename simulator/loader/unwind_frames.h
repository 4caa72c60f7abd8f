#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace simulator::macho {

/// Translates the compact unwind information of an image (its section __unwind_info) into call frame
/// information as Linux reads it, so that exceptions of the host pass through the library's functions as they
/// do on a device. `unwindInfo` may come from a damaged file; `image` is the address in this process that its
/// function offsets count from. The result ends with the terminator that __register_frame looks for.
/// Functions that point to DWARF instead are left to the image's own section. Throws FormatError.
std::vector<std::byte> framesFromCompactUnwind(std::span<const std::byte> unwindInfo, std::uint64_t image);

} // namespace simulator::macho
