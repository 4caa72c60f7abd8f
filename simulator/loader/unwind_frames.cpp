#include "loader/mach_o.h"

#include <cstring>

namespace simulator::macho {
namespace {

// The layout of the section: a header, an index of pages, and pages that hold functions in order. (Libraries
// of many megabytes have a second kind of page.)
struct InfoHeader {
    std::uint32_t version, commonEncodingsOffset, commonEncodingsCount;
    std::uint32_t personalitiesOffset, personalitiesCount, indexOffset, indexCount;
};
struct IndexEntry {
    std::uint32_t functionOffset, pageOffset, languageDataOffset;
};
struct CompressedPage {
    std::uint32_t kind;
    std::uint16_t entriesOffset, entriesCount, encodingsOffset, encodingsCount;
};
struct Function {
    std::uint32_t offset, encoding;
};

// What an encoding says for arm64.
constexpr std::uint32_t modeMask = 0x0f000000;
constexpr std::uint32_t modeWithoutFrame = 0x02000000;
constexpr std::uint32_t modeWithFrame = 0x04000000;

// The registers by DWARF's numbers, and a pair of them for each bit of an encoding with a frame: they lie
// below the frame pointer, in this order.
constexpr std::uint8_t framePointer = 29;
constexpr std::uint8_t linkRegister = 30;
constexpr std::uint8_t stackPointer = 31;
struct SavedPair {
    std::uint32_t flag;
    std::uint8_t first;
};
constexpr SavedPair savedPairs[] = {
    {0x001, 19}, {0x002, 21}, {0x004, 23}, {0x008, 25}, {0x010, 27},
    {0x100, 72}, {0x200, 74}, {0x400, 76}, {0x800, 78},
};

// Call frame instructions.
constexpr std::uint8_t defineFrameAddress = 0x0c;
constexpr std::uint8_t registerAt = 0x80;
constexpr std::uint8_t registerAtExtended = 0x05;
constexpr std::uint8_t doNothing = 0x00;
constexpr std::uint8_t minusEight = 0x78; // as a signed LEB128 number

template <class Value> Value element(const char* array, std::size_t index = 0) {
    Value result;
    std::memcpy(&result, array + index * sizeof result, sizeof result);
    return result;
}

// All functions in order, and behind them one without an encoding that ends the last.
std::vector<Function> functionsOf(const char* info) {
    const auto header = element<InfoHeader>(info);
    const std::uint32_t common = header.commonEncodingsCount;
    std::vector<Function> result;
    for (std::uint32_t i = 0; i < header.indexCount; ++i) {
        const auto entry = element<IndexEntry>(info + header.indexOffset, i);
        const char* start = info + entry.pageOffset;
        const auto page = entry.pageOffset != 0 ? element<CompressedPage>(start) : CompressedPage{};
        for (std::uint32_t j = 0; j < page.entriesCount; ++j) {
            const auto packed = element<std::uint32_t>(start + page.entriesOffset, j);
            const std::uint32_t which = packed >> 24;
            const auto encoding = which < common
                                      ? element<std::uint32_t>(info + header.commonEncodingsOffset, which)
                                      : element<std::uint32_t>(start + page.encodingsOffset, which - common);
            result.push_back({entry.functionOffset + (packed & 0x00ffffff), encoding});
        }
        if (entry.pageOffset == 0) result.push_back({entry.functionOffset, 0});
    }
    return result;
}

using Bytes = std::vector<std::uint8_t>;

template <class Value> void append(Bytes& bytes, Value value) {
    const auto* start = reinterpret_cast<const std::uint8_t*>(&value);
    bytes.insert(bytes.end(), start, start + sizeof value);
}

// A record of call frame information: its size, padded to eight bytes, and its content.
void appendRecord(Bytes& records, Bytes content) {
    while ((content.size() + sizeof(std::uint32_t)) % 8 != 0)
        content.push_back(doNothing);
    append(records, static_cast<std::uint32_t>(content.size()));
    records.insert(records.end(), content.begin(), content.end());
}

Bytes instructionsWithFrame(std::uint32_t encoding) {
    // Counted in words downwards from the frame address, which lies two above where the frame pointer points.
    Bytes result{
        defineFrameAddress, framePointer, 16, registerAt | framePointer, 2, registerAt | linkRegister, 1};
    std::uint8_t place = 3;
    for (const SavedPair& pair : savedPairs) {
        if ((encoding & pair.flag) == 0) continue;
        for (const int next : {0, 1})
            result.insert(result.end(), {registerAtExtended, std::uint8_t(pair.first + next), place++});
    }
    return result;
}

Bytes instructionsWithoutFrame(std::uint32_t encoding) {
    const std::uint32_t stackSize = (encoding >> 12 & 0xfff) * 16;
    return {defineFrameAddress, stackPointer, std::uint8_t((stackSize & 0x7f) | 0x80),
            std::uint8_t((stackSize >> 7 & 0x7f) | 0x80), std::uint8_t(stackSize >> 14)};
}

} // namespace

std::vector<std::uint8_t> framesFromCompactUnwind(const char* unwindInfo, std::uint64_t image) {
    const std::vector<Function> functions = functionsOf(unwindInfo);
    Bytes frames;
    // The record that the others refer to begins with a zero.
    appendRecord(frames,
                 {0, 0, 0, 0, 1, 0, 1, minusEight, linkRegister, defineFrameAddress, stackPointer, 0});
    for (std::size_t i = 0; i + 1 < functions.size(); ++i) {
        const auto [offset, encoding] = functions[i];
        const std::uint32_t mode = encoding & modeMask;
        if (mode != modeWithFrame && mode != modeWithoutFrame) continue;
        Bytes content;
        append(content, static_cast<std::uint32_t>(frames.size() + sizeof(std::uint32_t)));
        append(content, image + offset);
        append(content, std::uint64_t{functions[i + 1].offset - offset});
        const Bytes instructions =
            mode == modeWithFrame ? instructionsWithFrame(encoding) : instructionsWithoutFrame(encoding);
        content.insert(content.end(), instructions.begin(), instructions.end());
        appendRecord(frames, content);
    }
    append(frames, std::uint32_t{0});
    return frames;
}

} // namespace simulator::macho
