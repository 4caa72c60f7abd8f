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

    // Starts Settings and goes to a page, see openPage().
    void openPane(const std::vector<std::string>& labels = {});
    // Goes to the pane's first page and from there through the rows with these labels.
    void openPage(const std::vector<std::string>& labels);
    // The rows of the page on the screen.
    static nlohmann::json rows() { return settings::describePane(settings::pane()); }
    // Those with this label, each with the "footer" of its group.
    static std::vector<nlohmann::json> rowsLabelled(const std::string& label);
    static nlohmann::json valueOf(const std::string& label) { return rowsLabelled(label).at(0).at("value"); }
    static std::string footerOf(const std::string& label) { return rowsLabelled(label).at(0).at("footer"); }

    // The message of the alert on the screen, which is answered with OK; empty when there is none.
    static std::string dismissedMessage();

    // What the preference file holds; empty while there is none.
    nlohmann::json stored() const;
};

} // namespace simulator::test
