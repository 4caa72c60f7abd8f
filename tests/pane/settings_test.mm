// Every setting: its row, its default, what is stored, and who hears of it.
#include "pane/pane_test.h"

#import "CoreFoundation/CoreFoundation.h"
#import "UIKit/ViewTree.h"
#include "support/table.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>

namespace simulator::test {
namespace {

using nlohmann::json;

struct ShownRow {
    std::vector<std::string> page;
    json row;
};

class PaneSettings : public PaneTest {
  protected:
    void collectRows(const std::vector<std::string>& page) {
        openPage(page);
        for (const auto& row : rows()) {
            if (row.value("cell", "") == "PSLinkCell") {
                auto below = page;
                below.push_back(row.at("label"));
                collectRows(below);
            } else if (row.contains("key") && row.at("key").is_string() && !isAlbumKey(row.at("key"))) {
                EXPECT_TRUE(m_shown.emplace(row.at("key"), ShownRow{page, row}).second)
                    << row << " is there twice";
            }
        }
    }
    const std::map<std::string, ShownRow>& shownRows() {
        if (m_shown.empty()) collectRows({});
        return m_shown;
    }
    static bool isAlbumKey(const std::string& key) { return key.starts_with("albumName"); }
    static json typedDefault(const TableRow& setting) { return json::parse(setting.at("default")); }

    std::map<std::string, ShownRow> m_shown;
};

TEST_F(PaneSettings, ShowsEverySettingOnceWithTheLibrarysDefault) {
    openPane();
    auto unknown = shownRows();
    for (const TableRow& setting : readTable("settings.tsv")) {
        const std::string& key = setting.at("key");
        ASSERT_TRUE(shownRows().contains(key)) << key << " has no row";
        const json& row = shownRows().at(key).row;
        EXPECT_EQ(row.at("value"), setting.at("type") == "boolean" ? json(typedDefault(setting) ? 1 : 0)
                                                                   : typedDefault(setting))
            << key;
        EXPECT_NE(row.at("label"), key) << "the row has no text of its own";
        unknown.erase(key);
    }
    for (const auto& [key, row] : unknown)
        ADD_FAILURE() << key << " has no effect";
    EXPECT_FALSE(device().exists(file::preferences)) << "looking at settings writes nothing";
}

TEST_F(PaneSettings, StoresEverySwitchAsABoolean) {
    openPane();
    json expected = json::object();
    for (const TableRow& setting : readTable("settings.tsv")) {
        if (setting.at("type") != "boolean") continue;
        const ShownRow& shown = shownRows().at(setting.at("key"));
        const bool changed = !typedDefault(setting).get<bool>();
        openPage(shown.page);
        settings::setControl(shown.row.at("label"), changed);
        expected[setting.at("key")] = changed;
        ASSERT_EQ(stored(), expected) << setting.at("key");
        EXPECT_EQ(rowLabelled(shown.row.at("label")).at("value"), changed ? 1 : 0) << setting.at("key");
    }
}

struct Choice {
    std::vector<std::string> page;
    const char* row;
    const char* key;
    std::vector<std::pair<std::string, int>> values;
};

TEST_F(PaneSettings, StoresChosenValuesAsIntegers) {
    const Choice choices[] = {
        {{"Locked Albums"}, "Ask For", "passOption", {{"Touch ID", 0}, {"Password", 1}, {"Nothing", 2}}},
        {{"Locked Albums"},
         "Cover",
         "lockedAlbumPreview",
         {{"Padlock", 1}, {"Lock Only", 2}, {"None", 3}, {"Blurred", 0}}},
        {{"Album List"}, "Text Size", "layoutFontSize", {{"9", 9}, {"22", 22}, {"14", 14}}},
    };
    openPane();
    for (const Choice& choice : choices)
        for (const auto& [title, value] : choice.values) {
            openPage(choice.page);
            settings::tapRow(choice.row);
            settings::tapRow(title);
            EXPECT_EQ(stored().at(choice.key), value) << choice.key << " " << title;
            EXPECT_TRUE(stored().at(choice.key).is_number_integer());
            openPage(choice.page);
            EXPECT_EQ(rowLabelled(choice.row).at("value"), value);
        }
}

TEST_F(PaneSettings, KeepsWhatItDoesNotKnow) {
    writePreferences({{"enabled", false}, {"somethingElse", "kept"}, {"albumNameHolidays", false}});
    openPane();
    EXPECT_EQ(rowLabelled("Enabled").at("value"), 0);
    settings::setControl("Enabled", true);
    EXPECT_EQ(stored(), (json{{"enabled", true}, {"somethingElse", "kept"}, {"albumNameHolidays", false}}));
}

TEST_F(PaneSettings, ReadsEditedFilesAsTheLibraryDoes) {
    const struct {
        json stored;
        int shown;
    } cases[] = {{"NO", 0}, {"YES", 1}, {0, 0}, {2, 2}, {json::array({false}), 1}, {json::object(), 1}};
    openPane();
    for (const auto& each : cases) {
        writePreferences({{"enabled", each.stored}});
        openPage({});
        EXPECT_EQ(rowLabelled("Enabled").at("value"), each.shown) << each.stored;
    }
    device().writeFile(file::preferences, "no property list");
    openPage({});
    EXPECT_EQ(rowLabelled("Enabled").at("value"), 1);
    settings::setControl("Enabled", false);
    EXPECT_EQ(stored(), (json{{"enabled", false}}));
}

int heard = 0;

void hear(CFNotificationCenterRef, void*, CFStringRef, const void*, CFDictionaryRef) { ++heard; }

void listen() {
    CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), &heard, hear,
                                    (CFStringRef) @"com.nrv.rollkeeperprefs/reloadPrefs", nullptr,
                                    CFNotificationSuspensionBehaviorDeliverImmediately);
}

