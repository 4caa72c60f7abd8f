#include "loader/mach_o.h"

namespace simulator::macho {
namespace {

/// Walks through a table of opcodes and, as they say, through the image. An opcode is the upper half of a
/// byte, its first operand, the immediate one, the lower half.
class Interpreter {
  public:
    using Operation = void (Interpreter::*)();

    explicit Interpreter(const File& file) : m_file(file) {}

    void run(std::span<const std::byte> table, std::span<const Operation> operations,
             const std::function<void(std::uint64_t)>& fix) {
        m_table = table;
        m_fix = fix;
        while (!m_table.empty()) {
            const std::uint8_t code = nextByte();
            m_immediate = code & 0x0f;
            if (code >> 4 >= static_cast<int>(operations.size())) refuse();
            (this->*operations[code >> 4])();
        }
    }
    const Symbol& symbol() const { return m_symbol; }

    void nothing() {}
    void refuse() { throw FormatError("has an unknown opcode in a table of fix-ups"); }
    void setLibrary() { m_symbol.library = m_file.dependencies.at(m_immediate - 1U); }
    void setLibraryByNumber() { m_symbol.library = m_file.dependencies.at(number() - 1); }
    void setSymbol() {
        m_symbol.optional = (m_immediate & 1) != 0;
        m_symbol.name.clear();
        while (const std::uint8_t next = nextByte())
            m_symbol.name += static_cast<char>(next);
    }
    void setAddend() { m_symbol.addend = static_cast<std::int64_t>(number(true)); }
    void setPlace() { m_address = m_file.segments.at(m_immediate).address + number(); }
    void advance() { m_address += number(); }
    void advanceScaled() { m_address += m_immediate * pointerSize; }
    void fixOnce() { fix(1, 0); }
    void fixImmediateTimes() { fix(m_immediate, 0); }
    void fixTimes() { fix(number(), 0); }
    void fixAndAdvance() { fix(1, number()); }
    void fixAndAdvanceScaled() { fix(1, m_immediate * pointerSize); }
    void fixTimesSkipping() {
        const std::uint64_t times = number();
        fix(times, number());
    }

  private:
    static constexpr std::uint64_t pointerSize = sizeof(std::uint64_t);

    std::uint8_t nextByte() {
        if (m_table.empty()) throw FormatError("has a table of fix-ups that ends in the middle");
        const auto byte = static_cast<std::uint8_t>(m_table.front());
        m_table = m_table.subspan(1);
        return byte;
    }

    // LEB128.
    std::uint64_t number(bool isSigned = false) {
        std::uint64_t result = 0;
        unsigned shift = 0;
        std::uint8_t next = 0x80;
        for (; (next & 0x80) != 0 && shift < 64; shift += 7) {
            next = nextByte();
            result |= std::uint64_t{next & 0x7fU} << shift;
        }
        const bool isNegative = isSigned && (next & 0x40) != 0 && shift < 64;
        return isNegative ? result | ~std::uint64_t{0} << shift : result;
    }

    // Distances wrap around: that is how the format goes backwards.
    void fix(std::uint64_t times, std::uint64_t skip) {
        for (; times > 0; --times, m_address += pointerSize + skip)
            m_fix(m_address);
    }

    const File& m_file;
    std::span<const std::byte> m_table;
    std::function<void(std::uint64_t)> m_fix;
    std::uint8_t m_immediate = 0;
    std::uint64_t m_address = 0;
    Symbol m_symbol;
};

// By opcode, from 0. The first one ends a table or, among lazy binds, a symbol; only padding follows its end.
constexpr Interpreter::Operation rebaseOperations[] = {
    &Interpreter::nothing,           &Interpreter::nothing, // the type, always a pointer
    &Interpreter::setPlace,          &Interpreter::advance,  &Interpreter::advanceScaled,
    &Interpreter::fixImmediateTimes, &Interpreter::fixTimes, &Interpreter::fixAndAdvance,
    &Interpreter::fixTimesSkipping,
};
constexpr Interpreter::Operation bindOperations[] = {
    &Interpreter::nothing,          &Interpreter::setLibrary,    &Interpreter::setLibraryByNumber,
    &Interpreter::refuse,                                  // libraries that are not named
    &Interpreter::setSymbol,        &Interpreter::nothing, // the type, always a pointer
    &Interpreter::setAddend,        &Interpreter::setPlace,      &Interpreter::advance,
    &Interpreter::fixOnce,          &Interpreter::fixAndAdvance, &Interpreter::fixAndAdvanceScaled,
    &Interpreter::fixTimesSkipping,
};

} // namespace

void runFixups(const File& file, const std::function<void(std::uint64_t)>& rebase,
               const std::function<void(std::uint64_t, const Symbol&)>& bind) {
    Interpreter(file).run(file.rebases, rebaseOperations, rebase);
    for (const auto table : {file.binds, file.lazyBinds}) {
        Interpreter binder(file);
        binder.run(table, bindOperations, [&](std::uint64_t address) { bind(address, binder.symbol()); });
    }
}

} // namespace simulator::macho
