// Every setting: its row, its default, what is stored, and who hears of it.
#include "pane/pane_fixture.h"

#import "CoreFoundation/CoreFoundation.h"
#import "UIKit/ViewTree.h"
#include "support/table.h"

#include <gmock/gmock.h>

#include <map>

namespace simulator::test {
namespace {

using nlohmann::json;

class PaneSettings : public PaneTest {
  protected:
    // Finds the rows of settings on a page and the pages below it, and looks at every text on the way.
    void collectRows(const std::vector<std::string>& page) {
        openPage(page);
        EXPECT_STREQ([[settings::pane() title] UTF8String],
                     page.empty() ? "Rollkeeper" : page.back().c_str());
        for (auto row : rows()) {
            for (const char* field : {"group", "footer", "label"}) {
                // What has no text shows its key, which has a dot and no blank.
                const std::string text = row.value(field, "");
                EXPECT_TRUE(text.find('.') == text.npos || text.find(' ') != text.npos) << text;
            }
            const std::string key = row.value("key", "");
            row["page"] = page;
            if (!key.empty() && !key.starts_with("albumName")) {
                EXPECT_TRUE(shown.emplace(key, row).second) << row << " is there twice";
            } else if (row.value("cell", "") == "PSLinkCell") {
                auto below = page;
                below.push_back(row.at("label"));
                collectRows(below);
            }
        }
    }
    std::map<std::string, json> shown; // by key, each with its "page"
};

TEST_F(PaneSettings, show_every_setting_once_with_the_librarys_default_and_store_switches_as_booleans) {
    openPane();
    collectRows({});
    EXPECT_FALSE(device().exists(file::preferences)) << "looking at settings writes nothing";
    json expected = json::object();
    for (const TableRow& setting : readTable("settings.tsv")) {
        const std::string& key = setting.at("key");
        SCOPED_TRACE(key);
        ASSERT_TRUE(shown.contains(key)) << "has no row";
        const json row = shown.extract(key).mapped();
        EXPECT_NE(row.at("label"), key) << "has no text of its own";
        const json usual = json::parse(setting.at("default"));
        EXPECT_EQ(row.at("value"), usual.is_boolean() ? json(usual ? 1 : 0) : usual);
        if (!usual.is_boolean()) continue;
        expected[key] = !usual;
        openPage(row.at("page"));
        settings::setControl(row.at("label"), !usual);
        ASSERT_EQ(stored(), expected);
        EXPECT_EQ(valueOf(row.at("label")), usual ? 0 : 1);
    }
    for (const auto& [key, row] : shown)
        ADD_FAILURE() << key << " has no effect";
}

TEST_F(PaneSettings, store_chosen_values_as_integers) {
    const struct {
        const char* page;
        const char* row;
        const char* key;
        std::vector<std::pair<std::string, int>> values;
    } choices[] = {
        {"Locked Albums", "Ask For", "passOption", {{"Touch ID", 0}, {"Password", 1}, {"Nothing", 2}}},
        {"Locked Albums",
         "Cover",
         "lockedAlbumPreview",
         {{"Padlock", 1}, {"Lock Only", 2}, {"None", 3}, {"Blurred", 0}}},
        {"Album List", "Text Size", "layoutFontSize", {{"9", 9}, {"22", 22}, {"14", 14}}},
    };
    openPane();
    for (const auto& choice : choices)
        for (const auto& [title, value] : choice.values) {
            openPage({choice.page, choice.row});
            settings::tapRow(title);
            EXPECT_EQ(stored().at(choice.key), value) << choice.key << " " << title;
            EXPECT_TRUE(stored().at(choice.key).is_number_integer());
            openPage({choice.page});
            EXPECT_EQ(valueOf(choice.row), value);
        }
}

TEST_F(PaneSettings, keep_what_they_do_not_know) {
    writePreferences({{"enabled", false}, {"somethingElse", "kept"}, {"albumNameHolidays", false}});
    openPane();
    EXPECT_EQ(valueOf("Enabled"), 0);
    settings::setControl("Enabled", true);
    EXPECT_EQ(stored(), (json{{"enabled", true}, {"somethingElse", "kept"}, {"albumNameHolidays", false}}));
}

TEST_F(PaneSettings, read_edited_files_as_the_library_does) {
    const std::pair<json, int> cases[] = {
        {"NO", 0}, {"YES", 1}, {0, 0}, {2, 2}, {json::array({false}), 1}, {json::object(), 1}};
    openPane();
    for (const auto& [value, shown] : cases) {
        writePreferences({{"enabled", value}});
        openPage({});
        EXPECT_EQ(valueOf("Enabled"), shown) << value;
    }
    device().writeFile(file::preferences, "no property list");
    openPage({});
    EXPECT_EQ(valueOf("Enabled"), 1);
    settings::setControl("Enabled", false);
    EXPECT_EQ(stored(), (json{{"enabled", false}}));
}

TEST_F(PaneSettings, tell_of_each_change_that_is_in_place) {
    static int heard = 0;
    openPane();
    CFNotificationCenterAddObserver(
        CFNotificationCenterGetDarwinNotifyCenter(), &heard,
        [](CFNotificationCenterRef, void*, CFStringRef, const void*, CFDictionaryRef) { ++heard; },
        (CFStringRef) @"com.nrv.rollkeeperprefs/reloadPrefs", nullptr,
        CFNotificationSuspensionBehaviorDeliverImmediately);
    settings::setControl("Enabled", false);
    waitFor([] { return heard == 1; });
    settings::setControl("Enabled", true);
    waitFor([] { return heard == 2; });

    change([](Conditions& conditions) { conditions.faults.diskFull = true; });
    settings::setControl("Enabled", false);
    EXPECT_STREQ([[frontAlert() title] UTF8String], "Not saved");
    EXPECT_THAT(dismissedMessage(), testing::HasSubstr("could not be written"));
    PSListController* page = settings::pane();
    PSTableCell* cell = [page cachedCellForSpecifier:[page specifierForID:@"enabled"]];
    EXPECT_TRUE([[static_cast<PSSwitchTableCell*>(cell) control] isOn]) << "shows what was not stored";
    change([](Conditions& conditions) { conditions.faults.diskFull = false; });
    EXPECT_EQ(stored(), (json{{"enabled", true}}));
    settle();
    EXPECT_EQ(heard, 2) << "there is nothing to tell before the file is in place";
}

// Photos goes on running all the time: it hears of the defaults, and of albums only by their keys.
TEST_F(PaneSettings, go_back_to_their_defaults_after_a_question) {
    change([](Conditions& conditions) { conditions.release = Release::ios11_4; });
    json changed = {{"albumNameFamily", false}, {"my albumName", "NO"}, {"somethingElse", "kept"}};
    json defaults = {{"albumNameFamily", true}, {"my albumName", true}, {"somethingElse", "kept"}};
    for (const TableRow& setting : readTable("settings.tsv")) {
        defaults[setting.at("key")] = json::parse(setting.at("default"));
        changed[setting.at("key")] = 1;
    }
    changed["showVideos"] = false;
    writePreferences(changed);
    lockAlbums({"Work"});
    device().writeFile(file::password, "secret");
    HostProcess photos = startProcess(host::photos);
    const auto lists = [&](const char* title) {
        return photos.call("albums").dump().find("\"" + std::string(title) + "\"") != std::string::npos;
    };
    EXPECT_FALSE(lists("Family") || lists("Videos"));
    openPane();
    const auto reset = [&](const char* answer) {
        settings::tapRow("Reset All Settings");
        EXPECT_STREQ([[frontAlert() title] UTF8String], "Reset all settings?");
        tapAlertAction(answer);
    };
    reset("Cancel");
    EXPECT_EQ(stored(), changed);
    change([](Conditions& conditions) { conditions.faults.diskFull = true; });
    reset("Reset");
    EXPECT_THAT(dismissedMessage(), testing::HasSubstr("could not be written"));
    EXPECT_EQ(stored(), changed);
    change([](Conditions& conditions) { conditions.faults.diskFull = false; });
    reset("Reset");
    EXPECT_EQ(stored(), defaults);
    EXPECT_EQ(valueOf("Enabled"), 1);
    waitFor([&] { return lists("Family") && lists("Videos"); });
    EXPECT_EQ(lockedAlbums(), std::vector<std::string>{"Work"});
    EXPECT_EQ(device().readFile(file::password), "secret");

    device().writeFile(file::preferences, "no property list");
    reset("Reset");
    EXPECT_EQ(stored().size(), readTable("settings.tsv").size());
}

class PaneOnRelease : public PaneSettings, public testing::WithParamInterface<Release> {};

TEST_P(PaneOnRelease, shows_and_stores_everything) {
    change([](Conditions& conditions) { conditions.release = GetParam(); });
    openPane();
    collectRows({});
    EXPECT_EQ(shown.size(), readTable("settings.tsv").size());
    openPage({});
    settings::setControl("Enabled", false);
    EXPECT_EQ(stored(), (json{{"enabled", false}}));
}

INSTANTIATE_TEST_SUITE_P(All, PaneOnRelease, testing::ValuesIn(allReleases));

} // namespace
} // namespace simulator::test
