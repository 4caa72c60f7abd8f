#pragma once

#include <cstdint>

/// The Mach-O file format, as far as a dynamic library for arm64 uses it: the structures as they lie in the
/// file and the numbers in them.
namespace simulator::macho {

inline constexpr std::uint32_t magic64 = 0xfeedfacf;
inline constexpr std::uint32_t magic32 = 0xfeedface;
inline constexpr std::uint32_t magicUniversal = 0xbebafeca; // read as little-endian
inline constexpr std::uint32_t cpuTypeArm64 = 0x0100000c;
inline constexpr std::uint32_t cpuSubtypeArm64All = 0;
inline constexpr std::uint32_t cpuSubtypeMask = 0x00ffffff; // the high byte holds capabilities
inline constexpr std::uint32_t fileTypeDylib = 6;
inline constexpr std::uint32_t fileTypeBundle = 8;
inline constexpr std::uint64_t pageSize = 0x4000;

struct Header {
    std::uint32_t magic;
    std::uint32_t cpuType;
    std::uint32_t cpuSubtype;
    std::uint32_t fileType;
    std::uint32_t commandCount;
    std::uint32_t commandsSize;
    std::uint32_t flags;
    std::uint32_t reserved;
};

struct LoadCommand {
    std::uint32_t command;
    std::uint32_t size;
};

namespace command {
inline constexpr std::uint32_t segment64 = 0x19;
inline constexpr std::uint32_t loadDylib = 0xc;
inline constexpr std::uint32_t loadWeakDylib = 0x80000018;
inline constexpr std::uint32_t reexportDylib = 0x8000001f;
inline constexpr std::uint32_t lazyLoadDylib = 0x20;
inline constexpr std::uint32_t loadUpwardDylib = 0x80000023;
inline constexpr std::uint32_t dyldInfo = 0x22;
inline constexpr std::uint32_t dyldInfoOnly = 0x80000022;
inline constexpr std::uint32_t dyldChainedFixups = 0x80000034;
} // namespace command

struct SegmentCommand {
    LoadCommand header;
    char name[16];
    std::uint64_t address;
    std::uint64_t memorySize;
    std::uint64_t fileOffset;
    std::uint64_t fileSize;
    std::uint32_t maximumProtection;
    std::uint32_t initialProtection;
    std::uint32_t sectionCount;
    std::uint32_t flags;
};

struct Section {
    char name[16];
    char segmentName[16];
    std::uint64_t address;
    std::uint64_t size;
    std::uint32_t fileOffset;
    std::uint32_t alignment;
    std::uint32_t relocationOffset;
    std::uint32_t relocationCount;
    std::uint32_t flags;
    std::uint32_t reserved[3];
};

namespace section {
inline constexpr std::uint32_t typeMask = 0xff;
inline constexpr std::uint32_t initialiserPointers = 0x9;
inline constexpr std::uint32_t terminatorPointers = 0xa;
inline constexpr std::uint32_t initialiserOffsets = 0x16;
inline constexpr std::uint32_t threadLocalVariables = 0x13;
} // namespace section

namespace protection {
inline constexpr std::uint32_t read = 1;
inline constexpr std::uint32_t write = 2;
inline constexpr std::uint32_t execute = 4;
} // namespace protection

struct DylibCommand {
    LoadCommand header;
    std::uint32_t nameOffset;
    std::uint32_t timestamp;
    std::uint32_t currentVersion;
    std::uint32_t compatibilityVersion;
};

struct DyldInfoCommand {
    LoadCommand header;
    std::uint32_t rebaseOffset, rebaseSize;
    std::uint32_t bindOffset, bindSize;
    std::uint32_t weakBindOffset, weakBindSize;
    std::uint32_t lazyBindOffset, lazyBindSize;
    std::uint32_t exportOffset, exportSize;
};

inline constexpr std::uint8_t opcodeMask = 0xf0;
inline constexpr std::uint8_t immediateMask = 0x0f;
inline constexpr std::uint8_t fixupTypePointer = 1;

namespace rebase {
inline constexpr std::uint8_t done = 0x00;
inline constexpr std::uint8_t setType = 0x10;
inline constexpr std::uint8_t setSegmentAndOffset = 0x20;
inline constexpr std::uint8_t addAddress = 0x30;
inline constexpr std::uint8_t addAddressScaled = 0x40;
inline constexpr std::uint8_t doTimes = 0x50;
inline constexpr std::uint8_t doManyTimes = 0x60;
inline constexpr std::uint8_t doAddAddress = 0x70;
inline constexpr std::uint8_t doTimesSkipping = 0x80;
} // namespace rebase

namespace bind {
inline constexpr std::uint8_t done = 0x00;
inline constexpr std::uint8_t setOrdinal = 0x10;
inline constexpr std::uint8_t setBigOrdinal = 0x20;
inline constexpr std::uint8_t setSpecialOrdinal = 0x30;
inline constexpr std::uint8_t setSymbol = 0x40;
inline constexpr std::uint8_t setType = 0x50;
inline constexpr std::uint8_t setAddend = 0x60;
inline constexpr std::uint8_t setSegmentAndOffset = 0x70;
inline constexpr std::uint8_t addAddress = 0x80;
inline constexpr std::uint8_t doBind = 0x90;
inline constexpr std::uint8_t doBindAddAddress = 0xa0;
inline constexpr std::uint8_t doBindAddAddressScaled = 0xb0;
inline constexpr std::uint8_t doTimesSkipping = 0xc0;
inline constexpr std::uint8_t symbolIsWeakImport = 0x1;
} // namespace bind

} // namespace simulator::macho
