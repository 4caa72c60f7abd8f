#pragma once

#include "loader/mach_o_format.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace simulator::test {

/// Writes a small Mach-O library byte by byte, sound unless a test changes it: a text segment that begins
/// with the header, a data segment with a list of initialisers, and the fix-ups a test asks for.
class TestLibrary {
  public:
    static constexpr std::uint64_t dataAddress = macho::pageSize;
    static constexpr std::uint32_t dataOffset = macho::pageSize;
    static constexpr std::uint32_t codeOffset = 0x1000;
    static constexpr std::uint32_t unwindOffset = 0x2000;

    macho::Header header{
        macho::magic64, macho::cpuTypeArm64, macho::cpuSubtypeArm64All, macho::fileTypeDylib, 0, 0, 0x85, 0};
    macho::SegmentCommand text = segment("__TEXT", 0, 0, 5);
    macho::SegmentCommand data = segment("__DATA", dataAddress, dataOffset, 3);
    macho::Section initialisers =
        section("__mod_init_func", macho::section::initialiserPointers, dataAddress, 0);
    std::uint32_t fixupCommand = macho::command::dyldInfoOnly;
    std::vector<std::uint8_t> rebases, binds, lazyBinds;
    std::vector<std::uint32_t> code;
    /// The content of __unwind_info, in numbers.
    std::vector<std::uint32_t> unwindInfo;
    /// What the data segment holds, eight bytes each.
    std::vector<std::uint64_t> words = std::vector<std::uint64_t>(8);

    std::vector<std::byte> bytes() const {
        std::vector<std::byte> commands;
        macho::SegmentCommand textWithSection = text;
        textWithSection.header.size += sizeof(macho::Section);
        textWithSection.sectionCount = 1;
        append(commands, textWithSection);
        append(commands,
               section("__unwind_info", 0, unwindOffset, unwindInfo.size() * sizeof(std::uint32_t)));
        macho::SegmentCommand dataWithSection = data;
        dataWithSection.header.size += sizeof initialisers;
        dataWithSection.sectionCount = 1;
        append(commands, dataWithSection);
        append(commands, initialisers);
        append(commands, dylib());
        commands.resize(commands.size() + 32);
        std::memcpy(commands.data() + commands.size() - 32, "/usr/lib/libSystem.B.dylib", 26);

        const auto tables = static_cast<std::uint32_t>(2 * macho::pageSize);
        macho::DyldInfoCommand info{};
        info.header = {fixupCommand, sizeof info};
        std::uint32_t next = tables;
        const auto reserve = [&next](std::uint32_t& offset, std::uint32_t& size, std::size_t wanted) {
            offset = next;
            size = static_cast<std::uint32_t>(wanted);
            next += size;
        };
        reserve(info.rebaseOffset, info.rebaseSize, rebases.size());
        reserve(info.bindOffset, info.bindSize, binds.size());
        reserve(info.lazyBindOffset, info.lazyBindSize, lazyBinds.size());
        append(commands, info);

        macho::Header finished = header;
        finished.commandCount += 4;
        finished.commandsSize += static_cast<std::uint32_t>(commands.size());
        std::vector<std::byte> result;
        append(result, finished);
        result.insert(result.end(), commands.begin(), commands.end());
        result.resize(tables);
        place(result, codeOffset, code);
        place(result, unwindOffset, unwindInfo);
        place(result, dataOffset, words);
        for (const auto* table : {&rebases, &binds, &lazyBinds})
            for (const std::uint8_t byte : *table)
                result.push_back(std::byte{byte});
        return result;
    }

    static std::vector<std::uint8_t> bindOf(const std::string& symbol, std::uint8_t offset,
                                            std::uint8_t flags = 0) {
        std::vector<std::uint8_t> result{std::uint8_t(macho::bind::setOrdinal | 1),
                                         std::uint8_t(macho::bind::setSymbol | flags)};
        result.insert(result.end(), symbol.begin(), symbol.end());
        result.push_back(0);
        result.insert(result.end(), {std::uint8_t(macho::bind::setType | 1),
                                     std::uint8_t(macho::bind::setSegmentAndOffset | 1), offset,
                                     macho::bind::doBind, macho::bind::done});
        return result;
    }

    /// Unwind information of one function.
    static std::vector<std::uint32_t> unwindInfoOf(std::uint32_t offset, std::uint32_t size,
                                                   std::uint32_t encoding) {
        constexpr std::uint32_t index = 28;
        constexpr std::uint32_t page = 52;
        constexpr std::uint32_t oneEntryAfterHeader = 1U << 16 | 8;
        return {1,      index,
                0,      index,
                0,      index,
                2, // header
                offset, page,
                0,      offset + size,
                0,      0, // index: the page and its end
                2,      oneEntryAfterHeader,
                offset, encoding};
    }

  private:
    static macho::SegmentCommand segment(const char* name, std::uint64_t address, std::uint64_t offset,
                                         std::uint32_t protection) {
        macho::SegmentCommand result{};
        result.header = {macho::command::segment64, sizeof result};
        std::strncpy(result.name, name, sizeof result.name);
        result.address = address;
        result.fileOffset = offset;
        result.memorySize = result.fileSize = macho::pageSize;
        result.maximumProtection = result.initialProtection = protection;
        return result;
    }

    static macho::Section section(const char* name, std::uint32_t type, std::uint64_t address,
                                  std::uint64_t size) {
        macho::Section result{};
        std::strncpy(result.name, name, sizeof result.name);
        result.address = address;
        result.size = size;
        result.flags = type;
        return result;
    }

    static macho::DylibCommand dylib() {
        return {{macho::command::loadDylib, sizeof(macho::DylibCommand) + 32},
                sizeof(macho::DylibCommand),
                0,
                0,
                0};
    }

    template <class Value>
    static void place(std::vector<std::byte>& bytes, std::size_t offset, const std::vector<Value>& values) {
        if (!values.empty()) std::memcpy(bytes.data() + offset, values.data(), values.size() * sizeof(Value));
    }

    template <class Value> static void append(std::vector<std::byte>& bytes, const Value& value) {
        const auto* start = reinterpret_cast<const std::byte*>(&value);
        bytes.insert(bytes.end(), start, start + sizeof value);
    }
};

} // namespace simulator::test
