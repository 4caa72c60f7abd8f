// The applications that the simulator knows: which application object each starts with and which of the
// device's frameworks it has loaded.
#pragma once

#include "hosts/host.h"

#include <span>
#include <string_view>
#include <vector>

namespace simulator {

struct CatalogueEntry {
    std::string_view bundleIdentifier;
    const char* applicationClass;
    std::vector<std::string> frameworks; // beside those that every application has
    void (*addVerbs)();                  // what a user can do in it; may be null
    bool worksInRootFolder = false;
};

std::span<const CatalogueEntry> catalogue();

// Registers the application again with one framework more or less than the catalogue says, as when a program
// is linked otherwise or a tool has been installed. Before the host starts; throws std::invalid_argument for
// an application that is not in the catalogue.
void setHasFramework(std::string_view bundleIdentifier, std::string_view framework, bool has);

// Loads one more framework into the running application, as a tool does that is injected late.
void loadFramework(std::string_view framework);

} // namespace simulator
