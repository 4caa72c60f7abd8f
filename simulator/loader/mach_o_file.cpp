#include "loader/mach_o_file.h"

#include <algorithm>
#include <cstring>

namespace simulator::macho {
namespace {

using Bytes = std::span<const std::byte>;

// Bounds what a damaged file can make us allocate; a library is far smaller.
constexpr std::uint64_t largestImage = std::uint64_t{1} << 30;

Bytes part(Bytes bytes, std::uint64_t offset, std::uint64_t size, const char* what) {
    if (offset > bytes.size() || size > bytes.size() - offset)
        throw FormatError(std::string("is truncated: its ") + what + " reaches past the end of the file");
    return bytes.subspan(offset, size);
}

template <class Structure> Structure read(Bytes bytes, std::uint64_t offset, const char* what) {
    Structure result;
    std::memcpy(&result, part(bytes, offset, sizeof result, what).data(), sizeof result);
    return result;
}

std::string fixedName(const char (&name)[16]) { return {name, strnlen(name, sizeof name)}; }

void checkHeader(const Header& header) {
    if (header.cpuType != cpuTypeArm64)
        throw FormatError("is not for arm64 (CPU type " + std::to_string(header.cpuType) + ")");
    if ((header.cpuSubtype & cpuSubtypeMask) != cpuSubtypeArm64All)
        throw FormatError("is for an arm64 variant that not every device has (CPU subtype " +
                          std::to_string(header.cpuSubtype & cpuSubtypeMask) + ")");
    if (header.fileType != fileTypeDylib && header.fileType != fileTypeBundle)
        throw FormatError("is not a dynamic library (file type " + std::to_string(header.fileType) + ")");
}

void checkSegment(const SegmentCommand& segment, const std::string& name) {
    if (segment.address % pageSize != 0)
        throw FormatError("has a segment that does not start on a 16 KiB page: " + name);
    if (segment.memorySize > largestImage || segment.address > largestImage)
        throw FormatError("has a segment that is too large: " + name);
    if (segment.fileSize > segment.memorySize)
        throw FormatError("has a segment with more content than memory: " + name);
}

void addSection(File& file, const Section& section) {
    const Segment& segment = file.segments.back();
    const std::string name = fixedName(section.name);
    if (section.address < segment.address || section.size > segment.memorySize ||
        section.address - segment.address > segment.memorySize - section.size)
        throw FormatError("has a section outside its segment: " + name);
    switch (section.flags & section::typeMask) {
    case section::initialiserPointers:
        if (section.size % sizeof(std::uint64_t) != 0) throw FormatError("has a broken list of initialisers");
        file.initialisers.push_back({section.address, section.size});
        break;
    case section::initialiserOffsets:
        throw FormatError("lists its initialisers as offsets, which systems before iOS 13.4 cannot read");
    case section::threadLocalVariables:
        throw FormatError("has thread-local variables, which this loader does not provide");
    default:
        break;
    }
    if (name == "__eh_frame" && section.size > 0) file.unwindFrames = Range{section.address, section.size};
    if (name == "__unwind_info" && section.size > 0)
        file.compactUnwind = Range{section.address, section.size};
}

void addSegment(File& file, Bytes bytes, Bytes command) {
    const auto segment = read<SegmentCommand>(command, 0, "segment command");
    const std::string name = fixedName(segment.name);
    checkSegment(segment, name);
    file.segments.push_back({name, segment.address, segment.memorySize,
                             part(bytes, segment.fileOffset, segment.fileSize, "segment content"),
                             segment.initialProtection});
    for (std::uint32_t i = 0; i < segment.sectionCount; ++i)
        addSection(file, read<Section>(command, sizeof segment + std::uint64_t{i} * sizeof(Section),
                                       "section list"));
}

void addDependency(File& file, Bytes command, bool weak) {
    const auto dylib = read<DylibCommand>(command, 0, "library command");
    const Bytes name =
        part(command, dylib.nameOffset,
             command.size() - std::min<std::size_t>(dylib.nameOffset, command.size()), "library name");
    const auto* text = reinterpret_cast<const char*>(name.data());
    file.dependencies.push_back({std::string(text, strnlen(text, name.size())), weak});
}

void setFixups(File& file, Bytes bytes, Bytes command) {
    const auto info = read<DyldInfoCommand>(command, 0, "table of fix-ups");
    file.fixups = {
        part(bytes, info.rebaseOffset, info.rebaseSize, "table of rebases"),
        part(bytes, info.bindOffset, info.bindSize, "table of binds"),
        part(bytes, info.weakBindOffset, info.weakBindSize, "table of weak binds"),
        part(bytes, info.lazyBindOffset, info.lazyBindSize, "table of lazy binds"),
    };
}

void addCommand(File& file, Bytes bytes, std::uint32_t kind, Bytes command) {
    switch (kind) {
    case command::segment64:
        return addSegment(file, bytes, command);
    case command::loadDylib:
    case command::reexportDylib:
    case command::lazyLoadDylib:
    case command::loadUpwardDylib:
        return addDependency(file, command, false);
    case command::loadWeakDylib:
        return addDependency(file, command, true);
    case command::dyldInfo:
    case command::dyldInfoOnly:
        return setFixups(file, bytes, command);
    case command::dyldChainedFixups:
        throw FormatError("has chained fix-ups, which systems before iOS 13.4 cannot read");
    default:
        return;
    }
}

void checkLayout(const File& file) {
    if (file.segments.empty()) throw FormatError("has no segments");
    for (std::size_t i = 1; i < file.segments.size(); ++i) {
        const Segment& before = file.segments[i - 1];
        if (file.segments[i].address < before.address + before.memorySize)
            throw FormatError("has overlapping segments: " + before.name + " and " + file.segments[i].name);
    }
}

} // namespace

bool isMachO(Bytes bytes) {
    std::uint32_t magic = 0;
    if (bytes.size() < sizeof magic) return false;
    std::memcpy(&magic, bytes.data(), sizeof magic);
    return magic == magic64 || magic == magic32 || magic == magicUniversal;
}

File parse(Bytes bytes) {
    const auto header = read<Header>(bytes, 0, "header");
    if (header.magic == magicUniversal)
        throw FormatError("is a universal file: take the arm64 library out of it first");
    if (header.magic != magic64) throw FormatError("is not a 64-bit Mach-O file");
    checkHeader(header);

    File file;
    const Bytes commands = part(bytes, sizeof header, header.commandsSize, "list of load commands");
    std::uint64_t offset = 0;
    for (std::uint32_t i = 0; i < header.commandCount; ++i) {
        const auto command = read<LoadCommand>(commands, offset, "list of load commands");
        if (command.size < sizeof command) throw FormatError("has a load command of impossible size");
        addCommand(file, bytes, command.command,
                   part(commands, offset, command.size, "list of load commands"));
        offset += command.size;
    }
    checkLayout(file);
    return file;
}

} // namespace simulator::macho
