// What the preference file says, and what holds when it says nothing or nonsense.
#import "settings/settings_fixture.h"

#include "hosts/applications/plain/plain_app.h"
#include "support/table.h"

#include <set>

namespace simulator::test {
namespace {

using nlohmann::json;

// Keys that other applications' behaviour shows: in the tests of these applications.
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
        reloadPreferences(preferences);
        EXPECT_EQ(isOn(key), row.at("default") == "true");
        for (const bool value : {false, true, false}) {
            preferences[key] = value;
            reloadPreferences(preferences);
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
        reloadPreferences(preferences);
        EXPECT_EQ(observe(), before);
    }
}

TEST_F(SettingsTest, values_of_other_types_convert_or_count_as_absent) {
    const struct {
        std::vector<json> values;
        bool whenDefaultIsOn;
        bool whenDefaultIsOff;
    } cases[] = {
        {{true, 1, -3, 1.5, "YES", "true", "1"}, true, true},
        {{false, 0, 0.0, "NO", "0", "false", "", "maybe"}, false, false},
        {{json::array(), json::array({false}), json::object(), {{"showPeople", false}}}, true, false},
    };
    startPhotos();
    for (const auto& each : cases)
        for (const json& value : each.values) {
            SCOPED_TRACE(value.dump());
            reloadPreferences({{"showPeople", value}, {"skipDelete", value}});
            EXPECT_EQ(isOn("showPeople"), each.whenDefaultIsOn);
            EXPECT_EQ(isOn("skipDelete"), each.whenDefaultIsOff);
        }
}

std::string propertyList(const std::string& root) {
    return R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0">)" + root + "</plist>";
}

const json written = {{"skipDelete", true}, {"showPeople", false}};
const std::string dictionary = "<dict><key>skipDelete</key><true/><key>showPeople</key><false/></dict>";
const std::string wholeFile = propertyList(dictionary);

std::string binaryFile() {
    NSDictionary* preferences =
        @{@"skipDelete" : [NSNumber numberWithBool:YES], @"showPeople" : [NSNumber numberWithBool:NO]};
    NSData* bytes = [NSPropertyListSerialization dataFromPropertyList:preferences
                                                               format:NSPropertyListBinaryFormat_v1_0
                                                     errorDescription:nullptr];
    return {static_cast<const char*>([bytes bytes]), [bytes length]};
}

const struct {
    const char* name;
    std::string content;
} damagedFiles[] = {
    {"empty", ""},
    {"truncated", wholeFile.substr(0, wholeFile.size() / 2)},
    {"without its end", wholeFile.substr(0, wholeFile.size() - 20)},
    {"zeros", std::string(64, '\0')},
    {"noise", "\xFF\xFE\x01\x80\xC3\x28 noise \x07"},
    {"binary noise", "bplist00\xD1\x01\x02\xFF\xFF\xFF\xFF" + std::string(40, '\xFF')},
    {"binary trailer that points outside",
     "bplist00" + std::string(32 - 26, '\0') + "\x08\x08" + std::string(7, '\x7F') + std::string(17, '\x7F')},
    {"array as root", propertyList("<array><string>skipDelete</string></array>")},
    {"no root", propertyList("")},
};

class PreferenceFile : public SettingsTest {
  protected:
    // From a file that is read, and back.
    void expectDefaultsWhen(const char* name, const std::function<void()>& spoil) {
        SCOPED_TRACE(name);
        reloadPreferences(written);
        ASSERT_NE(observe(), m_defaults);
        spoil();
        postReload();
        EXPECT_EQ(observe(), m_defaults);
    }
    void startWithDefaults() {
        startPhotos();
        m_defaults = observe();
    }

