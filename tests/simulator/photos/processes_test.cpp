// One library, several processes: changes are seen by all, and what breaks off in the middle never happened.
// A connection must not be carried over a fork, so every process opens the library for itself, after the
// fork.
#include "photolibrary/library.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace simulator::test {

namespace {

class Processes : public testing::Test {
  protected:
    Processes() { std::filesystem::create_directory(m_folder); }
    ~Processes() override { std::filesystem::remove_all(m_folder); }

    std::filesystem::path file(const char* name = "photos.sqlite") const { return m_folder / name; }

  private:
    const std::filesystem::path m_folder =
        std::filesystem::temp_directory_path() / ("photos-" + std::to_string(getpid()));
};

pid_t startChild(const std::function<bool()>& work) {
    const pid_t child = fork();
    if (child != 0) return child;
    try {
        _exit(work() ? EXIT_SUCCESS : EXIT_FAILURE);
    } catch (const std::exception&) {
        _exit(EXIT_FAILURE);
    }
}

/// The signal that ended the child, or its exit status.
int endOf(pid_t child) {
    int status = -1;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status) ? WTERMSIG(status) : WEXITSTATUS(status);
}

Change bigChange() {
    Change change;
    for (int number = 0; number < 5'000; ++number)
        change.addAsset({});
    change.addAlbum("Unfinished");
    return change;
}

/// Lets far less into the store than the big change wants.
void limitFileSize(void (*onExcess)(int)) {
    const rlimit noCoreFile{0, 0};
    const rlimit smallFile{262'144, RLIM_INFINITY};
    std::signal(SIGXFSZ, onExcess);
    setrlimit(RLIMIT_CORE, &noCoreFile);
    setrlimit(RLIMIT_FSIZE, &smallFile);
}

} // namespace

TEST_F(Processes, may_all_be_the_first_to_open_a_library_and_change_it_at_the_same_time) {
    constexpr std::size_t rounds = 20;
    std::array<pid_t, 6> children{};
    for (pid_t& child : children)
        child = startChild([this] {
            PhotoLibrary library(file());
            for (std::size_t round = 0; round < rounds; ++round)
                library.addAlbum("Album", {library.addAsset()});
            return true;
        });
    PhotoLibrary library(file());
    EXPECT_FALSE(library.albumTitled("Nothing"));
    for (const pid_t child : children)
        EXPECT_EQ(endOf(child), EXIT_SUCCESS);
    const Collections albums = library.collections(CollectionKind::album);
    EXPECT_EQ(albums.size(), rounds * children.size()) << "seen in a library that was open before";
    for (const Collection& album : albums)
        EXPECT_EQ(library.assetsIn(album).size(), 1u);
}

// The limit lies within the change: at the write that passes it the kernel kills the child or, when that
// ignores the signal, says that the file is full.
TEST_F(Processes, that_break_off_in_the_middle_of_a_change_lose_nothing_committed_and_leave_nothing_else) {
    for (const bool isKilled : {true, false}) {
        const char* name = isKilled ? "killed" : "full";
        EXPECT_EQ(endOf(startChild([&] {
                      PhotoLibrary library(file(name));
                      library.addAlbum("Committed", {library.addAsset()});
                      limitFileSize(isKilled ? SIG_DFL : SIG_IGN);
                      try {
                          library.apply(bigChange());
                      } catch (const std::runtime_error&) {
                          return library.albumTitled("Committed") && !library.albumTitled("Unfinished");
                      }
                      return false;
                  })),
                  isKilled ? SIGXFSZ : EXIT_SUCCESS);
        PhotoLibrary library(file(name));
        EXPECT_TRUE(library.albumTitled("Committed"));
        EXPECT_FALSE(library.albumTitled("Unfinished"));
        EXPECT_EQ(library.assets().size(), 1u);
        library.apply(bigChange());
        EXPECT_EQ(library.assets().size(), 5'001u);
    }
}

TEST_F(Processes, are_told_of_a_file_that_is_no_library) {
    std::ofstream(file("text")) << std::string(4096, 'x');
    for (const char* name : {"text", "missing/photos.sqlite", "."})
        EXPECT_THROW(PhotoLibrary{file(name)}, std::runtime_error) << name;
}

} // namespace simulator::test
