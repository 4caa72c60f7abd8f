// Photos with the library under test, and what its replaced methods show of each setting.
#pragma once

#include "support/photos_fixture.h"

#include <map>
#include <string>

namespace simulator::test {

class SettingsTest : public PhotosTest {
  protected:
    // With the album "Work" locked, and unless told otherwise on a release that has every method that shows a
    // setting.
    void startPhotos(const nlohmann::json& preferences = nlohmann::json::object(),
                     Release release = Release::complete);

    // Whether a boolean setting that Photos' methods show is on; throws std::out_of_range for any other.
    bool isOn(const std::string& key);
    // All of them but those for which an album has to be opened.
    std::map<std::string, bool> observe();
    // By a collection list that holds all of the user's albums.
    bool listsAlbum(const std::string& title);
    // Of an album's cell: the sizes of its two lines, what covers it while it is locked, and how it opens.
    std::string describeLockedAlbum();
};

} // namespace simulator::test
