// Settings: entries of installed tools, panes of rows, preference files and notifications.
#include "hosts/applications/settings/settings_app.h"

#import "CoreFoundation/CoreFoundation.h"
#import "UIKit/ViewTree.h"

#include "device/exceptions.h"
#include "simulator/hosts/hosts_test.h"

#include <gmock/gmock.h>

namespace simulator::test {
namespace {

using nlohmann::json;

constexpr const char* entryFile = "/Library/PreferenceLoader/Preferences/Example.plist";
constexpr const char* preferences = "/var/mobile/Library/Preferences/com.example.tool.plist";

json row(const char* label, const char* cell, const char* key, json more) {
    json all{{"cell", cell},
             {"label", label},
             {"key", key},
             {"defaults", "com.example.tool"},
             {"PostNotification", "com.example.tool/changed"}};
    all.update(more);
    return all;
}

json examplePane() {
    return {{"entry", {{"cell", "PSLinkCell"}, {"label", "Example"}}},
            {"title", "Example tool"},
            {"items",
             {{{"cell", "PSGroupCell"}, {"label", "General"}, {"footerText", "What it does."}},
              row("Enabled", "PSSwitchCell", "enabled", {{"default", true}}),
              row("Inverted", "PSSwitchCell", "inverted", {{"default", true}, {"negate", true}}),
              row("Size", "PSSliderCell", "size", {{"default", 14}, {"min", 8}, {"max", 20}}),
              row("Name", "PSEditTextCell", "name", {{"placeholder", "Nobody"}}),
              row("Mode", "PSLinkListCell", "mode",
                  {{"detail", "PSListItemsController"},
                   {"default", 0},
                   {"validValues", {0, 1}},
                   {"validTitles", {"Quiet", "Loud"}}})}}};
}

int notifications = 0;

void countNotification(CFNotificationCenterRef, void*, CFStringRef, const void*, CFDictionaryRef) {
    ++notifications;
}

class SettingsApp : public HostsTest {
  protected:
    void startSettings() {
        device().writePropertyList(entryFile, examplePane());
        start(bundle::settings);
    }
    json stored() {
        return device().exists(preferences) ? device().readPropertyList(preferences) : json::object();
    }
    json valueOf(const char* label) {
        for (const auto& each : settings::describePane(settings::pane()))
            if (each.value("label", "") == label) return each.at("value");
        return "no such row";
    }
};

TEST_F(SettingsApp, opens_the_pane_of_an_installed_tool_with_its_defaults) {
    startSettings();
    PSListController* pane = settings::openEntry("Example");
    EXPECT_STREQ([[pane title] UTF8String], "Example tool");
    EXPECT_EQ([pane numberOfGroups], 1);
    EXPECT_STREQ([[pane tableView:[pane table] titleForFooterInSection:0] UTF8String], "What it does.");
    const struct {
        const char* label;
        json value;
    } expected[] = {{"Enabled", 1}, {"Inverted", 0}, {"Size", 14}, {"Name", nullptr}, {"Mode", 0}};
    for (const auto& each : expected)
        EXPECT_EQ(valueOf(each.label), each.value) << each.label;
    EXPECT_TRUE(stored().empty()) << "reading writes nothing";
}

TEST_F(SettingsApp, stores_what_the_user_sets_and_tells_who_listens) {
    startSettings();
    CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), &notifications,
                                    countNotification,
                                    reinterpret_cast<CFStringRef>(@"com.example.tool/changed"), nullptr,
                                    CFNotificationSuspensionBehaviorDeliverImmediately);
    settings::openEntry("Example");
    settings::setControl("Enabled", false);
    settings::setControl("Inverted", true);
    settings::setControl("Size", 99);
    settings::setControl("Name", "Somebody");
    EXPECT_EQ(stored(),
              (json{{"enabled", false}, {"inverted", false}, {"size", 20.0}, {"name", "Somebody"}}));
    waitFor([] { return notifications == 4; });
    settings::setControl("Enabled", false);
    EXPECT_EQ(valueOf("Enabled"), 0);
}

