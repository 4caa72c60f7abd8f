// The library under test as the loader brings it into a process: the phone's own file under emulation, else a
// shared object.
#include "device/exceptions.h"
#include "loader/loader.h"
#include "support/environment.h"
#include "support/library_fixture.h"

#include <dlfcn.h>
#include <gmock/gmock.h>
#include <objc/runtime.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <set>

namespace simulator::test {
namespace {

using testing::HasSubstr;

#ifdef __aarch64__
constexpr bool processIsArm64 = true;
#else
constexpr bool processIsArm64 = false;
#endif

std::string contentOf(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class Loader : public LibraryTest {
  protected:
    // Why a file of this content is not loaded; it is to be named, and the rest of the sentence is returned.
    std::string faultOf(const std::string& content) {
        device().writeFile("/var/tmp/library", content);
        const std::string path = device().root() / "var/tmp/library";
        const auto fault = standardExceptionOf([&] { loadLibrary(path); });
        if (!fault) return "is loaded";
        EXPECT_THAT(*fault, testing::StartsWith(path));
        return fault->substr(path.size());
    }
};

// That its initialisers have run and its imports are bound is what installed the hooks.
TEST_F(Loader, runs_the_librarys_own_code) {
    const std::string file = contentOf(libraryFile());
    for (const Installation& installation : start(host::photos).installations()) {
        const auto* code = static_cast<const char*>(installation.implementation);
        const LoadedLibrary* image = loadedLibraryContaining(code);
        ASSERT_EQ(image != nullptr, processIsArm64) << installation.selector;
        if (image == nullptr) {
            Dl_info info{};
            ASSERT_NE(dladdr(code, &info), 0) << installation.selector;
            EXPECT_EQ(std::filesystem::canonical(info.dli_fname), std::filesystem::canonical(libraryFile()));
        } else {
            EXPECT_EQ(image->path, libraryFile());
            const auto offset = reinterpret_cast<std::uintptr_t>(code) - image->start;
            EXPECT_EQ(std::string(code, 16), file.substr(offset, 16)) << installation.selector;
        }
    }
    EXPECT_GT(host().installations().size(), 50U);
    EXPECT_EQ(loadedLibraryContaining(&file), nullptr);
}

[[noreturn]] void throwIt() {
    [NSException raise:@"Host" format:@"thrown by the host"];
    __builtin_unreachable();
}

// Whether an exception that a method throws arrives here, with a register that functions save for their
// callers as it was. Without a frame to pass through, it ends the process.
bool passesThrough(void (*method)(id, SEL, BOOL, BOOL), SEL selector) {
    std::uint64_t kept = 42;
    @try {
#ifdef __aarch64__
        asm volatile("mov x19, %0" : : "r"(kept) : "x19");
#endif
        method(nil, selector, YES, YES);
    } @catch (NSException*) {
#ifdef __aarch64__
        asm volatile("mov %0, x19" : "=r"(kept));
#endif
        return kept == 42;
    }
    return false;
}

TEST_F(Loader, lets_exceptions_of_the_host_pass_through_the_library) {
    const std::set<std::string> callTheOriginalFirst = {"viewWillAppear:", "viewDidLayoutSubviews",
                                                        "reloadContentView",
                                                        "setEditing:animated:", "layoutSubviews"};
    int thrown = 0;
    for (const Installation& installation : start(host::photos).installations()) {
        if (!installation.installed || !callTheOriginalFirst.contains(installation.selector)) continue;
        *static_cast<IMP*>(const_cast<void*>(installation.slot)) = reinterpret_cast<IMP>(&throwIt);
        const auto replacement =
            reinterpret_cast<void (*)(id, SEL, BOOL, BOOL)>(const_cast<void*>(installation.implementation));
        EXPECT_TRUE(passesThrough(replacement, sel_registerName(installation.selector.c_str())))
            << installation.className << " " << installation.selector;
        ++thrown;
    }
    EXPECT_GT(thrown, 5);
}

TEST_F(Loader, names_a_file_that_is_no_library) {
    EXPECT_THAT(faultOf(""), HasSubstr("too short"));
    EXPECT_THAT(faultOf(std::string(4096, 'x')), HasSubstr("invalid ELF header"));
    device().remove("/var/tmp/library");
    for (const std::string path : {"/nonexistent/library", "/tmp"})
        EXPECT_EQ(standardExceptionOf([&] { loadLibrary(path); }), path + " cannot be read");
}

std::string with(std::string file, std::size_t offset, std::uint32_t number) {
    std::memcpy(file.data() + offset, &number, sizeof number);
    return file;
}

std::string withoutSymbol(std::string file, const std::string& symbol) {
    for (auto at = file.find(symbol); at != std::string::npos; at = file.find(symbol))
        file[at + 1] = '-';
    return file;
}

TEST_F(Loader, says_what_is_wrong_with_a_mach_o_file) {
    if (!processIsArm64) {
        EXPECT_THAT(faultOf(with(std::string(64, '\0'), 0, 0xfeedfacf)), HasSubstr("is for arm64"));
        return;
    }
    const std::string file = contentOf(libraryFile());
    const std::pair<std::string, const char*> faults[] = {
        {with(file, 0, 0xbebafeca), "is a universal file"},
        {with(file, 4, 0x01000007), "is not for every arm64 device"},
        {with(file, 8, 2), "is not for every arm64 device"},
        {with(file, 12, 2), "is not a dynamic library (file type 2)"},
        {with(file, 16, 1), "has no classic fix-ups"},
        {file.substr(0, 100), "ends early"},
        {file.substr(0, file.size() / 2), "ends early"},
        {withoutSymbol(file, "_objc_getClass"), "needs _-bjc_getClass from /usr/lib/libobjc.A.dylib"},
    };
    for (const auto& [content, fault] : faults)
        EXPECT_THAT(faultOf(content), HasSubstr(fault));
}

} // namespace
} // namespace simulator::test
