#include "loader/fixups.h"

#include <algorithm>

namespace simulator::macho {
namespace {

constexpr std::uint64_t pointerSize = sizeof(std::uint64_t);

/// Walks through opcodes and their operands.
class Reader {
  public:
    explicit Reader(std::span<const std::byte> bytes) : bytes_(bytes) {}

    bool atEnd() const { return position_ == bytes_.size(); }

    std::uint8_t byte() {
        if (atEnd()) throw FormatError("has a table of fix-ups that ends in the middle");
        return static_cast<std::uint8_t>(bytes_[position_++]);
    }

    std::uint64_t unsignedNumber() {
        std::uint64_t result = 0;
        for (unsigned shift = 0; shift < 64; shift += 7) {
            const std::uint8_t next = byte();
            result |= std::uint64_t{next & 0x7fU} << shift;
            if ((next & 0x80) == 0) return result;
        }
        throw FormatError("has a number in its table of fix-ups that is too long");
    }

    std::int64_t signedNumber() {
        std::uint64_t result = 0;
        for (unsigned shift = 0; shift < 64; shift += 7) {
            const std::uint8_t next = byte();
            result |= std::uint64_t{next & 0x7fU} << shift;
            if ((next & 0x80) != 0) continue;
            const bool negative = (next & 0x40) != 0 && shift + 7 < 64;
            return static_cast<std::int64_t>(negative ? result | (~std::uint64_t{0} << (shift + 7)) : result);
        }
        throw FormatError("has a number in its table of fix-ups that is too long");
    }

    std::string text() {
        std::string result;
        while (const std::uint8_t next = byte())
            result += static_cast<char>(next);
        return result;
    }

  private:
    std::span<const std::byte> bytes_;
    std::size_t position_ = 0;
};

/// The place that the opcodes move through the image.
class Cursor {
  public:
    explicit Cursor(const File& file) : file_(file) {}

    void set(std::uint8_t segment, std::uint64_t offset) {
        if (segment >= file_.segments.size())
            throw FormatError("has a fix-up in a segment that does not exist");
        segment_ = &file_.segments[segment];
        offset_ = offset;
    }

    // Offsets wrap around: that is how the format goes backwards.
    void advance(std::uint64_t distance) { offset_ += distance; }

    std::uint64_t address() const {
        if (segment_ == nullptr || segment_->memorySize < pointerSize ||
            offset_ > segment_->memorySize - pointerSize)
            throw FormatError("has a fix-up outside its segments");
        return segment_->address + offset_;
    }

  private:
    const File& file_;
    const Segment* segment_ = nullptr;
    std::uint64_t offset_ = 0;
};

// Opcodes can say "again" any number of times; a sound library fixes each of its pointers a few times at
// most.
void requireRoom(const File& file, std::size_t count) {
    const Segment& last = file.segments.back();
    if (count >= (last.address + last.memorySize - file.segments.front().address) / pointerSize)
        throw FormatError("has more fix-ups than pointers");
}

void requirePointerType(std::uint8_t type) {
    if (type != fixupTypePointer) throw FormatError("has a fix-up that is not of a pointer");
}

class RebaseDecoder {
  public:
    RebaseDecoder(const File& file, std::vector<Rebase>& result)
        : file_(file), reader_(file.fixups.rebase), cursor_(file), result_(result) {}

    void run() {
        while (!reader_.atEnd() && step(reader_.byte())) {
        }
    }

  private:
    bool step(std::uint8_t code) {
        const std::uint8_t immediate = code & immediateMask;
        switch (code & opcodeMask) {
        case rebase::done:
            return false;
        case rebase::setType:
            requirePointerType(immediate);
            return true;
        case rebase::setSegmentAndOffset:
            cursor_.set(immediate, reader_.unsignedNumber());
            return true;
        case rebase::addAddress:
            cursor_.advance(reader_.unsignedNumber());
            return true;
        case rebase::addAddressScaled:
            cursor_.advance(immediate * pointerSize);
            return true;
        case rebase::doTimes:
            return repeat(immediate, 0);
        case rebase::doManyTimes:
            return repeat(reader_.unsignedNumber(), 0);
        case rebase::doAddAddress:
            return repeat(1, reader_.unsignedNumber());
        case rebase::doTimesSkipping: {
            const std::uint64_t times = reader_.unsignedNumber();
            return repeat(times, reader_.unsignedNumber());
        }
        default:
            throw FormatError("has an unknown opcode in its table of rebases");
        }
    }