TEST_F(SettingsApp, chooses_a_value_from_a_list) {
    startSettings();
    settings::openEntry("Example");
    settings::tapRow("Mode");
    PSListController* list = settings::pane();
    settings::tapRow("Loud");
    EXPECT_EQ(stored().at("mode"), 1);
    const auto isChecked = [&](NSInteger row) {
        return [[list tableView:[list table]
                   cellForRowAtIndexPath:[NSIndexPath indexPathForRow:row inSection:0]] isChecked] != NO;
    };
    EXPECT_FALSE(isChecked(0));
    EXPECT_TRUE(isChecked(1));
}

TEST_F(SettingsApp, leaves_out_entries_that_do_not_fit) {
    json tooNew = examplePane();
    tooNew["filter"] = {{"CoreFoundationVersion", {1443.0}}};
    device().writePropertyList("/Library/PreferenceLoader/Preferences/TooNew.plist", tooNew);
    json noBundle = examplePane();
    noBundle["entry"] = {
        {"cell", "PSLinkCell"}, {"label", "Gone"}, {"bundle", "Gone"}, {"isController", true}};
    device().writePropertyList("/Library/PreferenceLoader/Preferences/Gone.plist", noBundle);
    device().writeFile("/Library/PreferenceLoader/Preferences/Damaged.plist", "no property list");
    start(bundle::settings);
    const auto rows = settings::describePane(settings::pane());
    EXPECT_EQ(rows.size(), 3U) << rows.dump();
    EXPECT_EQ(standardExceptionOf([] { settings::openEntry("Gone"); }),
              "the pane \"Settings\" has no row \"Gone\"");
}

class Rows : public SettingsApp {
  protected:
    Rows() { startSettings(); }

    PSSpecifier* rowNamed(NSString* name) {
        return [PSSpecifier preferenceSpecifierNamed:name
                                              target:nil
                                                 set:nullptr
                                                 get:nullptr
                                              detail:Nil
                                                cell:PSStaticTextCell
                                                edit:Nil];
    }
    std::string namesOf(PSListController* list) {
        std::string names;
        for (PSSpecifier* each in [list specifiers])
            names += [[each name] UTF8String];
        return names;
    }
};

TEST_F(Rows, are_inserted_removed_and_found) {
    PSListController* list = [[[PSListController alloc] init] autorelease];
    PSSpecifier* a = rowNamed(@"a");
    PSSpecifier* d = rowNamed(@"d");
    [list setSpecifiers:@[ a, [PSSpecifier groupSpecifierWithName:@"G"], d ]];
    [list insertContiguousSpecifiers:@[ rowNamed(@"b"), rowNamed(@"c") ] afterSpecifier:a animated:YES];
    EXPECT_EQ(namesOf(list), "abcGd");
    EXPECT_EQ([list numberOfGroups], 2);
    EXPECT_EQ([list rowsForGroup:0], 3);
    EXPECT_EQ([list rowsForGroup:1], 1);
    EXPECT_TRUE([[list indexPathForSpecifier:d] isEqual:[NSIndexPath indexPathForRow:0 inSection:1]]);
    EXPECT_TRUE([list specifierAtIndexPath:[NSIndexPath indexPathForRow:0 inSection:1]] == d);
    EXPECT_EQ([list indexOfSpecifier:rowNamed(@"x")], static_cast<NSInteger>(NSNotFound));
    [list removeSpecifier:a];
    [list insertSpecifier:rowNamed(@"e") atEndOfGroup:1];
    [list removeSpecifier:rowNamed(@"x") animated:NO];
    EXPECT_EQ(namesOf(list), "bcGde");
}

TEST_F(Rows, know_their_cell_types_by_name) {
    const struct {
        NSString* name;
        NSInteger number;
    } types[] = {{@"PSGroupCell", 0},
                 {@"PSSwitchCell", 6},
                 {@"PSButtonCell", 13},
                 {@"PSSpinnerCell", 15},
                 {@"Other", -1}};
    for (const auto& each : types)
        EXPECT_EQ([PSTableCell cellTypeFromString:each.name], each.number);
    EXPECT_TRUE([PSTableCell stringFromCellType:99] == nil);
}

} // namespace
} // namespace simulator::test
