// Settings of a device on which the package is installed, with the pane's own files and code.
#pragma once

#include "hosts/applications/settings/settings_app.h"
#include "support/library_fixture.h"

#include <string>
#include <vector>

namespace simulator::test {

class PaneTest : public LibraryTest {
  protected:
    PaneTest();

    // Starts Settings and opens the pane's first page.
    void openPane();
    // Goes to the first page and from there through the rows with these labels.
    void openPage(const std::vector<std::string>& labels);
    // The rows of the page on the screen.
    static nlohmann::json rows() { return settings::describePane(settings::pane()); }
    static nlohmann::json rowLabelled(const std::string& label);
    // The labels of all rows, top to bottom.
    static std::vector<std::string> labels();
    // The footer of the group in which the row stands.
    static std::string footerOf(const std::string& label);
    static bool hasRow(const std::string& label);

    // What the preference file holds; empty while there is none.
    nlohmann::json stored() const;
};

} // namespace simulator::test
