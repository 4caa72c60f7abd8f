// What a scenario of the tour plays on: a fresh device, its photo library, its running applications, and a
// voice that tells what happens and checks that it did.
#pragma once

#include "device/device.h"
#include "hosts/client.h"
#include "hosts/programs.h"
#include "photolibrary/library.h"
#include "tour/chronicle.h"

#include <nlohmann/json.hpp>

#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace simulator::tour {

inline constexpr const char* lockedAlbumsFile = "/var/mobile/Library/rollkeeper/lockedAlbums.plist";
inline constexpr const char* cameraAlbumFile = "/var/mobile/Library/rollkeeper/album.tct";
inline constexpr const char* passwordFile = "/var/mobile/Library/rollkeeper/settings.tct";

// Something did not happen as it should.
struct TourFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class Stage {
  public:
    // A new device in `folder` with the small sample library and what the package installs. Everything on it
    // ends with the stage. What happens is written into the chapter, unless there is none.
    Stage(const Programs& programs, const std::filesystem::path& folder, StoryChapter* chapter);

    const Device& device() const { return m_device; }
    PhotoLibrary& photos() { return *m_photos; }
    const std::string& libraryFile() const { return m_libraryFile; }
    bool runsPhoneFile() const { return !m_programs.emulator.empty(); }

    // Starts the application, or gives the one that runs; `restart` ends it first.
    HostProcess& application(const std::string& bundleIdentifier);
    HostProcess& restart(const std::string& bundleIdentifier);
    void stop(const std::string& bundleIdentifier);

    void writePreferences(const nlohmann::json& preferences);
    // Writes them and has the application tell all others.
    void changePreferences(HostProcess& teller, const nlohmann::json& preferences);
    void lockAlbum(const char* title);
    bool fileHolds(const char* path, const nlohmann::json& array) const;

    // "  text": what a person does or sees.
    void tell(const std::string& text);
    // Tells the text when the condition holds, at once or within a few seconds; throws TourFailure otherwise.
    void check(const std::string& text, const std::function<bool()>& condition);
    // A row of the table below the last line; `shown` is the application that it is about, or nullptr.
    void tellRow(const std::vector<std::string>& cells, HostProcess* shown = nullptr);
    // Writes down why the scenario goes no further.
    void tellFailure(const std::string& text);

    // Titles of the photos that the Camera Roll shows, as numbers in the sample, oldest first; photos taken
    // since then continue the count.
    std::string cameraRoll();
    std::string album(const std::string& title);

  private:
    std::string library(); // what is where, for a failure's message
    std::string numbersOf(const Assets& assets);
    std::string numberOf(const Asset& asset);
    std::vector<StoryShelf> shelves();
    void note(StoryStep::Kind kind, const std::string& text);

    Programs m_programs;
    std::string m_libraryFile;
    Device m_device;
    std::unique_ptr<PhotoLibrary> m_photos;
    Hosts m_running;
    Chronicle m_chronicle;
};

// A part of the tour, on a device of its own.
struct Scenario {
    const char* title;
    void (*play)(Stage& stage);
};

} // namespace simulator::tour
