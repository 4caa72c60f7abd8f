#include "loader/mach_o.h"

#include <cstring>

namespace simulator::macho {
namespace {

using Bytes = std::span<const std::byte>;

constexpr std::uint32_t magic64 = 0xfeedfacf;
constexpr std::uint32_t magicUniversal = 0xbebafeca; // read as little-endian
constexpr std::uint32_t cpuTypeArm64 = 0x0100000c;
constexpr std::uint32_t cpuSubtypeMask = 0x00ffffff; // the high byte holds capabilities
constexpr std::uint32_t fileTypeDylib = 6;
constexpr std::uint32_t fileTypeBundle = 8;
constexpr std::uint32_t sectionTypeMask = 0xff;
constexpr std::uint32_t sectionOfInitialisers = 0x9;

constexpr std::uint32_t loadDylib = 0xc;
constexpr std::uint32_t loadSegment = 0x19;
constexpr std::uint32_t loadWeakDylib = 0x80000018;
constexpr std::uint32_t loadFixups = 0x80000022;

// The structures as they lie in the file.
struct Header {
    std::uint32_t magic, cpuType, cpuSubtype, fileType, commandCount, commandsSize, flags, reserved;
};
struct LoadCommand {
    std::uint32_t command, size;
};
struct SegmentCommand {
    LoadCommand header;
    char name[16];
    std::uint64_t address, memorySize, fileOffset, fileSize;
    std::uint32_t maximumProtection, initialProtection, sectionCount, flags;
};
struct Section {
    char name[16], segmentName[16];
    std::uint64_t address, size;
    std::uint32_t fileOffset, alignment, relocationOffset, relocationCount, flags, reserved[3];
};
struct DylibCommand {
    LoadCommand header;
    std::uint32_t nameOffset, timestamp, currentVersion, compatibilityVersion;
};
struct DyldInfoCommand {
    LoadCommand header;
    std::uint32_t rebaseOffset, rebaseSize, bindOffset, bindSize, weakBindOffset, weakBindSize;
    std::uint32_t lazyBindOffset, lazyBindSize, exportOffset, exportSize;
};

Bytes part(Bytes bytes, std::uint64_t offset, std::uint64_t size) {
    if (offset > bytes.size() || size > bytes.size() - offset) throw FormatError("ends early");
    return bytes.subspan(offset, size);
}

template <class Structure> Structure read(Bytes bytes, std::uint64_t offset = 0) {
    Structure result;
    std::memcpy(&result, part(bytes, offset, sizeof result).data(), sizeof result);
    return result;
}

void checkHeader(const Header& header) {
    if (header.magic == magicUniversal)
        throw FormatError("is a universal file: take the arm64 library out of it first");
    if (header.cpuType != cpuTypeArm64 || (header.cpuSubtype & cpuSubtypeMask) != 0)
        throw FormatError("is not for every arm64 device");
    if (header.fileType != fileTypeDylib && header.fileType != fileTypeBundle)
        throw FormatError("is not a dynamic library (file type " + std::to_string(header.fileType) + ")");
}

void addSegment(File& file, Bytes bytes, Bytes command) {
    const auto segment = read<SegmentCommand>(command);
    file.segments.push_back({segment.address, segment.memorySize,
                             part(bytes, segment.fileOffset, segment.fileSize), segment.initialProtection});
    for (std::uint32_t i = 0; i < segment.sectionCount; ++i) {
        const auto section = read<Section>(command, sizeof segment + i * sizeof(Section));
        if ((section.flags & sectionTypeMask) == sectionOfInitialisers)
            file.initialisers = {section.address, section.size};
        if (std::strncmp(section.name, "__unwind_info", sizeof section.name) == 0)
            file.compactUnwind = {section.address, section.size};
    }
}

void setFixups(File& file, Bytes bytes, Bytes command) {
    const auto info = read<DyldInfoCommand>(command);
    if (info.weakBindSize != 0) throw FormatError("has weak definitions, which this loader does not bind");
    file.rebases = part(bytes, info.rebaseOffset, info.rebaseSize);
    file.binds = part(bytes, info.bindOffset, info.bindSize);
    file.lazyBinds = part(bytes, info.lazyBindOffset, info.lazyBindSize);
}

void addCommand(File& file, Bytes bytes, Bytes command) {
    const auto kind = read<LoadCommand>(command).command;
    if (kind == loadSegment) addSegment(file, bytes, command);
    if (kind == loadFixups) setFixups(file, bytes, command);
    if (kind != loadDylib && kind != loadWeakDylib) return;
    const Bytes name = command.subspan(read<DylibCommand>(command).nameOffset);
    file.dependencies.emplace_back(reinterpret_cast<const char*>(name.data()));
}

} // namespace

bool isMachO(Bytes bytes) {
    if (bytes.size() < sizeof(Header)) return false;
    const auto magic = read<Header>(bytes).magic;
    return magic == magic64 || magic == magicUniversal;
}

File parse(Bytes bytes) {
    const auto header = read<Header>(bytes);
    checkHeader(header);
    File file;
    std::uint64_t offset = sizeof header;
    for (std::uint32_t i = 0; i < header.commandCount; ++i) {
        const auto size = read<LoadCommand>(bytes, offset).size;
        addCommand(file, bytes, part(bytes, offset, size));
        offset += size;
    }
    if (file.rebases.empty())
        throw FormatError("has no classic fix-ups, the ones that every system can read");
    return file;
}

} // namespace simulator::macho
