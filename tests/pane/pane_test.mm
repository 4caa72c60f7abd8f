#include "pane/pane_test.h"

#include "support/environment.h"

#include <algorithm>
#include <stdexcept>

namespace simulator::test {

PaneTest::PaneTest() {
    std::filesystem::copy(deviceFiles(), device().root(),
                          std::filesystem::copy_options::recursive |
                              std::filesystem::copy_options::overwrite_existing);
}

void PaneTest::openPane() {
    start(host::settings);
    openPage({});
}

void PaneTest::openPage(const std::vector<std::string>& labels) {
    settings::openEntry("Rollkeeper");
    for (const std::string& label : labels)
        settings::tapRow(label);
}

nlohmann::json PaneTest::rowLabelled(const std::string& label) {
    for (const auto& row : rows())
        if (row.value("label", "") == label) return row;
    throw std::runtime_error("no row is labelled " + label);
}

std::vector<std::string> PaneTest::labels() {
    std::vector<std::string> found;
    for (const auto& row : rows())
        if (row.contains("label")) found.push_back(row.at("label"));
    return found;
}

std::string PaneTest::footerOf(const std::string& label) {
    std::string footer;
    for (const auto& row : rows()) {
        if (row.contains("group")) footer = row.at("footer").is_string() ? row.at("footer") : "";
        if (row.value("label", "") == label) return footer;
    }
    throw std::runtime_error("no row is labelled " + label);
}

bool PaneTest::hasRow(const std::string& label) { return std::ranges::count(labels(), label) > 0; }

nlohmann::json PaneTest::stored() const {
    return device().exists(file::preferences) ? device().readPropertyList(file::preferences)
                                              : nlohmann::json::object();
}

} // namespace simulator::test
