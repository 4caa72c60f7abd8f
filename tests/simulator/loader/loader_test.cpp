#include "loader/loader.h"
#include "simulator/loader/test_library.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <span>
#include <unistd.h>

namespace simulator {
namespace {

using test::TestLibrary;
using testing::HasSubstr;

/// A file that lasts as long as the test.
class TemporaryFile {
  public:
    explicit TemporaryFile(std::span<const std::byte> content) {
        const int file = mkstemp(path_);
        EXPECT_GE(file, 0);
        EXPECT_EQ(write(file, content.data(), content.size()), static_cast<ssize_t>(content.size()));
        close(file);
    }
    ~TemporaryFile() { std::remove(path_); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const char* path() const { return path_; }

  private:
    char path_[32] = "/tmp/loader-test-XXXXXX";
};

std::string messageOf(const LoadResult& result) {
    const auto* error = std::get_if<LoadError>(&result);
    return error != nullptr ? error->message : "loaded";
}

TEST(Loader, names_a_file_that_is_missing) {
    EXPECT_THAT(messageOf(loadLibrary("/nonexistent/library")),
                HasSubstr("/nonexistent/library cannot be read"));
}

TEST(Loader, refuses_what_is_no_library) {
    EXPECT_THAT(messageOf(loadLibrary("/tmp")), HasSubstr("is not a file"));
    EXPECT_THAT(messageOf(loadLibrary(TemporaryFile({}).path())), HasSubstr("neither an ELF nor a Mach-O"));
    const auto text = std::as_bytes(std::span("plain text, long enough for a header"));
    EXPECT_THAT(messageOf(loadLibrary(TemporaryFile(text).path())), HasSubstr("neither an ELF nor a Mach-O"));
}

TEST(Loader, says_why_the_system_refuses_a_shared_object) {
    const auto damaged = std::as_bytes(std::span("\x7f"
                                                 "ELF and nothing else"));
    const TemporaryFile file(damaged);
    EXPECT_THAT(messageOf(loadLibrary(file.path())), HasSubstr(file.path()));
}

TEST(Loader, loads_a_shared_object) {
    Dl_info self{};
    ASSERT_NE(dladdr(reinterpret_cast<void*>(&loadLibrary), &self), 0);
    const LoadResult result = loadLibrary(self.dli_fname);
    ASSERT_TRUE(std::holds_alternative<LoadedLibrary>(result)) << messageOf(result);
    EXPECT_EQ(std::get<LoadedLibrary>(result).format, LoadedLibrary::Format::elf);
}

#ifdef __aarch64__

std::uint64_t wordAt(const LoadedLibrary& library, std::size_t index) {
    return reinterpret_cast<const std::uint64_t*>(library.segments[1].start)[index];
}

TEST(Loader, rebases_and_binds_a_mach_o_library) {
    TestLibrary library;
    library.words[1] = TestLibrary::dataAddress + 0x30;
    library.rebases = {macho::rebase::setSegmentAndOffset | 1, 8, macho::rebase::doTimes | 1};
    library.binds = TestLibrary::bindOf("_malloc", 16);
    library.lazyBinds = TestLibrary::bindOf("_nobody_defines_this", 24, macho::bind::symbolIsWeakImport);
    library.words[3] = 1;
    const LoadResult result = loadLibrary(TemporaryFile(library.bytes()).path());
    ASSERT_TRUE(std::holds_alternative<LoadedLibrary>(result)) << messageOf(result);
    const auto& loaded = std::get<LoadedLibrary>(result);
    EXPECT_EQ(loaded.format, LoadedLibrary::Format::machO);
    EXPECT_EQ(wordAt(loaded, 1), loaded.segments[1].start + 0x30);
    EXPECT_EQ(wordAt(loaded, 2), reinterpret_cast<std::uint64_t>(dlsym(RTLD_DEFAULT, "malloc")));
    EXPECT_EQ(wordAt(loaded, 3), 0U);

    const auto* inside = reinterpret_cast<const void*>(loaded.segments[1].start);
    ASSERT_NE(loadedLibraryContaining(inside), nullptr);
    EXPECT_EQ(loadedLibraryContaining(inside)->path, loaded.path);
    EXPECT_EQ(loadedLibraryContaining(&library), nullptr);
}

TEST(Loader, names_a_missing_symbol_and_its_library) {
    TestLibrary library;
    library.binds = TestLibrary::bindOf("_nobody_defines_this", 16);
    EXPECT_THAT(messageOf(loadLibrary(TemporaryFile(library.bytes()).path())),
                AllOf(HasSubstr("_nobody_defines_this"), HasSubstr("/usr/lib/libSystem.B.dylib")));
}

TEST(Loader, runs_initialisers_in_order) {
    TestLibrary library;
    // The first stores 1 in the third word of the data segment, three small pages on; the second doubles it.
    library.code = {
        0x52800020, // mov w0, #1
        0xf0000001, // adrp x1, 3 pages
        0xb9001020, // str w0, [x1, #16]
        0xd65f03c0, // ret
        0xf0000001, // adrp x1, 3 pages
        0xb9401020, // ldr w0, [x1, #16]
        0x531f7800, // lsl w0, w0, #1
        0xb9001020, // str w0, [x1, #16]
        0xd65f03c0, // ret
    };
    library.words[0] = TestLibrary::codeOffset;
    library.words[1] = TestLibrary::codeOffset + 16;
    library.initialisers.size = 16;
    library.rebases = {macho::rebase::setSegmentAndOffset | 1, 0, macho::rebase::doTimes | 2};
    const LoadResult result = loadLibrary(TemporaryFile(library.bytes()).path());
    ASSERT_TRUE(std::holds_alternative<LoadedLibrary>(result)) << messageOf(result);
    const auto& loaded = std::get<LoadedLibrary>(result);
    EXPECT_EQ(loaded.initialisersRun, 2U);
    EXPECT_EQ(wordAt(loaded, 2), 2U) << "stored 1, then doubled";
}

struct Thrown {};

[[noreturn]] void throwThrown() { throw Thrown{}; }

// A function with a frame that changes a saved register, then calls the second word of the data segment.
void giveThrowingInitialiser(TestLibrary& library) {
    library.code = {
        0xd10083ff, // sub sp, sp, #32
        0xa9004ff4, // stp x20, x19, [sp]
        0xa9017bfd, // stp x29, x30, [sp, #16]
        0x910043fd, // add x29, sp, #16
        0xd2800013, // mov x19, #0
        0xd2800014, // mov x20, #0
        0xf0000008, // adrp x8, 3 pages
        0xf9400508, // ldr x8, [x8, #8]
        0xd63f0100, // blr x8
        0xd4200000, // brk #0
    };
    library.words[0] = TestLibrary::codeOffset;
    library.words[1] = reinterpret_cast<std::uintptr_t>(&throwThrown);
    library.initialisers.size = 8;
    library.rebases = {macho::rebase::setSegmentAndOffset | 1, 0, macho::rebase::doTimes | 1};
    library.unwindInfo =
        TestLibrary::unwindInfoOf(TestLibrary::codeOffset, 40, 0x04000001); // a frame; x19 and x20 are saved
}

// An exception that finds no frame ends the process, and so does one that loses the registers saved in it.
TEST(Loader, lets_exceptions_pass_through_the_library) {
    TestLibrary library;
    giveThrowingInitialiser(library);
    const TemporaryFile file(library.bytes());
    bool caught = false;
    try {
        loadLibrary(file.path());
    } catch (const Thrown&) {
        caught = true;
    }
    EXPECT_TRUE(caught);
}

TEST(Loader, refuses_an_initialiser_outside_the_library) {
    TestLibrary library;
    library.initialisers.size = 8;
    library.words[0] = 0x4000;
    EXPECT_THAT(messageOf(loadLibrary(TemporaryFile(library.bytes()).path())),
                HasSubstr("an initialiser outside"));
}

#else

TEST(Loader, says_that_this_process_is_not_for_arm64) {
    const TestLibrary library;
    EXPECT_THAT(messageOf(loadLibrary(TemporaryFile(library.bytes()).path())),
                HasSubstr("this process is not"));
}

#endif

} // namespace
} // namespace simulator
