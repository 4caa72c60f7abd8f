// The applications that the simulator knows, registered as soon as it is in the process: whoever starts a
// host names one by its bundle identifier only.
#pragma once

#include <array>
#include <string_view>
#include <vector>

namespace simulator {

// How an application stands on the home screen.
struct HomeIcon {
    std::string_view name;
    const char* symbol = nullptr;     // an outline
    std::array<double, 3> color = {}; // of the plate: red, green, blue
    std::string_view bundleIdentifier = {};
};

// Of the applications that have one, in the order in which they stand there.
std::vector<HomeIcon> homeIcons();

// Registers the application again with one framework more or less than it usually has, as when a program
// is linked otherwise or a tool has been installed. Before the host starts; throws std::invalid_argument for
// an unknown application.
void setHasFramework(std::string_view bundleIdentifier, std::string_view framework, bool has);

} // namespace simulator
