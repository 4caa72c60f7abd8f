// A host application with the library under test, which can be put back to where it was as often as one
// likes.
#pragma once

#include "support/photos_fixture.h"

#include <optional>
#include <string>

namespace reliability {

using nlohmann::json;
using simulator::test::Numbers;
using simulator::test::Texts;

class World;

// One thing that a person does, from the touch to what comes of it.
struct Action {
    const char* name;
    const char* application; // a bundle identifier
    json preferences = json::object();
    Texts locked = {};
    Numbers hidden = {};
    void (*prepare)(World&) = [](World&) {}; // what comes before it
    void (*perform)(World&) = nullptr;       // without it the load is what is tried
    bool (*isDone)(World&) = nullptr;
    const char* deletedAlbum = nullptr; // the one that the person deletes
    bool mayHideWithoutAdding = false;  // a photo is hidden although adding it was refused
};

class World : public simulator::test::PhotosTest {
  public:
    using PhotosTest::button;
    using PhotosTest::change;
    using PhotosTest::device;
    using PhotosTest::hasOpenedAlbum;
    using PhotosTest::hiddenNumbers;
    using PhotosTest::library;
    using PhotosTest::lockedAlbums;
    using PhotosTest::numbersIn;
    using PhotosTest::reload;
    using PhotosTest::reloadPreferences;
    using PhotosTest::settle;

    // Starts the application. Files are written for it within this process, unless it is SpringBoard itself.
    explicit World(const Action& action);

    // Library, files and screen as they were at the start.
    void reset();
    // The screen alone, so that the person can try again.
    void returnToStart();
    // Lets everything that was begun come to its end.
    void calmDown();

    bool isLocked(const std::string& title);
    // The newest photo is in the album and hidden.
    bool newestIsMovedTo(const std::string& title);
    // How often the screens that stay are retained in all.
    std::size_t ownersOfScreens();
    // What must never happen, and has; of photos that are hidden and in no album only the number, where the
    // action may leave such.
    std::optional<std::string> damage(std::size_t& leftOpen);

  private:
    void TestBody() override {}
    void restoreLibrary();
    void waitForFiles();

    const Action& m_action;
};

} // namespace reliability
