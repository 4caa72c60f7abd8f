// What the preference file says, and what holds when it says nothing or nonsense.
#import "settings/settings_test.h"

#import "PhotosUI/PhotosUI.h"
#import "UIKit/ViewTree.h"

#include "hosts/applications/photos/photos_app.h"
#include "support/table.h"

#include <gmock/gmock.h>
#include <objc/runtime.h>

#include <atomic>
#include <set>
#include <thread>

namespace simulator::test {
namespace {

using nlohmann::json;

// Keys that other applications' behaviour shows.
const std::set<std::string> shownElsewhere = {"hideLockedFromApps",  "enableCameraPicker",
                                              "rememberDefault",     "pickerMovePhotos",
                                              "saveActivityEnabled", "saveActivityMove"};

TEST_F(SettingsTest, every_boolean_key_has_its_default_and_its_effect) {
    startPhotos();
    std::size_t tested = 0;
    for (const TableRow& row : readTable("settings.tsv")) {
        const std::string& key = row.at("key");
        if (row.at("type") != "boolean" || shownElsewhere.contains(key)) continue;
        SCOPED_TRACE(key);
        ++tested;
        // A locked album has to open without questions.
        json preferences = {{"passOption", 2}};
        reload(preferences);
        EXPECT_EQ(isOn(key), row.at("default") == "true");
        for (const bool value : {false, true, false}) {
            preferences[key] = value;
            reload(preferences);
            EXPECT_EQ(isOn(key), value);
        }
    }
    EXPECT_EQ(tested, 28U);
}

TEST_F(SettingsTest, keys_without_effect_change_nothing) {
    startPhotos();
    const auto before = observe();
    for (const bool value : {true, false}) {
        json preferences = json::object();
        for (const char* key : {"hideRollAlbum", "hideRollScreenshots", "hideHiddenStock", "reorderStock",
                                "showLockedinCamera", "showLockedinSaveActivity", "noSuchKey"})
            preferences[key] = value;
        reload(preferences);
        EXPECT_EQ(observe(), before);
    }
}

TEST_F(SettingsTest, values_of_other_types_convert_or_count_as_absent) {
    const struct {
        json value;
        bool whenDefaultIsOn;
        bool whenDefaultIsOff;
    } cases[] = {
        {true, true, true},
        {false, false, false},
        {1, true, true},
        {0, false, false},
        {-3, true, true},
        {1.5, true, true},
        {0.0, false, false},
        {"YES", true, true},
        {"true", true, true},
        {"1", true, true},
        {"NO", false, false},
        {"0", false, false},
        {"false", false, false},
        {"", false, false},
        {"maybe", false, false},
        {json::array(), true, false},
        {json::array({false}), true, false},
        {json::object(), true, false},
        {{{"showPeople", false}}, true, false},
    };
    startPhotos();
    for (const auto& each : cases) {
        SCOPED_TRACE(each.value.dump());
        reload({{"showPeople", each.value}, {"skipDelete", each.value}});
        EXPECT_EQ(isOn("showPeople"), each.whenDefaultIsOn);
        EXPECT_EQ(isOn("skipDelete"), each.whenDefaultIsOff);
    }
}

TEST_F(SettingsTest, a_date_and_data_count_as_absent) {
    startPhotos();
    device().writeFile(file::preferences, R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
<key>showPeople</key><date>2017-01-01T00:00:00Z</date>
<key>skipDelete</key><data>AAAA</data>
<key>layoutFontSize</key><date>2017-01-01T00:00:00Z</date>
<key>albumNameFamily</key><data>AAAA</data>
<key>removeSearch</key><true/>
</dict></plist>)");
    postReload();
    EXPECT_TRUE(isOn("showPeople"));
    EXPECT_FALSE(isOn("skipDelete"));
    EXPECT_TRUE(listsAlbum("Family"));
    EXPECT_TRUE(isOn("removeSearch")) << "the file was not read at all";
}

TEST_F(SettingsTest, a_file_in_binary_form_is_read) {
    startPhotos();
    @autoreleasepool {
        NSDictionary* preferences = @{
            @"skipDelete" : [NSNumber numberWithBool:YES],
            @"showPeople" : [NSNumber numberWithBool:NO],
        };
        NSData* bytes = [NSPropertyListSerialization dataFromPropertyList:preferences
                                                                   format:NSPropertyListBinaryFormat_v1_0
                                                         errorDescription:nullptr];
        device().writeFile(file::preferences, {static_cast<const char*>([bytes bytes]), [bytes length]});
    }
    postReload();
    EXPECT_TRUE(isOn("skipDelete"));
    EXPECT_FALSE(isOn("showPeople"));
}

// Damaged preference files.

const std::string wholeFile = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict><key>skipDelete</key><true/><key>showPeople</key><false/></dict></plist>)";

const struct {
    const char* name;
    std::string content;
} damagedFiles[] = {
    {"empty", ""},
    {"blank", " \n"},
    {"truncated", wholeFile.substr(0, wholeFile.size() / 2)},
    {"without its end", wholeFile.substr(0, wholeFile.size() - 20)},
    {"text", "skipDelete"},
    {"zeros", std::string(64, '\0')},
    {"noise", "\xFF\xFE\x01\x80\xC3\x28 noise \x07"},
    {"binary head alone", "bplist00"},
    {"binary noise", "bplist00\xD1\x01\x02\xFF\xFF\xFF\xFF" + std::string(40, '\xFF')},
    {"binary trailer that points outside",
     "bplist00" + std::string(32 - 26, '\0') + "\x08\x08" + std::string(7, '\x7F') + std::string(17, '\x7F')},
    {"array as root", "<plist version=\"1.0\"><array><string>skipDelete</string></array></plist>"},
    {"string as root", "<plist version=\"1.0\"><string>skipDelete</string></plist>"},
    {"no root", "<plist version=\"1.0\"></plist>"},
    {"key without value", "<plist version=\"1.0\"><dict><key>skipDelete</key></dict></plist>"},
    {"mixed up elements", "<plist version=\"1.0\"><dict><true/><key>skipDelete</dict></plist>"},
};

TEST_F(SettingsTest, damaged_files_give_the_defaults_on_reload) {
    startPhotos();
    const auto defaults = observe();
    for (const auto& each : damagedFiles) {
        SCOPED_TRACE(each.name);
        reload({{"skipDelete", true}, {"showPeople", false}});
        ASSERT_NE(observe(), defaults);
        device().writeFile(file::preferences, each.content);
        postReload();
        EXPECT_EQ(observe(), defaults);
    }
}

TEST_F(SettingsTest, missing_and_unreadable_files_give_the_defaults_on_reload) {
    startPhotos();
    const auto defaults = observe();
    const std::function<void()> makeUnavailable[] = {
        [&] { device().remove(file::preferences); },
        [&] { change([](Conditions& conditions) { conditions.faults.unreadable = {file::preferences}; }); },
        [&] {
            device().remove(file::preferences);
            std::filesystem::create_directory(device().onLinux(file::preferences));
        },
    };
    for (const auto& each : makeUnavailable) {
        change([](Conditions& conditions) { conditions.faults.unreadable.clear(); });
        reload({{"skipDelete", true}, {"showPeople", false}});
        ASSERT_NE(observe(), defaults);
        each();
        postReload();
        EXPECT_EQ(observe(), defaults);
    }
}

class DamagedAtStart : public SettingsTest, public testing::WithParamInterface<std::size_t> {};

TEST_P(DamagedAtStart, the_library_is_enabled_with_its_defaults) {
    device().writeFile(file::preferences, damagedFiles[GetParam()].content);
    EXPECT_FALSE(start(host::photos).installations().empty());
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedAtStart, testing::Values(0, 2, 5, 8, 10));

// Album visibility.

TEST_F(SettingsTest, an_album_that_was_switched_off_stays_so_when_its_key_goes) {
    startPhotos({{"albumNameFamily", false}, {"albumNamePets", true}});
    EXPECT_FALSE(listsAlbum("Family"));
    EXPECT_TRUE(listsAlbum("Pets"));
    EXPECT_TRUE(listsAlbum("Holidays"));
    reload(json::object());
    EXPECT_FALSE(listsAlbum("Family"));
    device().remove(file::preferences);
    postReload();
    EXPECT_FALSE(listsAlbum("Family"));
    reload({{"albumNameHolidays", "NO"}});
    EXPECT_FALSE(listsAlbum("Family"));
    EXPECT_FALSE(listsAlbum("Holidays"));
    reload({{"albumNameFamily", true}});
    EXPECT_TRUE(listsAlbum("Family"));
    EXPECT_FALSE(listsAlbum("Holidays"));
}

TEST_F(SettingsTest, only_the_exact_key_switches_an_album_off) {
    startPhotos({{"myalbumNameFamily", false},
                 {"albumNamefamily", false},
                 {"albumNameFamily ", false},
                 {"albumname", false},
                 {"albumName", false},
                 {"albumNameHolidays", json::array({false})}});
    EXPECT_TRUE(listsAlbum("Family"));
    EXPECT_TRUE(listsAlbum("Holidays")) << "what does not convert switches nothing off";
}

TEST_F(SettingsTest, readers_on_other_threads_survive_reloads) {
    startPhotos();
    std::atomic<bool> done{false};
    std::atomic<int> readings{0};
    std::thread readers[2];
    for (std::thread& reader : readers)
        reader = std::thread([&] {
            while (!done) {
                (void)listsAlbum("Family");
                ++readings;
            }
        });
    for (int turn = 0; turn < 20; ++turn)
        reload({{"albumNameFamily", turn % 2 == 0}, {"albumName" + std::to_string(turn), false}});
    waitFor([&] { return readings > 20; });
    done = true;
    for (std::thread& reader : readers)
        reader.join();
    EXPECT_FALSE(listsAlbum("Family"));
}

// The integer keys.

struct FontSizes {
    CGFloat title;
    CGFloat subtitle;

