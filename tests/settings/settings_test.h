// Photos with the library under test, and what its replaced methods show of each setting.
#pragma once

#include "support/library_fixture.h"

#include <map>
#include <string>

namespace simulator::test {

class SettingsTest : public LibraryTest {
  protected:
    // On a release that has every method that shows a setting.
    void startPhotos(const nlohmann::json& preferences = nlohmann::json::object());
    // Posts the notification and waits until it has arrived; the preference file stays as it is.
    void postReload();
    void reload(const nlohmann::json& preferences);

    // Whether a boolean setting that Photos' methods show is on; throws std::out_of_range for any other.
    bool isOn(const std::string& key);
    // All of them.
    std::map<std::string, bool> observe();
    bool listsAlbum(const std::string& title);
};

} // namespace simulator::test
