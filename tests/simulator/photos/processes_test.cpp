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

class ProcessesTest : public testing::Test {
  protected:
    ProcessesTest() {
        std::string name = (std::filesystem::temp_directory_path() / "photos-XXXXXX").string();
        if (!mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
        m_folder = name;
    }
    ~ProcessesTest() override { std::filesystem::remove_all(m_folder); }

    const std::filesystem::path& folder() const { return m_folder; }
    std::unique_ptr<PhotoLibrary> open() { return PhotoLibrary::open(m_folder / "photos.sqlite"); }

  private:
    std::filesystem::path m_folder;
};

pid_t startChild(const std::function<bool()>& work) {
    const pid_t child = fork();
    if (child != 0) return child;
    bool succeeded = false;
    try {
        succeeded = work();
    } catch (const std::exception&) {
        succeeded = false; // the exit status says it
    }
    _exit(succeeded ? EXIT_SUCCESS : EXIT_FAILURE);
}

int statusOf(pid_t child) {
    int status = -1;
    waitpid(child, &status, 0);
    return status;
}

bool succeeded(pid_t child) {
    const int status = statusOf(child);
    return WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

void limitFileSize(rlim_t bytes) {
    const rlimit files{bytes, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &files);
    const rlimit noCoreFile{0, 0};
    setrlimit(RLIMIT_CORE, &noCoreFile);
}

/// Far more than `limitFileSize(smallFile)` lets into the store.
Change bigChange() {
    Change change;
    for (int number = 0; number < 5'000; ++number)
        change.addAsset({});
    change.addAlbum("Unfinished");
    return change;
}

constexpr rlim_t smallFile = 262'144;

} // namespace

TEST_F(ProcessesTest, EveryProcessMayBeTheFirstToOpenTheLibrary) {
    std::array<pid_t, 6> children{};
    for (pid_t& child : children)
        child = startChild([this] { return !open()->addAlbum("Album").empty(); });
    for (const pid_t child : children)
        EXPECT_TRUE(succeeded(child));
    EXPECT_EQ(open()->collections(CollectionKind::album).size(), children.size());
}

TEST_F(ProcessesTest, ChangesAtTheSameTimeAllTakePlace) {
    constexpr std::size_t rounds = 40;
    const auto addAlbums = [this] {
        const std::unique_ptr<PhotoLibrary> library = open();
        for (std::size_t round = 0; round < rounds; ++round)
            library->addAlbum("Album", {library->addAsset()});
        return true;
    };
    const pid_t child = startChild(addAlbums);
    addAlbums();
    EXPECT_TRUE(succeeded(child));
    const std::unique_ptr<PhotoLibrary> library = open();
    const Collections albums = library->collections(CollectionKind::album);
    EXPECT_EQ(albums.size(), 2 * rounds);
    for (const Collection& album : albums)
        EXPECT_EQ(library->countOfAssetsIn(album), 1u);
}

TEST_F(ProcessesTest, AnOpenLibraryShowsWhatAnotherProcessChanges) {
    std::array<int, 2> question{};
    std::array<int, 2> answer{};
    ASSERT_EQ(pipe(question.data()) + pipe(answer.data()), 0);
    const pid_t child = startChild([&] {
        const std::unique_ptr<PhotoLibrary> library = open();
        bool right = library->collections(CollectionKind::album).empty();
        char byte = 0;
        right = write(answer[1], &byte, 1) == 1 && read(question[0], &byte, 1) == 1 && right;
        return right && library->albumTitled("New") && library->visibleAssets().size() == 1;
    });
    char byte = 0;
    ASSERT_EQ(read(answer[0], &byte, 1), 1);
    const std::unique_ptr<PhotoLibrary> library = open();
    library->addAlbum("New", {library->addAsset()});
    ASSERT_EQ(write(question[1], &byte, 1), 1);
    EXPECT_TRUE(succeeded(child));
    for (const int descriptor : {question[0], question[1], answer[0], answer[1]})
        close(descriptor);
}

// The kernel kills the child at the write that passes the limit, which lies within the change.
TEST_F(ProcessesTest, KilledInTheMiddleOfAChangeLosesNothingCommitted) {
    const int status = statusOf(startChild([this] {
        const std::unique_ptr<PhotoLibrary> library = open();
        library->addAlbum("Committed", {library->addAsset()});
        std::signal(SIGXFSZ, SIG_DFL);
        limitFileSize(smallFile);
        library->apply(bigChange());
        return true;
    }));
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGXFSZ);
    const std::unique_ptr<PhotoLibrary> library = open();
    EXPECT_FALSE(library->albumTitled("Unfinished"));
    ASSERT_TRUE(library->albumTitled("Committed"));
    EXPECT_EQ(library->assets({.includeHidden = true}).size(), 1u);
    library->apply(bigChange());
    EXPECT_EQ(library->assets().size(), 5'001u);
}

TEST_F(ProcessesTest, ChangeThatDoesNotFitOnTheDiskAppliesNothing) {
    EXPECT_TRUE(succeeded(startChild([this] {
        const std::unique_ptr<PhotoLibrary> library = open();
        std::signal(SIGXFSZ, SIG_IGN);
        limitFileSize(smallFile);
        bool refused = false;
        try {
            library->apply(bigChange());
        } catch (const DatabaseError&) {
            refused = true;
        }
        const bool unchanged = library->assets().empty() && !library->albumTitled("Unfinished");
        limitFileSize(RLIM_INFINITY);
        library->apply(bigChange());
        return refused && unchanged && library->assets().size() == 5'000;
    })));
}

TEST_F(ProcessesTest, FileThatIsNoLibraryIsAnError) {
    std::ofstream(folder() / "text") << std::string(4096, 'x');
    for (const char* name : {"text", "missing/photos.sqlite", "."})
        EXPECT_THROW(PhotoLibrary::open(folder() / name), DatabaseError) << name;
}

} // namespace simulator::test
