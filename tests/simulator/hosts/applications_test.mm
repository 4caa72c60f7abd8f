// Every application starts, and each has its own classes only.
#import "UIKit/UIKit.h"
#import "UIKit/ViewTree.h"

#include "device/exceptions.h"
#include "hosts/applications/catalogue.h"
#include "simulator/hosts/hosts_test.h"

#include <objc/runtime.h>

#include <algorithm>
#include <set>

namespace simulator::test {
namespace {

class EveryApplication : public HostsTest, public testing::WithParamInterface<CatalogueEntry> {};

std::string nameOf(const testing::TestParamInfo<CatalogueEntry>& info) {
    std::string name(info.param.bundleIdentifier);
    std::ranges::replace(name, '.', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Catalogue, EveryApplication, testing::ValuesIn(catalogue()), nameOf);

TEST_P(EveryApplication, shows_its_first_screen) {
    start(std::string(GetParam().bundleIdentifier));
    UIApplication* application = [UIApplication sharedApplication];
    EXPECT_STREQ(class_getName([application class]), GetParam().applicationClass);
    ASSERT_TRUE([[application keyWindow] rootViewController] != nil);
    EXPECT_FALSE(viewTreeAsJson().at("keyWindow").at("subviews").empty());
}

const struct {
    const char* className;
    std::set<std::string_view> applications;
} presence[] = {
    {"PUAlbumListViewController", {bundle::photos, bundle::camera, bundle::plain, bundle::jolly}},
    {"PUAssetHidingHelper", {bundle::photos, bundle::camera, bundle::plain, bundle::jolly}},
    {"PXUIButton", {bundle::photos, bundle::camera, bundle::plain, bundle::jolly}},
    {"PhotosApplication", {bundle::photos}},
    {"CAMBottomBar", {bundle::camera}},
    {"CAMCaptureEngine", {bundle::camera}},
    {"CustomDrawButton", {}},
    {"SpringBoard", {bundle::springBoard}},
    {"PreferencesAppController", {bundle::settings}},
    {"MNPhotosAlbumDataSource", {bundle::messenger}},
    {"MNMontageAlbumListViewController", {bundle::messenger}},
};

TEST_P(EveryApplication, has_no_class_of_another) {
    start(std::string(GetParam().bundleIdentifier));
    for (const auto& each : presence)
        EXPECT_EQ(objc_getClass(each.className) != Nil,
                  each.applications.contains(GetParam().bundleIdentifier))
            << each.className;
}

// No class with a prefix of the photo, camera or preference frameworks may be forgotten in the list of
// frameworks.
TEST_F(HostsTest, springboard_has_no_class_of_the_frameworks_that_it_does_not_load) {
    start(bundle::springBoard);
    std::vector<Class> classes(static_cast<std::size_t>(objc_getClassList(nullptr, 0)));
    objc_getClassList(classes.data(), static_cast<int>(classes.size()));
    int seen = 0;
    for (Class each : classes) {
        const std::string name = class_getName(each);
        const bool claimed =
            std::ranges::any_of(std::initializer_list<const char*>{"PU", "PX", "CAM", "MN", "PS", "PL"},
                                [&](const char* prefix) { return name.starts_with(prefix); });
        if (!claimed) continue;
        ++seen;
        EXPECT_TRUE(objc_getClass(name.c_str()) == Nil) << name;
    }
    EXPECT_GT(seen, 30);
}

TEST_F(HostsTest, an_application_may_be_without_a_framework_that_it_usually_has) {
    setHasFramework(bundle::plain, "PhotosUI", false);
    start(bundle::plain);
    EXPECT_TRUE(objc_getClass("PUAssetHidingHelper") == Nil);
    EXPECT_EQ(standardExceptionOf([] { setHasFramework("no.such.application", "PhotosUI", true); }),
              "no application no.such.application is known");
}

} // namespace
} // namespace simulator::test