  private:
    std::map<std::string, bool> m_defaults;
};

TEST_F(PreferenceFile, gives_the_defaults_when_it_cannot_be_read) {
    startWithDefaults();
    for (const auto& each : damagedFiles)
        expectDefaultsWhen(each.name, [&] { device().writeFile(file::preferences, each.content); });
    expectDefaultsWhen("unreadable", [&] {
        change([](Conditions& conditions) { conditions.faults.unreadable = {file::preferences}; });
    });
    change([](Conditions& conditions) { conditions.faults.unreadable.clear(); });
    expectDefaultsWhen("missing", [&] { device().remove(file::preferences); });
    expectDefaultsWhen("a folder", [&] {
        device().remove(file::preferences);
        std::filesystem::create_directory(device().onLinux(file::preferences));
    });
}

TEST_F(PreferenceFile, gives_the_defaults_when_it_cannot_be_read_at_the_start) {
    change([](Conditions& conditions) { conditions.release = Release::complete; });
    device().writeFile(file::preferences, wholeFile.substr(0, wholeFile.size() / 2));
    start(host::photos);
    EXPECT_TRUE(isOn("enabled"));
    EXPECT_FALSE(isOn("skipDelete"));
}

TEST_F(PreferenceFile, may_be_binary_and_hold_values_of_every_kind) {
    startWithDefaults();
    reloadPreferences(written);
    const auto expected = observe();
    const std::string more =
        "<key>removeSearch</key><data>AAAA</data><key>albumNameFamily</key><data>AAAA</data>"
        "<key>layoutFontSize</key><date>2017-01-01T00:00:00Z</date>"
        "<key>showSelfies</key><date>2017-01-01T00:00:00Z</date></dict>";
    for (const std::string& content :
         {binaryFile(), propertyList(dictionary.substr(0, dictionary.size() - 7) + more)}) {
        reloadPreferences(json::object());
        device().writeFile(file::preferences, content);
        postReload();
        EXPECT_EQ(observe(), expected);
        EXPECT_TRUE(listsAlbum("Family"));
        EXPECT_EQ(describeLockedAlbum(), "14 14 blur opens after Touch ID");
    }
}

// Its five companions of other applications are at their defaults in most tests of these.
TEST_F(SettingsTest, a_saved_picture_stays_visible_unless_told_otherwise) {
    start(host::plain);
    plain::saveImage();
    tapAlertAction("Pets");
    settle();
    EXPECT_EQ(numbersIn("Pets"), Numbers{10});
    EXPECT_EQ(hiddenNumbers(), Numbers());
}

// Album visibility.

TEST_F(SettingsTest, an_album_that_was_switched_off_stays_so_when_its_key_goes) {
    startPhotos({{"albumNameFamily", false}, {"albumNamePets", true}});
    const auto listed = [&] {
        std::string titles;
        for (const char* title : {"Holidays", "Family", "Pets"})
            if (listsAlbum(title)) titles += title + std::string(" ");
        return titles;
    };
    EXPECT_EQ(listed(), "Holidays Pets ");
    reloadPreferences(json::object());
    EXPECT_EQ(listed(), "Holidays Pets ");
    device().remove(file::preferences);
    postReload();
    EXPECT_EQ(listed(), "Holidays Pets ");
    reloadPreferences({{"albumNameHolidays", "NO"}});
    EXPECT_EQ(listed(), "Pets ");
    reloadPreferences({{"albumNameFamily", true}});
    EXPECT_EQ(listed(), "Family Pets ");
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

TEST_F(SettingsTest, integer_keys_follow_their_rules) {
    const struct {
        json preferences;
        const char* album;
    } cases[] = {
        {json::object(), "14 14 blur opens after Touch ID"},
        {{{"layoutFontSize", 20}, {"passOption", 0}}, "20 20 blur opens after Touch ID"},
        {{{"layoutFontSize", "20"}}, "20 20 blur opens after Touch ID"},
        {{{"layoutFontSize", 20.9}}, "20 20 blur opens after Touch ID"},
        {{{"layoutFontSize", true}}, "1 1 blur opens after Touch ID"},
        {{{"layoutFontSize", json::array({20})}}, "14 14 blur opens after Touch ID"},
        {{{"layoutFontSize", "large"}}, "14 14 blur opens after Touch ID"},
        // A size at which the stock fonts are left alone.
        {{{"layoutFontSize", 15}}, "15 12 blur opens after Touch ID"},
        {{{"layoutFontSize", 15}, {"layoutShowTitle", false}}, "0 12 blur opens after Touch ID"},
        {{{"layoutFontSize", 15}, {"layoutShowSubtitle", false}}, "15 0 blur opens after Touch ID"},
        {{{"layoutFontSize", 0}}, "14 14 blur opens after Touch ID"},
        {{{"layoutFontSize", -5}}, "14 14 blur opens after Touch ID"},
        {{{"layoutFontSize", 0}, {"layoutShowTitle", false}}, "0 14 blur opens after Touch ID"},
        {{{"layoutFontSize", 0}, {"layoutShowSubtitle", false}}, "14 0 blur opens after Touch ID"},
        {{{"layoutFontSize", 0}, {"layoutShowTitle", false}, {"layoutShowSubtitle", false}},
         "0 0 blur opens after Touch ID"},
        // The two switches count as they are now, not as they were.
        {{{"layoutFontSize", 0}}, "14 14 blur opens after Touch ID"},
        {{{"layoutFontSize", 20}, {"enabled", false}}, "20 20 blur opens after Touch ID"},
        {{{"lockedAlbumPreview", 1}}, "14 14 picture opens after Touch ID"},
        {{{"lockedAlbumPreview", "2"}}, "14 14 glyph opens after Touch ID"},
        {{{"lockedAlbumPreview", 3}}, "14 14 uncovered opens after Touch ID"},
        {{{"lockedAlbumPreview", json::array()}}, "14 14 blur opens after Touch ID"},
        {{{"lockedAlbumPreview", 1}, {"passOption", 1}}, "14 14 picture asks"},
        {{{"lockedAlbumPreview", 1}, {"passOption", "1"}}, "14 14 picture asks"},
        {{{"lockedAlbumPreview", 1}, {"passOption", 2}}, "14 14 uncovered opens"},
        {{{"lockedAlbumPreview", 1}, {"passOption", "2"}}, "14 14 uncovered opens"},
        {{{"lockedAlbumPreview", 1}, {"passOption", json::array({2})}}, "14 14 picture opens after Touch ID"},
    };
    startPhotos(json::object(), Release::ios11_4);
    for (const auto& each : cases) {
        SCOPED_TRACE(each.preferences.dump());
        // An overlay stays until the album is seen unlocked.
        lockAlbums({});
        EXPECT_TRUE((photos::openAlbumList(), overlay("Work") == nil));
        lockAlbums({"Work"});
        reloadPreferences(each.preferences);
        EXPECT_EQ(describeLockedAlbum(), each.album);
    }
}

} // namespace
} // namespace simulator::test
