// The tour as a page to look at: for each scenario its lines in their order, each with the screens that it
// changed, where they were touched, and the photo library where it changed. One HTML file that loads nothing.
#pragma once

#include "CoreGraphics/CoreGraphics.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace simulator::tour {

struct StoryScreen {
    std::string application;           // its name
    std::string svg;                   // as the device draws it
    std::optional<CGPoint> touch = {}; // where a finger is about to touch it
};

struct StoryPhoto {
    std::string number;
    bool isHidden = false;
    std::uint64_t scenery = 0;
    std::optional<std::string> png = {}; // instead of the scenery

    bool operator==(const StoryPhoto&) const = default;
};

// The Camera Roll or an album.
struct StoryShelf {
    std::string title;
    std::vector<StoryPhoto> photos;

    bool operator==(const StoryShelf&) const = default;
};

struct StoryStep {
    enum class Kind { told, seen, failed };

    Kind kind = Kind::told;
    std::string text;
    std::vector<StoryScreen> screens = {};
    std::vector<std::vector<std::string>> table = {}; // rows; the first one has the headings
    std::vector<StoryShelf> library = {};             // empty where it has not changed
};

struct StoryChapter {
    std::string title;
    std::vector<StoryStep> steps = {};
};

// The HTML document. `library` says which build has been at work. A chapter without steps was not reached.
std::string storyAsHtml(const std::vector<StoryChapter>& chapters, const std::string& library);

} // namespace simulator::tour
