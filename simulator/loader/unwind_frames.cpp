#include "loader/unwind_frames.h"

#include "loader/mach_o_file.h"

#include <cstring>

namespace simulator::macho {
namespace {

// The layout of the section: a header, an index of pages, and pages of two kinds that hold functions in
// order.
struct InfoHeader {
    std::uint32_t version;
    std::uint32_t commonEncodingsOffset, commonEncodingsCount;
    std::uint32_t personalitiesOffset, personalitiesCount;
    std::uint32_t indexOffset, indexCount;
};
struct IndexEntry {
    std::uint32_t functionOffset, pageOffset, languageDataOffset;
};
struct RegularPage {
    std::uint32_t kind;
    std::uint16_t entriesOffset, entriesCount;
};
struct CompressedPage {
    std::uint32_t kind;
    std::uint16_t entriesOffset, entriesCount, encodingsOffset, encodingsCount;
};
constexpr std::uint32_t regularPage = 2;
constexpr std::uint32_t compressedPage = 3;

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

struct Function {
    std::uint32_t offset;
    std::uint32_t encoding;
};

/// Reads the section, refusing what lies outside it.
class UnwindInfo {
  public:
    explicit UnwindInfo(std::span<const std::byte> bytes) : bytes_(bytes), header_(at<InfoHeader>(0)) {}

    /// All functions in order, and behind them one without an encoding that ends the last.
    std::vector<Function> functions() const {
        std::vector<Function> result;
        for (std::uint32_t i = 0; i < header_.indexCount; ++i) {
            const auto entry = element<IndexEntry>(header_.indexOffset, i);
            if (entry.pageOffset == 0) {
                result.push_back({entry.functionOffset, 0});
                continue;
            }
            const auto kind = at<std::uint32_t>(entry.pageOffset);
            if (kind == regularPage)
                readRegular(entry, result);
            else if (kind == compressedPage)
                readCompressed(entry, result);
            else
                throw FormatError("has a page of unwind information of an unknown kind");
        }
        return result;
    }

  private:
    template <class Value> Value at(std::uint64_t offset) const {
        Value result;
        if (offset > bytes_.size() || sizeof result > bytes_.size() - offset)
            throw FormatError("has truncated unwind information");
        std::memcpy(&result, bytes_.data() + offset, sizeof result);
        return result;
    }

    template <class Value> Value element(std::uint64_t offset, std::uint64_t index) const {
        return at<Value>(offset + index * sizeof(Value));
    }

    void readRegular(const IndexEntry& entry, std::vector<Function>& result) const {
        const auto page = at<RegularPage>(entry.pageOffset);
        for (std::uint32_t i = 0; i < page.entriesCount; ++i)
            result.push_back(element<Function>(entry.pageOffset + page.entriesOffset, i));
    }

    void readCompressed(const IndexEntry& entry, std::vector<Function>& result) const {
        const auto page = at<CompressedPage>(entry.pageOffset);
        for (std::uint32_t i = 0; i < page.entriesCount; ++i) {
            const auto packed = element<std::uint32_t>(entry.pageOffset + page.entriesOffset, i);
            const std::uint32_t which = packed >> 24;
            const bool isCommon = which < header_.commonEncodingsCount;
            const auto encoding = isCommon ? element<std::uint32_t>(header_.commonEncodingsOffset, which)
                                           : element<std::uint32_t>(entry.pageOffset + page.encodingsOffset,
                                                                    which - header_.commonEncodingsCount);
            result.push_back({entry.functionOffset + (packed & 0x00ffffff), encoding});
        }
    }

    std::span<const std::byte> bytes_;
    InfoHeader header_;
};

/// Writes call frame information. Every record is padded to eight bytes.
class FrameWriter {
  public:
    FrameWriter() {
        const std::size_t start = beginRecord();
        number<std::uint32_t>(0); // marks the record that the others refer to
        bytes({1, 0, 1, minusEight, linkRegister, defineFrameAddress, stackPointer, 0});
        endRecord(start);
    }

    void function(std::uint64_t address, std::uint64_t size, const std::vector<std::uint8_t>& instructions) {
        const std::size_t start = beginRecord();
        number(static_cast<std::uint32_t>(bytes_.size()));
        number(address);
        number(size);
        bytes(instructions);
        endRecord(start);
    }

    std::vector<std::byte> finish() {
        number<std::uint32_t>(0);
        return std::move(bytes_);
    }

  private:
    std::size_t beginRecord() {
        number<std::uint32_t>(0);
        return bytes_.size();
    }

    void endRecord(std::size_t start) {
        while ((bytes_.size() - start + sizeof(std::uint32_t)) % 8 != 0)
            bytes({doNothing});
        const auto size = static_cast<std::uint32_t>(bytes_.size() - start);
        std::memcpy(bytes_.data() + start - sizeof size, &size, sizeof size);
    }

    template <class Value> void number(Value value) {
        const auto* start = reinterpret_cast<const std::byte*>(&value);
        bytes_.insert(bytes_.end(), start, start + sizeof value);
    }

    void bytes(const std::vector<std::uint8_t>& values) {
        for (const std::uint8_t value : values)
            bytes_.push_back(std::byte{value});
    }

    std::vector<std::byte> bytes_;
};

std::vector<std::uint8_t> instructionsWithFrame(std::uint32_t encoding) {
    // Counted in words downwards from the frame address, which lies two above where the frame pointer points.
    std::vector<std::uint8_t> result{
        defineFrameAddress, framePointer, 16, registerAt | framePointer, 2, registerAt | linkRegister, 1};
    std::uint8_t place = 3;
    for (const SavedPair& pair : savedPairs) {
        if ((encoding & pair.flag) == 0) continue;
        for (const int next : {0, 1})
            result.insert(result.end(), {registerAtExtended, std::uint8_t(pair.first + next), place++});
    }
    return result;
}

std::vector<std::uint8_t> instructionsWithoutFrame(std::uint32_t encoding) {
    const std::uint32_t stackSize = (encoding >> 12 & 0xfff) * 16;
    return {defineFrameAddress, stackPointer, std::uint8_t((stackSize & 0x7f) | 0x80),
            std::uint8_t((stackSize >> 7 & 0x7f) | 0x80), std::uint8_t(stackSize >> 14)};
}

} // namespace

std::vector<std::byte> framesFromCompactUnwind(std::span<const std::byte> unwindInfo, std::uint64_t image) {
    const std::vector<Function> functions = UnwindInfo(unwindInfo).functions();
    FrameWriter writer;
    for (std::size_t i = 0; i + 1 < functions.size(); ++i) {
        const auto [offset, encoding] = functions[i];
        if (functions[i + 1].offset < offset)
            throw FormatError("has unwind information that is not in order");
        const std::uint64_t size = functions[i + 1].offset - offset;
        const std::uint32_t mode = encoding & modeMask;
        if (mode == modeWithFrame)
            writer.function(image + offset, size, instructionsWithFrame(encoding));
        else if (mode == modeWithoutFrame)
            writer.function(image + offset, size, instructionsWithoutFrame(encoding));
    }
    return writer.finish();
}

} // namespace simulator::macho
