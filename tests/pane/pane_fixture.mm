#include "pane/pane_fixture.h"

#import "UIKit/ViewTree.h"
#include "support/environment.h"

namespace simulator::test {

PaneTest::PaneTest() {
    std::filesystem::copy(deviceFiles(), device().root(),
                          std::filesystem::copy_options::recursive |
                              std::filesystem::copy_options::overwrite_existing);
}

void PaneTest::openPane(const std::vector<std::string>& labels) {
    start(host::settings);
    openPage(labels);
}

void PaneTest::openPage(const std::vector<std::string>& labels) {
    settings::openEntry("Rollkeeper");
    for (const std::string& label : labels)
        settings::tapRow(label);
}

std::vector<nlohmann::json> PaneTest::rowsLabelled(const std::string& label) {
    std::vector<nlohmann::json> found;
    nlohmann::json footer;
    for (auto row : rows()) {
        if (row.contains("group")) footer = row.at("footer");
        row["footer"] = footer;
        if (row.value("label", "") == label) found.push_back(row);
    }
    return found;
}

std::string PaneTest::dismissedMessage() {
    if (frontAlert() == nil) return {};
    const std::string text = [[frontAlert() message] UTF8String];
    tapAlertAction("OK");
    return text;
}

nlohmann::json PaneTest::stored() const {
    return device().exists(file::preferences) ? device().readPropertyList(file::preferences)
                                              : nlohmann::json::object();
}

} // namespace simulator::test