    bool operator==(const FontSizes&) const = default;
};

std::ostream& operator<<(std::ostream& out, const FontSizes& sizes) {
    return out << sizes.title << " and " << sizes.subtitle;
}

FontSizes fontSizes() {
    @autoreleasepool {
        PUAlbumListCellContentView* cell = [[[objc_getClass("PUAlbumListCellContentView") alloc]
            initWithFrame:CGRectMake(0, 0, 100, 140)] autorelease];
        [cell layoutSubviews];
        return {[[[cell _titleTextField] font] pointSize], [[[cell _subtitleLabel] font] pointSize]};
    }
}

TEST_F(SettingsTest, the_font_size_follows_its_rules) {
    const struct {
        json preferences;
        FontSizes expected;
    } cases[] = {
        {json::object(), {14, 14}},
        {{{"layoutFontSize", 20}}, {20, 20}},
        {{{"layoutFontSize", "20"}}, {20, 20}},
        {{{"layoutFontSize", 20.9}}, {20, 20}},
        {{{"layoutFontSize", true}}, {1, 1}},
        {{{"layoutFontSize", json::array({20})}}, {14, 14}},
        {{{"layoutFontSize", "large"}}, {14, 14}},
        // A size at which the stock fonts are left alone.
        {{{"layoutFontSize", 15}}, {15, 12}},
        {{{"layoutFontSize", 0}}, {14, 14}},
        {{{"layoutFontSize", -5}}, {14, 14}},
        {{{"layoutFontSize", 0}, {"layoutShowTitle", false}}, {0, 14}},
        {{{"layoutFontSize", 0}, {"layoutShowSubtitle", false}}, {14, 0}},
        {{{"layoutFontSize", 20}, {"layoutShowTitle", false}}, {0, 20}},
        {{{"layoutFontSize", 0}, {"layoutShowTitle", false}, {"layoutShowSubtitle", false}}, {0, 0}},
        // The two switches count as they are now, not as they were.
        {{{"layoutFontSize", 0}}, {14, 14}},
    };
    startPhotos();
    for (const auto& each : cases) {
        SCOPED_TRACE(each.preferences.dump());
        reload(each.preferences);
        EXPECT_EQ(fontSizes(), each.expected);
    }
}

const char* overlayOf(const char* album) {
    UIView* overlay =
        [[photos::albumCell(photos::openAlbumList(), album) albumListCellContentView] viewWithTag:200];
    if (overlay == nil) return "none";
    if ([[overlay subviews] count] == 0) return "picture";
    return [[[overlay subviews] firstObject] isKindOfClass:[UIVisualEffectView class]] ? "blur" : "glyph";
}

TEST_F(SettingsTest, a_locked_album_is_covered_as_preview_and_pass_option_say) {
    const struct {
        json preferences;
        const char* overlay;
    } cases[] = {
        {json::object(), "blur"},
        {{{"lockedAlbumPreview", 0}}, "blur"},
        {{{"lockedAlbumPreview", 1}}, "picture"},
        {{{"lockedAlbumPreview", "2"}}, "glyph"},
        {{{"lockedAlbumPreview", 3}}, "none"},
        {{{"lockedAlbumPreview", json::array()}}, "blur"},
        {{{"lockedAlbumPreview", 1}, {"passOption", 2}}, "none"},
        {{{"lockedAlbumPreview", 1}, {"passOption", "2"}}, "none"},
        {{{"passOption", 2}}, "none"},
        {{{"lockedAlbumPreview", 1}, {"passOption", 1}}, "picture"},
        {{{"lockedAlbumPreview", 1}, {"passOption", json::array({2})}}, "picture"},
    };
    startPhotos();
    for (const auto& each : cases) {
        SCOPED_TRACE(each.preferences.dump());
        // An overlay stays until the album is seen unlocked.
        lockAlbums({});
        EXPECT_STREQ(overlayOf("Family"), "none");
        lockAlbums({"Family"});
        reload(each.preferences);
        EXPECT_STREQ(overlayOf("Family"), each.overlay);
    }
}

struct PassCase {
    json preferences;
    BiometricOutcome outcome;
    bool asksForPassword;
};

class PassOption : public SettingsTest, public testing::WithParamInterface<PassCase> {};

TEST_P(PassOption, says_how_a_locked_album_opens) {
    change([](Conditions& conditions) { conditions.biometricOutcome = GetParam().outcome; });
    startPhotos(GetParam().preferences);
    photos::openAlbumList();
    photos::tapAlbum("Work");
    const auto isOpen = [] {
        return [[[photos::library() selectedNavigationController] viewControllers] count] == 2;
    };
    waitFor([&] { return frontAlert() != nil || isOpen(); });
    EXPECT_EQ(isOpen(), !GetParam().asksForPassword);
}

INSTANTIATE_TEST_SUITE_P(Values, PassOption,
                         testing::Values(PassCase{json::object(), BiometricOutcome::success, false},
                                         PassCase{json::object(), BiometricOutcome::failed, true},
                                         PassCase{{{"passOption", 0}}, BiometricOutcome::failed, true},
                                         PassCase{{{"passOption", 1}}, BiometricOutcome::success, true},
                                         PassCase{{{"passOption", "1"}}, BiometricOutcome::success, true},
                                         PassCase{{{"passOption", 2}}, BiometricOutcome::failed, false}));

} // namespace
} // namespace simulator::test
