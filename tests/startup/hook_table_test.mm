// Which methods the library replaces and adds in which host, once and for all at the start.
#include "support/library_fixture.h"
#include "support/table.h"

#include <algorithm>
#include <map>
#include <set>

namespace simulator::test {
namespace {

struct HostCase {
    const char* bundleIdentifier;
    const char* group; // null: none of its own
    std::optional<double> coreFoundationVersion = {};
    bool enabled = true;
};

std::ostream& operator<<(std::ostream& out, const HostCase& host) {
    return out << host.bundleIdentifier << " on " << host.coreFoundationVersion.value_or(0)
               << (host.enabled ? "" : " switched off");
}

// Bundle identifiers are compared exactly.
constexpr HostCase hosts[] = {
    {host::camera, "camera"},
    {host::photos, "photos"},
    {host::messenger, "messenger"},
    {host::whatsApp, "whatsapp"},
    {host::imgur, "imgur"},
    {host::springBoard, "springboard"},
    {host::settings, nullptr},
    {host::plain, nullptr},
    {host::jolly, nullptr},
    {"com.apple.Camera", nullptr},
    {"com.apple.mobileslideshow2", nullptr},
};

std::vector<HostCase> allCases() {
    std::vector<HostCase> cases = {{host::whatsApp, "whatsapp", 1299.9},
                                   {host::plain, nullptr, 1300.0},
                                   {host::photos, "photos", 1555.99},
                                   {host::photos, "photos", 1556.0},
                                   {host::camera, "camera", 1556.0}};
    for (HostCase each : hosts)
        for (const bool enabled : {true, false}) {
            each.enabled = enabled;
            cases.push_back(each);
        }
    return cases;
}

std::vector<TableRow> expectedRows(const HostCase& host) {
    std::vector<TableRow> expected;
    const bool isShared = host.bundleIdentifier != std::string(host::jolly);
    const bool isIos10 = host.coreFoundationVersion.value_or(1349.56) >= 1300.0;
    for (const TableRow& row : readTable("hook-table.tsv")) {
        const std::string& group = row.at("group");
        const bool isOwn = host.group != nullptr && group == host.group;
        const bool fromShared = isShared && (group == "shared" || (group == "sharedFromIos10" && isIos10));
        const bool isNew = host.coreFoundationVersion.value_or(0) >= 1556.0 && group == "albumsScreen" &&
                           host.bundleIdentifier == std::string(host::photos);
        if (host.enabled && (isOwn || fromShared || isNew)) expected.push_back(row);
    }
    return expected;
}

std::string describe(const TableRow& row) {
    return row.at("action") + " " + row.at("class") + " " + row.at("kind") + row.at("selector");
}

std::string describe(const Installation& installation) {
    const bool isReplaced = installation.kind == Installation::Kind::replaced;
    return std::string(isReplaced ? "replace " : "add ") + installation.className + " " +
           installation.methodKind + installation.selector;
}

class HookTable : public LibraryTest, public testing::WithParamInterface<HostCase> {
  protected:
    // The library's own class is no method of a host.
    std::vector<Installation> installations() {
        std::vector<Installation> found = host().installations();
        std::erase_if(found, [](const Installation& each) { return each.className == "RKFlowLayout"; });
        return found;
    }
};

TEST_P(HookTable, is_installed_in_order_with_own_slots_and_never_changes) {
    change([](Conditions& conditions) {
        conditions.release = Release::complete;
        conditions.coreFoundationVersion = GetParam().coreFoundationVersion;
    });
    writePreferences({{"enabled", GetParam().enabled}});
    start(GetParam().bundleIdentifier);
    const auto installed = installations();
    const auto rows = expectedRows(GetParam());
    ASSERT_EQ(installed.size(), rows.size());

    std::set<const void*> slots;
    for (std::size_t index = 0; index < rows.size(); ++index) {
        // A class that the host lacks is given as nil, which leaves neither a name nor a kind.
        Installation each = installed[index];
        if (each.className.empty()) {
            each.className = rows[index].at("class");
            each.methodKind = rows[index].at("kind")[0];
        }
        EXPECT_EQ(describe(each), describe(rows[index]));
        if (each.kind == Installation::Kind::replaced)
            EXPECT_TRUE(slots.insert(each.slot).second) << describe(each) << " shares its slot";
        else
            EXPECT_EQ(each.encoding, rows[index].at("encoding")) << describe(each);
    }
    for (const bool enabled : {false, true}) {
        reloadPreferences({{"enabled", enabled}});
        EXPECT_EQ(installations(), installed);
    }
}

INSTANTIATE_TEST_SUITE_P(Hosts, HookTable, testing::ValuesIn(allCases()));

// The rows of the Albums screen that a release has no method for.
const std::map<Release, std::vector<std::string>> missingOnAlbumsScreen = {
    {Release::ios12_0,
     {"navigateToAssetCollection:animated:",
      "previewViewControllerAtLocation:fromSourceView:outSourceRect:"}},
    {Release::ios12_4, {"replace PUHorizontalAlbumListGadget -navigateToCollection:animated:completion:"}}};

class AlbumsScreenRows : public LibraryTest, public testing::WithParamInterface<Release> {};

TEST_P(AlbumsScreenRows, are_installed_after_all_others_where_the_release_has_the_method) {
    change([](Conditions& conditions) { conditions.release = GetParam(); });
    start(host::photos);
    std::vector<std::string> expected;
    for (const TableRow& row : readTable("hook-table.tsv")) {
        const auto missing = missingOnAlbumsScreen.find(GetParam());
        if (row.at("group") != "albumsScreen" || missing == missingOnAlbumsScreen.end()) continue;
        const std::string text = describe(row);
        if (std::ranges::none_of(missing->second, [&](const auto& each) { return text.ends_with(each); }))
            expected.push_back(text);
    }
    // What comes after the last row of the other groups.
    std::vector<std::string> installed;
    for (const Installation& each : host().installations()) {
        installed.push_back(describe(each));
        if (each.className == "PHAssetCollection") installed.clear();
    }
    EXPECT_EQ(installed, expected);
}

INSTANTIATE_TEST_SUITE_P(Releases, AlbumsScreenRows,
                         testing::Values(Release::ios10_3, Release::ios11_4, Release::ios12_0,
                                         Release::ios12_4));

} // namespace
} // namespace simulator::test
