// The page that answers "is it working?", also where little works.
#include "pane/pane_fixture.h"

#include "device/clock.h"

#import "UIKit/UIKit.h"

#include <gmock/gmock.h>

namespace simulator::test {
namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

const std::string probe = std::string(file::stateFolder) + "/probe.plist";
const std::string bundle = "/Library/PreferenceBundles/RollkeeperPreferences.bundle";
const std::string broken = "no property list";

class StatusPage : public PaneTest {
  protected:
    void openStatus() { openPane({"Status"}); }
    // "Version=1.0.0/…" of these rows. The last row of a label counts: those of features come last.
    static std::string shown(const std::vector<std::string>& labels) {
        std::string all;
        for (const std::string& label : labels)
            all += label + "=" + rowsLabelled(label).at(0).at("value").get<std::string>() + "/";
        return all;
    }
    void expectService(const std::string& answer) {
        waitFor([] { return valueOf("File Service") != "Asking\u2026"; });
        EXPECT_EQ(valueOf("File Service"), answer);
        PSListController* page = settings::pane();
        PSTableCell* cell = [page cachedCellForSpecifier:[page specifierForID:@"service"]];
        EXPECT_EQ([[[cell detailTextLabel] text] UTF8String], answer) << "the screen shows it, too";
        EXPECT_FALSE(device().exists(probe));
    }
    static std::string copied() {
        settings::tapRow("Copy as Text");
        EXPECT_THAT(dismissedMessage(), HasSubstr("Paste it"));
        return [[[UIPasteboard generalPasteboard] string] UTF8String];
    }
    // The state files; the list of locked albums has an order and a layout that writing it anew would change.
    void writeStateFiles() {
        device().writeFile(file::lockedAlbums, "( Family )");
        device().writeFile(file::password, "secret");
        writePreferences({{"albumNameHolidays", false}, {"enabled", true}});
    }
};

TEST_F(StatusPage, tells_that_all_is_well_and_changes_nothing) {
    writeStateFiles();
    device().writePropertyList(probe, json::array({"left by an answer that came late"}));
    const std::string locked = device().readFile(file::lockedAlbums);
    startSpringBoard();
    openStatus();
    expectService("Answers");
    const std::string version = device().readPropertyList(bundle + "/Info.plist").at("CFBundleVersion");
    EXPECT_EQ(shown({"Version", "iOS", "Switched On", "At Work in Settings"}),
              "Version=" + version + "/iOS=10.3/Switched On=Yes/At Work in Settings=Yes/");
    EXPECT_EQ(shown({"Folder", "Settings", "Password", "Locked Albums"}),
              "Folder=Readable/Settings=Readable/Password=Readable/Locked Albums=Readable/");
    EXPECT_EQ(device().readFile(file::lockedAlbums), locked);
    const std::string report = copied();
    EXPECT_THAT(report, testing::StartsWith("Version: " + version + "\niOS: 10.3\n\nRight now\n"));
    for (const char* line :
         {"File Service: Answers\n", "Your albums off: Needs iOS 11.0\n", "More zoom: Yes\n"})
        EXPECT_THAT(report, HasSubstr(line));
    for (const char* kept : {"secret", "Family", "Holidays"})
        EXPECT_THAT(report, Not(HasSubstr(kept)));
}

TEST_F(StatusPage, tells_what_is_broken) {
    change([](Conditions& conditions) { conditions.manualClock = true; });
    writePreferences({{"enabled", "NO"}});
    openStatus();
    EXPECT_EQ(valueOf("File Service"), "Asking\u2026");
    EXPECT_THAT(copied(), HasSubstr("File Service: Asking\u2026\n"));
    clock().advance(5);
    expectService("No answer");
    EXPECT_EQ(shown({"Switched On", "At Work in Settings"}), "Switched On=No/At Work in Settings=No/");
    EXPECT_EQ(shown({"Folder", "Settings", "Password", "Locked Albums"}),
              "Folder=Not there/Settings=Readable/Password=Not there/Locked Albums=Not there/");

    writeStateFiles();
    device().writeFile(file::preferences, broken);
    device().writeFile(file::lockedAlbums, broken);
    change(
        [](Conditions& conditions) { conditions.faults.unreadable = {file::password, file::stateFolder}; });
    device().remove(bundle + "/Features.plist");
    openPage({"Status"});
    EXPECT_EQ(shown({"Switched On", "Folder", "Settings", "Password", "Locked Albums"}),
              "Switched On=Yes/Folder=Not readable/Settings=Not readable/Password=Not readable/"
              "Locked Albums=Not readable/");
    EXPECT_TRUE(rowsLabelled("More zoom").empty());
    EXPECT_THAT(copied(), HasSubstr("Settings: Not readable\n"));
}

TEST_F(StatusPage, opens_where_no_message_can_be_sent) {
    registerFramework("AppSupport", {"CPDistributedMessagingCenter"}); // which Settings has not loaded then
    openStatus();
    expectService("Cannot be asked");
}

TEST_F(StatusPage, waits_for_an_answer_that_takes_long_and_leaves_a_late_one_alone) {
    change([](Conditions& conditions) { conditions.manualClock = true; });
    openStatus();
    clock().advance(2.5);
    const auto token = [settings::pane() specifierForID:@"service"];
    device().writePropertyList(probe, json::array({[[token propertyForKey:@"token"] UTF8String]}));
    clock().advance(1);
    expectService("Answers");
    openPage({"Status"});
    device().writePropertyList(probe, json::array({"of another time"}));
    clock().advance(5);
    EXPECT_EQ(valueOf("File Service"), "No answer");
}

class StatusOnRelease : public StatusPage, public testing::WithParamInterface<Release> {};

// What docs/device.md says of the releases, as far as it differs between them.
TEST_P(StatusOnRelease, tells_what_the_system_has_for_each_feature) {
    const std::map<Release, std::string> differences = {
        {Release::ios8_4,
         "Needs iOS 9.0/Needs iOS 10.0/Needs iOS 11.0/Needs iOS 9.3/Needs iOS 10.0/Yes/Needs iOS 9.3/"},
        {Release::ios9_3, "Yes/Needs iOS 10.0/Needs iOS 11.0/Yes/Needs iOS 10.0/Yes/Yes/"},
        {Release::ios10_3, "Yes/Yes/Needs iOS 11.0/Yes/Yes/Yes/Yes/"},
        {Release::ios11_4, "Yes/Yes/Yes/Yes/Yes/Yes/Gone in iOS 11.0/"},
        {Release::ios12_4, "Yes/Yes/Yes/Yes/Gone in iOS 12.0/Gone in iOS 12.0/Gone in iOS 11.0/"},
    };
    change([](Conditions& conditions) { conditions.release = GetParam(); });
    openStatus();
    EXPECT_EQ(valueOf("iOS"), releaseName(GetParam()));
    std::string availability;
    for (const char* feature : {"Moved photos", "Album for the Camera", "Your albums off", "Tabs off",
                                "People and Places off", "Search removed", "Live Photo badge"})
        availability += valueOf(feature).get<std::string>() + "/";
    EXPECT_EQ(availability, differences.at(GetParam()));
    EXPECT_EQ(valueOf("Locked albums"), "Yes");
}

INSTANTIATE_TEST_SUITE_P(Some, StatusOnRelease,
                         testing::Values(Release::ios8_4, Release::ios9_3, Release::ios10_3, Release::ios11_4,
                                         Release::ios12_4));

} // namespace
} // namespace simulator::test
