#include "loader/fixups.h"
#include "loader/mach_o_file.h"
#include "simulator/loader/test_library.h"

#include <gmock/gmock.h>

#include <functional>
#include <span>

namespace simulator::macho {
namespace {

using test::TestLibrary;
using testing::HasSubstr;

/// What is wrong with a library, or "sound".
std::string faultOf(std::span<const std::byte> bytes) {
    try {
        decodeFixups(parse(bytes));
        return "sound";
    } catch (const FormatError& error) {
        return error.what();
    }
}

std::string faultOf(const TestLibrary& library) { return faultOf(library.bytes()); }

TEST(MachOFile, reads_segments_dependencies_initialisers_and_unwind_information) {
    TestLibrary library;
    library.initialisers.size = 16;
    library.unwindInfo = TestLibrary::unwindInfoOf(TestLibrary::codeOffset, 40, 0x04000001);
    const auto bytes = library.bytes();
    const File file = parse(bytes);
    ASSERT_EQ(file.segments.size(), 2U);
    EXPECT_EQ(file.segments[1].name, "__DATA");
    EXPECT_EQ(file.segments[1].protection, protection::read | protection::write);
    ASSERT_EQ(file.dependencies.size(), 1U);
    EXPECT_EQ(file.dependencies[0].name, "/usr/lib/libSystem.B.dylib");
    EXPECT_FALSE(file.dependencies[0].weak);
    ASSERT_EQ(file.initialisers.size(), 1U);
    EXPECT_EQ(file.initialisers[0].size, 16U);
    ASSERT_TRUE(file.compactUnwind.has_value());
    EXPECT_EQ(file.compactUnwind->address, TestLibrary::unwindOffset);
}

TEST(MachOFile, decodes_rebases) {
    TestLibrary library;
    library.rebases = {rebase::setType | 1,
                       rebase::setSegmentAndOffset | 1,
                       8,
                       rebase::doTimes | 2,
                       rebase::addAddressScaled | 1,
                       rebase::doAddAddress,
                       8,
                       rebase::doTimesSkipping,
                       1,
                       0,
                       rebase::done};
    const auto bytes = library.bytes();
    std::vector<std::uint64_t> addresses;
    for (const Rebase& rebase : decodeFixups(parse(bytes)).rebases)
        addresses.push_back(rebase.address - TestLibrary::dataAddress);
    EXPECT_EQ(addresses, (std::vector<std::uint64_t>{8, 16, 32, 48}));
}

TEST(MachOFile, decodes_binds_and_lazy_binds) {
    TestLibrary library;
    library.binds = TestLibrary::bindOf("_malloc", 16);
    library.lazyBinds = TestLibrary::bindOf("_free", 24, bind::symbolIsWeakImport);
    const auto bytes = library.bytes();
    const std::vector<Bind> binds = decodeFixups(parse(bytes)).binds;
    ASSERT_EQ(binds.size(), 2U);
    EXPECT_EQ(binds[0].symbol, "_malloc");
    EXPECT_EQ(binds[0].library, "/usr/lib/libSystem.B.dylib");
    EXPECT_EQ(binds[0].address, TestLibrary::dataAddress + 16);
    EXPECT_FALSE(binds[0].optional);
    EXPECT_EQ(binds[1].symbol, "_free");
    EXPECT_TRUE(binds[1].optional);
}

struct Damage {
    const char* what;
    std::function<void(TestLibrary&)> apply;
    const char* fault;
};

class DamagedLibrary : public testing::TestWithParam<Damage> {};

TEST_P(DamagedLibrary, is_refused_with_a_reason) {
    TestLibrary library;
    ASSERT_EQ(faultOf(library), "sound");
    GetParam().apply(library);
    EXPECT_THAT(faultOf(library), HasSubstr(GetParam().fault));
}

const Damage damages[] = {
    {"x86_64", [](auto& l) { l.header.cpuType = 0x01000007; }, "not for arm64"},
    {"arm64e", [](auto& l) { l.header.cpuSubtype = 0x80000002; }, "CPU subtype 2"},
    {"program", [](auto& l) { l.header.fileType = 2; }, "not a dynamic library"},
    {"magic32", [](auto& l) { l.header.magic = magic32; }, "not a 64-bit"},
    {"universal", [](auto& l) { l.header.magic = magicUniversal; }, "universal"},
    {"many_commands", [](auto& l) { l.header.commandCount = 1000; }, "truncated"},
    {"long_commands", [](auto& l) { l.header.commandsSize = 0x7fffffff; }, "truncated"},
    {"empty_command", [](auto& l) { l.text.header.size -= sizeof l.text + sizeof(Section); },
     "impossible size"},
    {"unaligned", [](auto& l) { l.data.address += 0x1000; }, "16 KiB"},
    {"huge", [](auto& l) { l.data.memorySize = ~std::uint64_t{0}; }, "too large"},
    {"content_past_end", [](auto& l) { l.data.fileOffset = 0x100000; }, "truncated"},
    {"more_content_than_memory", [](auto& l) { l.data.memorySize = 8; }, "more content than memory"},
    {"overlap", [](auto& l) { l.data.address = 0, l.initialisers.address = 0; }, "overlapping"},
    {"section_outside", [](auto& l) { l.initialisers.address = 8 * pageSize; }, "outside its segment"},
    {"half_initialiser", [](auto& l) { l.initialisers.size = 12; }, "initialisers"},
    {"offset_initialisers", [](auto& l) { l.initialisers.flags = section::initialiserOffsets; }, "offsets"},
    {"thread_local_data", [](auto& l) { l.initialisers.flags = section::threadLocalVariables; },
     "thread-local"},
    {"chained_fixups", [](auto& l) { l.fixupCommand = command::dyldChainedFixups; }, "chained"},
    {"fixup_before_segment", [](auto& l) { l.rebases = {rebase::doTimes | 1}; }, "outside its segments"},
    {"fixup_past_segment",
     [](auto& l) { l.rebases = {rebase::setSegmentAndOffset | 1, 0xf9, 0x7f, rebase::doTimes | 1}; },
     "outside its segments"},
    {"fixup_in_no_segment", [](auto& l) { l.rebases = {rebase::setSegmentAndOffset | 9, 0}; },
     "does not exist"},
    {"unknown_rebase", [](auto& l) { l.rebases = {0xf0}; }, "unknown opcode"},
    {"cut_rebase", [](auto& l) { l.rebases = {rebase::addAddress}; }, "ends in the middle"},
    {"endless_rebase",
     [](auto& l) {
         // As often as 64 bits can say, going back by the eight bytes of the pointer each time.
         l.rebases = {rebase::setSegmentAndOffset | 1, 0, rebase::doTimesSkipping};
         l.rebases.insert(l.rebases.end(), {0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0x01});
         l.rebases.insert(l.rebases.end(), {0xf8, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0x01});
     },
     "more fix-ups than pointers"},
    {"endless_number", [](auto& l) { l.rebases.assign(16, 0xff), l.rebases[0] = rebase::addAddress; },
     "too long"},
    {"unknown_bind", [](auto& l) { l.binds = {0xd0}; }, "unknown opcode"},
    {"endless_name", [](auto& l) { l.binds = {bind::setSymbol, 'a', 'b'}; }, "ends in the middle"},
    {"bind_type", [](auto& l) { l.binds = {bind::setType | 2}; }, "not of a pointer"},
    {"bind_to_nowhere",
     [](auto& l) {
         l.binds = TestLibrary::bindOf("_malloc", 0);
         l.binds[0] = bind::setOrdinal | 7;
     },
     "_malloc to a library that it does not name"},
};

INSTANTIATE_TEST_SUITE_P(MachOFile, DamagedLibrary, testing::ValuesIn(damages),
                         [](const auto& info) { return std::string(info.param.what); });

TEST(MachOFile, refuses_every_shorter_prefix_of_a_library) {
    TestLibrary library;
    library.binds = TestLibrary::bindOf("_malloc", 16);
    const auto bytes = library.bytes();
    for (std::size_t size = 0; size < bytes.size(); size += size < 0x400 ? 1 : 0x3ff)
        EXPECT_NE(faultOf(std::span(bytes).first(size)), "sound") << size;
}

TEST(MachOFile, survives_any_single_changed_byte_in_its_commands) {
    TestLibrary library;
    library.binds = TestLibrary::bindOf("_malloc", 16);
    const auto sound = library.bytes();
    std::size_t refused = 0;
    for (std::size_t at = 0; at < 0x300; ++at)
        for (const auto mask : {0x01, 0x80, 0xff}) {
            auto bytes = sound;
            bytes[at] ^= std::byte(mask);
            refused += faultOf(bytes) != "sound" ? 1 : 0;
        }
    EXPECT_GT(refused, 0U);
}

} // namespace
} // namespace simulator::macho
