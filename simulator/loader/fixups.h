#pragma once

#include "loader/mach_o_file.h"

#include <cstdint>
#include <string>
#include <vector>

namespace simulator::macho {

/// A pointer of the image that must be moved by as much as the image itself.
struct Rebase {
    std::uint64_t address;
};

/// A pointer of the image that must be set to an imported symbol.
struct Bind {
    std::uint64_t address;
    std::string symbol; // with the leading underscore of C names
    std::string library;
    std::int64_t addend;
    bool optional; // null when nobody defines the symbol
};

struct Fixups {
    std::vector<Rebase> rebases;
    std::vector<Bind> binds; // the lazy ones, too: everything is bound at once
};

/// Runs the fix-up opcodes of a library. Every address is that of eight bytes inside a segment. Throws
/// FormatError.
Fixups decodeFixups(const File& file);

} // namespace simulator::macho
