// Every method that the library replaces or adds, in the order of installation.
#pragma once

#include "objc/message_ledger.h"
#include "objc/replacement.h"

#include <cstdint>
#include <span>

namespace rollkeeper {

// The processes that a row is for.
enum class HookGroup : std::uint8_t {
    camera,
    photos,
    messenger,
    whatsApp,
    imgur,
    springBoard,
    everywhere,          // every process but one: see startup.cpp
    everywhereFromIos10, // and only on iOS 10 or later
    albumsScreen,        // Photos from iOS 12 on, and only where it is there: see install.h
};

struct HookRow {
    HookGroup group;
    const char* className;
    MethodKind method;
    const char* selector;
    HookFunction function;
};

// All rows; those of one group stand together and in order.
std::span<const HookRow> hookTable();

} // namespace rollkeeper
