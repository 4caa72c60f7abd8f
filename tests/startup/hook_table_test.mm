// Which methods the library replaces and adds in which host.
#include "support/library_fixture.h"
#include "support/table.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

namespace simulator::test {
namespace {

struct HostCase {
    const char* bundleIdentifier;
    const char* group; // null: none of its own
    Release release = Release::complete;
    std::optional<double> coreFoundationVersion = {};
};

std::ostream& operator<<(std::ostream& out, const HostCase& host) {
    return out << host.bundleIdentifier << " on " << host.coreFoundationVersion.value_or(0);
}

std::vector<TableRow> expectedRows(const HostCase& host) {
    std::vector<TableRow> expected;
    const bool isShared = host.bundleIdentifier != std::string(host::jolly);
    const bool isIos10 = host.coreFoundationVersion.value_or(1349.56) >= 1300.0;
    for (const TableRow& row : readTable("hook-table.tsv")) {
        const std::string& group = row.at("group");
        const bool isOwn = host.group != nullptr && group == host.group;
        const bool fromShared = isShared && (group == "shared" || (group == "sharedFromIos10" && isIos10));
        if (isOwn || fromShared) expected.push_back(row);
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

// The library's own class is no method of a host.
std::vector<Installation> hostInstallations(const Host& running) {
    std::vector<Installation> found;
    std::ranges::copy_if(running.installations(), std::back_inserter(found),
                         [](const Installation& each) { return each.className != "RKFlowLayout"; });
    return found;
}

class HookTable : public LibraryTest, public testing::WithParamInterface<HostCase> {};

TEST_P(HookTable, is_installed_in_order_with_own_slots) {
    change([](Conditions& conditions) {
        conditions.release = GetParam().release;
        conditions.coreFoundationVersion = GetParam().coreFoundationVersion;
    });
    const auto installed = hostInstallations(start(GetParam().bundleIdentifier));
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
}

INSTANTIATE_TEST_SUITE_P(Hosts, HookTable,
                         testing::Values(HostCase{host::camera, "camera"}, HostCase{host::photos, "photos"},
                                         HostCase{host::messenger, "messenger"},
                                         HostCase{host::whatsApp, "whatsapp"}, HostCase{host::imgur, "imgur"},
                                         HostCase{host::springBoard, "springboard"},
                                         HostCase{host::settings, nullptr}, HostCase{host::plain, nullptr},
                                         HostCase{host::jolly, nullptr},
                                         // Bundle identifiers are compared exactly.
                                         HostCase{"com.apple.Camera", nullptr},
                                         HostCase{"com.apple.mobileslideshow2", nullptr},
                                         HostCase{host::whatsApp, "whatsapp", Release::complete, 1299.9},
                                         HostCase{host::plain, nullptr, Release::complete, 1300.0}));

} // namespace
} // namespace simulator::test
