#include "loader/unwind_frames.h"

#include "loader/mach_o_file.h"
#include "simulator/loader/test_library.h"

#include <gmock/gmock.h>

#include <cstring>
#include <span>

namespace simulator::macho {
namespace {

using testing::HasSubstr;

std::string faultOf(const std::vector<std::uint32_t>& info) {
    try {
        framesFromCompactUnwind(std::as_bytes(std::span(info)), 0);
        return "sound";
    } catch (const FormatError& error) {
        return error.what();
    }
}

const std::vector<std::uint32_t> sound = test::TestLibrary::unwindInfoOf(0x1000, 0x40, 0x04000001);
constexpr std::size_t page = 13;      // where the page's kind stands
constexpr std::size_t indexCount = 6; // in the header

TEST(UnwindFrames, describe_each_function_and_end_with_a_terminator) {
    const auto frames = framesFromCompactUnwind(std::as_bytes(std::span(sound)), 0x100000);
    std::uint64_t place[2] = {};
    std::uint32_t size = 0;
    std::memcpy(&size, frames.data(), sizeof size);
    std::memcpy(place, frames.data() + 4 + size + 8, sizeof place);
    EXPECT_EQ(place[0], 0x101000U);
    EXPECT_EQ(place[1], 0x40U);
    std::memcpy(&size, frames.data() + frames.size() - 4, sizeof size);
    EXPECT_EQ(size, 0U);
}

TEST(UnwindFrames, leave_out_what_dwarf_describes) {
    const auto withFrame = framesFromCompactUnwind(std::as_bytes(std::span(sound)), 0);
    const auto dwarf = test::TestLibrary::unwindInfoOf(0x1000, 0x40, 0x03000014);
    EXPECT_LT(framesFromCompactUnwind(std::as_bytes(std::span(dwarf)), 0).size(), withFrame.size());
}

TEST(UnwindFrames, refuse_damage_with_a_reason) {
    ASSERT_EQ(faultOf(sound), "sound");
    auto damaged = sound;
    damaged[page] = 9;
    EXPECT_THAT(faultOf(damaged), HasSubstr("unknown kind"));
    damaged = sound;
    damaged[page + 2] = 0x2000;
    EXPECT_THAT(faultOf(damaged), HasSubstr("not in order"));
    damaged = sound;
    damaged[indexCount] = 0xffffffff;
    EXPECT_NE(faultOf(damaged), "sound");
    for (std::size_t count = 0; count < sound.size(); ++count)
        EXPECT_THAT(faultOf({sound.begin(), sound.begin() + static_cast<std::ptrdiff_t>(count)}),
                    HasSubstr("truncated"));
}

} // namespace
} // namespace simulator::macho