TEST_F(PaneSettings, TellsOfEachChange) {
    openPane();
    listen();
    settings::setControl("Enabled", false);
    waitFor([] { return heard == 1; });
    settings::setControl("Enabled", true);
    waitFor([] { return heard == 2; });
}

bool showsOn(PSListController* page, NSString* identifier) {
    auto cell = static_cast<PSSwitchTableCell*>([page cachedCellForSpecifierID:identifier]);
    return [static_cast<UISwitch*>([cell control]) isOn] != NO;
}

TEST_F(PaneSettings, ShowsAFailedWriteAndWhatStillHolds) {
    writePreferences({{"enabled", true}});
    openPane();
    listen();
    change([](Conditions& conditions) { conditions.faults.diskFull = true; });
    settings::setControl("Enabled", false);
    ASSERT_TRUE(frontAlert() != nil);
    EXPECT_STREQ([[frontAlert() title] UTF8String], "Not saved");
    EXPECT_NE([[frontAlert() message] length], 0U);
    tapAlertAction("OK");
    EXPECT_TRUE(frontAlert() == nil);
    EXPECT_TRUE(showsOn(settings::pane(), @"enabled")) << "the switch shows what was not stored";
    change([](Conditions& conditions) { conditions.faults.diskFull = false; });
    EXPECT_EQ(stored(), (json{{"enabled", true}}));
    settle();
    EXPECT_EQ(heard, 0) << "there is nothing to tell before the file is in place";
}

class PaneOnRelease : public PaneSettings, public testing::WithParamInterface<Release> {};

TEST_P(PaneOnRelease, ShowsAndStoresEverything) {
    change([](Conditions& conditions) { conditions.release = GetParam(); });
    openPane();
    EXPECT_EQ(shownRows().size(), readTable("settings.tsv").size());
    openPage({"Your Albums"});
    openPage({});
    settings::setControl("Enabled", false);
    EXPECT_EQ(stored(), (json{{"enabled", false}}));
}

INSTANTIATE_TEST_SUITE_P(All, PaneOnRelease, testing::ValuesIn(allReleases), [](const auto& release) {
    std::string name(releaseName(release.param));
    std::ranges::replace(name, '.', '_');
    return name;
});

// Photos runs in a process of its own and learns of the change while it runs.
TEST_F(PaneSettings, ReachARunningPhotos) {
    HostProcess photos = startProcess(host::photos);
    const auto listsVideos = [&] {
        return photos.call("albums").dump().find("\"Videos\"") != std::string::npos;
    };
    ASSERT_TRUE(listsVideos()) << photos.call("albums");
    openPane();
    openPage({"Stock Albums"});
    settings::setControl("Videos", false);
    waitFor([&] { return !listsVideos(); });
    settings::setControl("Videos", true);
    waitFor(listsVideos);
}

} // namespace
} // namespace simulator::test