    bool repeat(std::uint64_t times, std::uint64_t skip) {
        for (; times > 0; --times) {
            requireRoom(file_, result_.size());
            result_.push_back({cursor_.address()});
            cursor_.advance(pointerSize + skip);
        }
        return true;
    }

    const File& file_;
    Reader reader_;
    Cursor cursor_;
    std::vector<Rebase>& result_;
};

enum class BindTable { eager, weak, lazy };

class BindDecoder {
  public:
    BindDecoder(const File& file, std::span<const std::byte> table, BindTable kind, std::vector<Bind>& result)
        : file_(file), kind_(kind), reader_(table), cursor_(file), result_(result) {}

    void run() {
        while (!reader_.atEnd() && step(reader_.byte())) {
        }
    }

  private:
    bool step(std::uint8_t code) {
        const std::uint8_t immediate = code & immediateMask;
        switch (code & opcodeMask) {
        case bind::done:
            return kind_ == BindTable::lazy; // there it only separates one symbol from the next
        case bind::setOrdinal:
            ordinal_ = immediate;
            return true;
        case bind::setBigOrdinal:
            ordinal_ = reader_.unsignedNumber();
            return true;
        case bind::setSpecialOrdinal:
            ordinal_ = 0;
            return true;
        case bind::setSymbol:
            optional_ = (immediate & bind::symbolIsWeakImport) != 0;
            symbol_ = reader_.text();
            return true;
        case bind::setType:
            requirePointerType(immediate);
            return true;
        case bind::setAddend:
            addend_ = reader_.signedNumber();
            return true;
        case bind::setSegmentAndOffset:
            cursor_.set(immediate, reader_.unsignedNumber());
            return true;
        case bind::addAddress:
            cursor_.advance(reader_.unsignedNumber());
            return true;
        case bind::doBind:
            return repeat(1, 0);
        case bind::doBindAddAddress:
            return repeat(1, reader_.unsignedNumber());
        case bind::doBindAddAddressScaled:
            return repeat(1, immediate * pointerSize);
        case bind::doTimesSkipping: {
            const std::uint64_t times = reader_.unsignedNumber();
            return repeat(times, reader_.unsignedNumber());
        }
        default:
            throw FormatError("has an unknown opcode in its table of binds");
        }
    }

    bool repeat(std::uint64_t times, std::uint64_t skip) {
        for (; times > 0; --times) {
            requireRoom(file_, result_.size());
            result_.push_back({cursor_.address(), symbol_, libraryName(), addend_, optional_});
            cursor_.advance(pointerSize + skip);
        }
        return true;
    }

    std::string libraryName() const {
        if (kind_ == BindTable::weak || ordinal_ == 0) return "any library";
        if (ordinal_ > file_.dependencies.size())
            throw FormatError("binds " + symbol_ + " to a library that it does not name");
        return file_.dependencies[ordinal_ - 1].name;
    }

    const File& file_;
    BindTable kind_;
    Reader reader_;
    Cursor cursor_;
    std::vector<Bind>& result_;
    std::uint64_t ordinal_ = 0;
    std::string symbol_;
    std::int64_t addend_ = 0;
    bool optional_ = false;
};

} // namespace

Fixups decodeFixups(const File& file) {
    Fixups result;
    RebaseDecoder(file, result.rebases).run();
    BindDecoder(file, file.fixups.bind, BindTable::eager, result.binds).run();
    BindDecoder(file, file.fixups.lazyBind, BindTable::lazy, result.binds).run();
    BindDecoder(file, file.fixups.weakBind, BindTable::weak, result.binds).run();
    return result;
}

} // namespace simulator::macho
