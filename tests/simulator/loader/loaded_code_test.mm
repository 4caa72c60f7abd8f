// Proves that the code under test is the library's own, as it lies in its file, and that its processor ran
// it.
#include "loader/loader.h"
#include "support/environment.h"
#include "support/library_fixture.h"

#include <dlfcn.h>
#include <fstream>
#include <iterator>
#include <sys/utsname.h>

namespace simulator::test {
namespace {

using LoadedCode = LibraryTest;

#ifdef __aarch64__

std::vector<char> contentOf(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST_F(LoadedCode, is_the_phones_file_run_by_an_arm64_processor) {
    utsname system{};
    ASSERT_EQ(uname(&system), 0);
    EXPECT_STREQ(system.machine, "aarch64");

    start(host::photos);
    const std::vector<char> file = contentOf(libraryFile());
    ASSERT_FALSE(host().installations().empty());
    for (const Installation& installation : host().installations()) {
        const auto* code = static_cast<const char*>(installation.implementation);
        const LoadedLibrary* image = loadedLibraryContaining(code);
        ASSERT_NE(image, nullptr) << installation.selector;
        EXPECT_EQ(image->format, LoadedLibrary::Format::machO);
        EXPECT_EQ(image->path, libraryFile());
        EXPECT_EQ(image->initialisersRun, 2U);

        const LoadedSegment& text = image->segments.front();
        ASSERT_EQ(text.name, "__TEXT");
        const auto offset = reinterpret_cast<std::uintptr_t>(code) - text.start;
        ASSERT_LT(offset + 16, text.size) << installation.selector;
        EXPECT_EQ(std::string(code, 16), std::string(file.data() + offset, 16)) << installation.selector;
    }
}

#else

TEST_F(LoadedCode, is_the_shared_objects) {
    start(host::photos);
    ASSERT_FALSE(host().installations().empty());
    for (const Installation& installation : host().installations()) {
        Dl_info image{};
        ASSERT_NE(dladdr(installation.implementation, &image), 0) << installation.selector;
        EXPECT_EQ(std::filesystem::canonical(image.dli_fname), std::filesystem::canonical(libraryFile()));
    }
}

#endif

} // namespace
} // namespace simulator::test
