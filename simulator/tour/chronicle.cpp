#include "tour/chronicle.h"

#include "hosts/applications/bundle_identifiers.h"
#include "hosts/applications/catalogue.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace simulator::tour {

using nlohmann::json;

std::string nameOf(const std::string& bundleIdentifier) {
    const std::vector<HomeIcon> icons = homeIcons();
    const auto icon = std::ranges::find(icons, bundleIdentifier, &HomeIcon::bundleIdentifier);
    return icon != icons.end() ? std::string(icon->name) : "SpringBoard";
}

void Chronicle::begin(const std::string& bundleIdentifier, HostProcess& host) {
    if (m_chapter == nullptr) return;
    host.call("touchedScreens");
    if (m_chapter->steps.empty()) m_lastScreens[bundleIdentifier] = host.call("screenshot").at("svg");
}

void Chronicle::add(StoryStep::Kind kind, const std::string& text, Hosts& hosts,
                    std::vector<StoryShelf> library) {
    if (m_chapter == nullptr) return;
    StoryStep step = {.kind = kind, .text = text};
    StoryStep* last = m_chapter->steps.empty() ? nullptr : &m_chapter->steps.back();
    addScreens(step, hosts, last != nullptr && last->kind == StoryStep::Kind::told ? last : &step);
    if (library != m_lastLibrary) step.library = m_lastLibrary = std::move(library);
    m_chapter->steps.push_back(std::move(step));
}

// What will be done is shown by the touches that do it; what has been seen, by the screens that changed.
void Chronicle::addScreens(StoryStep& step, Hosts& hosts, StoryStep* touched) {
    for (auto& [identifier, host] : hosts) {
        try {
            std::string& lastScreen = m_lastScreens[identifier];
            const json touches = host.call("touchedScreens");
            for (const json& screen : touches.at("screens")) {
                lastScreen = screen.at("svg");
                touched->screens.push_back(
                    {nameOf(identifier), lastScreen, CGPoint{screen.at("x"), screen.at("y")}});
            }
            if (step.kind == StoryStep::Kind::told) continue;
            const std::string screen = host.call("screenshot").at("svg");
            if (screen != lastScreen) step.screens.push_back({nameOf(identifier), screen});
            lastScreen = screen;
        } catch (const std::runtime_error&) {
            // An application that has ended has nothing more to show; the scenario says so where it matters.
            if (step.kind != StoryStep::Kind::failed) throw;
        }
    }
}

void Chronicle::addRow(std::vector<std::string> row) {
    if (m_chapter != nullptr && !m_chapter->steps.empty())
        m_chapter->steps.back().table.push_back(std::move(row));
}

void Chronicle::addScreen(const std::string& name, HostProcess& host) {
    if (m_chapter == nullptr || m_chapter->steps.empty()) return;
    m_chapter->steps.back().screens.push_back({name, host.call("screenshot").at("svg")});
}

} // namespace simulator::tour
