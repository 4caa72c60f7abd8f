// Follows a scenario and writes down as a chapter of the story what it says and what is to be seen meanwhile.
#pragma once

#include "hosts/client.h"
#include "photolibrary/library.h"
#include "tour/story.h"

#include <map>
#include <string>
#include <vector>

namespace simulator::tour {

using Hosts = std::map<std::string, HostProcess>; // by bundle identifier

class Chronicle {
  public:
    // The chapter must outlive the chronicle; with nullptr nothing is written down.
    explicit Chronicle(StoryChapter* chapter) : m_chapter(chapter) {}

    // From now on the application's screens are kept as they were when touched. That with which it starts is
    // worth showing only after the first line.
    void begin(const std::string& bundleIdentifier, HostProcess& host);
    // A line of the scenario. Touches since the last line belong to that one where it was told, as it told
    // what would be done; else to this one.
    void add(StoryStep::Kind kind, const std::string& text, Hosts& hosts, std::vector<StoryShelf> library);
    // A row of the last line's table, with the screen of an application beside it.
    void addRow(std::vector<std::string> row);
    void addScreen(const std::string& name, HostProcess& host);

  private:
    void addScreens(StoryStep& step, Hosts& hosts, StoryStep* touched);

    StoryChapter* m_chapter;
    std::map<std::string, std::string> m_lastScreens; // by bundle identifier
    std::vector<StoryShelf> m_lastLibrary;
};

// The name of an application as the home screen shows it.
std::string nameOf(const std::string& bundleIdentifier);

} // namespace simulator::tour
