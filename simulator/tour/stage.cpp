#include "tour/stage.h"

#include "photolibrary/samples.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <thread>

namespace simulator::tour {

namespace {

constexpr const char* preferencesFile = "/var/mobile/Library/Preferences/com.nrv.rollkeeperprefs.plist";
constexpr auto patience = std::chrono::seconds(20);

} // namespace

Stage::Stage(const Programs& programs, const std::filesystem::path& folder, StoryChapter* chapter)
    : m_programs(programs), m_libraryFile(programs.library.string()), m_device(Device::create(folder)),
      m_photos(PhotoLibrary::open(m_device)), m_chronicle(chapter) {
    addSmallSample(*m_photos);
    std::filesystem::copy(m_programs.deviceFiles, m_device.root(), std::filesystem::copy_options::recursive);
}

HostProcess& Stage::application(const std::string& bundleIdentifier) {
    if (const auto running = m_running.find(bundleIdentifier); running != m_running.end())
        return running->second;
    HostProcessOptions options;
    options.program = m_programs.host;
    options.bundleIdentifier = bundleIdentifier;
    options.device = m_device.folder();
    options.library = m_programs.library;
    options.emulator = m_programs.emulator;
    options.timeout = 60;
    HostProcess& host = m_running.emplace(bundleIdentifier, HostProcess(std::move(options))).first->second;
    m_chronicle.begin(bundleIdentifier, host);
    return host;
}

void Stage::stop(const std::string& bundleIdentifier) {
    const auto running = m_running.find(bundleIdentifier);
    if (running == m_running.end()) return;
    running->second.stop();
    m_running.erase(running);
}

HostProcess& Stage::restart(const std::string& bundleIdentifier) {
    stop(bundleIdentifier);
    return application(bundleIdentifier);
}

void Stage::writePreferences(const nlohmann::json& preferences) {
    m_device.writePropertyList(preferencesFile, preferences);
}

void Stage::changePreferences(HostProcess& teller, const nlohmann::json& preferences) {
    writePreferences(preferences);
    teller.call({{"do", "postNotification"}, {"name", "com.nrv.rollkeeperprefs/reloadPrefs"}});
}

void Stage::lockAlbum(const char* title) {
    m_device.writePropertyList(lockedAlbumsFile, nlohmann::json::array({title}));
}

bool Stage::fileHolds(const char* path, const nlohmann::json& array) const {
    return m_device.exists(path) && m_device.readPropertyList(path) == array;
}

void Stage::tell(const std::string& text) {
    std::printf("    %s\n", text.c_str());
    std::fflush(stdout);
    note(StoryStep::Kind::told, text);
}

void Stage::tellRow(const std::vector<std::string>& cells, HostProcess* shown) {
    std::printf("    %-20s", cells.front().c_str());
    for (std::size_t column = 1; column < cells.size(); ++column)
        std::printf(" %14s", cells[column].c_str());
    std::printf("\n");
    std::fflush(stdout);
    m_chronicle.addRow(cells);
    if (shown != nullptr) m_chronicle.addScreen(cells.front(), *shown);
}

void Stage::tellFailure(const std::string& text) { note(StoryStep::Kind::failed, text); }

void Stage::note(StoryStep::Kind kind, const std::string& text) {
    m_chronicle.add(kind, text, m_running, shelves());
}

void Stage::check(const std::string& text, const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            throw TourFailure("this did not happen: " + text + "\n" + library());
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    std::printf("  + %s\n", text.c_str());
    std::fflush(stdout);
    note(StoryStep::Kind::seen, text);
}

std::string Stage::numberOf(const Asset& asset) {
    const Assets all = m_photos->assets({.includeHidden = true});
    return std::to_string(std::ranges::find(all, asset.identifier, &Asset::identifier) - all.begin() + 1);
}

std::string Stage::numbersOf(const Assets& assets) {
    std::string numbers;
    for (const Asset& asset : assets)
        numbers += (numbers.empty() ? "" : " ") + numberOf(asset);
    return numbers.empty() ? "nothing" : numbers;
}

std::vector<StoryShelf> Stage::shelves() {
    const auto shelf = [this](const std::string& title, const Assets& assets) {
        StoryShelf filled = {.title = title, .photos = {}};
        for (const Asset& asset : assets)
            filled.photos.push_back({numberOf(asset), asset.hidden, static_cast<std::uint64_t>(asset.seed),
                                     m_photos->storedPicture(asset.identifier)});
        return filled;
    };
    std::vector<StoryShelf> all = {shelf("Camera Roll", m_photos->assets({.includeHidden = true}))};
    for (const Collection& album : m_photos->collections(CollectionKind::album))
        all.push_back(shelf(album.title.value_or(""), m_photos->assetsIn(album, {.includeHidden = true})));
    return all;
}

std::string Stage::library() {
    std::string text = "  Camera Roll: " + cameraRoll();
    for (const Collection& each : m_photos->collections(CollectionKind::album))
        if (each.title) text += "\n  " + *each.title + ": " + album(*each.title);
    return text;
}

std::string Stage::cameraRoll() { return numbersOf(m_photos->visibleAssets()); }

std::string Stage::album(const std::string& title) {
    const auto found = m_photos->albumTitled(title);
    return found ? numbersOf(m_photos->assetsIn(*found, {.includeHidden = true})) : "no such album";
}

} // namespace simulator::tour
