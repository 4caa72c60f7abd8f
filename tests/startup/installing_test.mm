// Installing works in every host of every release and under every kind of hooking framework, and leaves a
// switched-off host alone.
#import "UIKit/UIKit.h"

#include "hosts/applications/catalogue.h"
#include "hosts/applications/photos/photos_app.h"
#include "support/library_fixture.h"

#include <gmock/gmock.h>
#include <objc/runtime.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <algorithm>
#include <array>

namespace simulator::test {
namespace {

using nlohmann::json;

constexpr const char* allHosts[] = {host::camera,   host::photos, host::messenger,
                                    host::whatsApp, host::imgur,  host::springBoard,
                                    host::settings, host::plain,  host::jolly};

class Installing : public LibraryTest {};

// A switched-off library.

class SwitchedOff : public LibraryTest, public testing::WithParamInterface<const char*> {};

TEST_P(SwitchedOff, changes_no_method_of_the_host_now_or_later) {
    writePreferences({{"enabled", false}});
    const Host& running = start(GetParam());
    const auto ofTheHost = [](const Installation& each) { return each.className != "RKFlowLayout"; };
    EXPECT_TRUE(std::ranges::none_of(running.installations(), ofTheHost));
    reloadPreferences({{"enabled", true}});
    EXPECT_TRUE(std::ranges::none_of(running.installations(), ofTheHost));
}

INSTANTIATE_TEST_SUITE_P(Hosts, SwitchedOff, testing::ValuesIn(allHosts));

// Counts how often a file is opened.
class OpenCounter {
  public:
    explicit OpenCounter(const std::filesystem::path& file) : m_events(inotify_init1(IN_NONBLOCK)) {
        inotify_add_watch(m_events, file.c_str(), IN_OPEN);
    }
    ~OpenCounter() { close(m_events); }
    OpenCounter(const OpenCounter&) = delete;
    OpenCounter& operator=(const OpenCounter&) = delete;

    // Since the last call.
    int take() {
        alignas(inotify_event) std::array<char, 4096> buffer;
        int count = 0;
        for (ssize_t size = 0; (size = read(m_events, buffer.data(), buffer.size())) > 0;)
            count += static_cast<int>(size / static_cast<ssize_t>(sizeof(inotify_event)));
        return count;
    }

  private:
    int m_events;
};

TEST_F(Installing, a_switched_off_library_still_reads_its_settings_and_hears_of_changes) {
    writePreferences({{"enabled", false}});
    OpenCounter opened(device().onLinux(file::preferences));
    start(host::photos);
    EXPECT_GT(opened.take(), 0);
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(),
                                         (CFStringRef) @"com.nrv.rollkeeperprefs/reloadPrefs", nullptr,
                                         nullptr, true);
    waitFor([&] { return opened.take() > 0; });
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(),
                                         (CFStringRef) @"com.nrv.rollkeeperprefs", nullptr, nullptr, true);
    settle();
    EXPECT_EQ(opened.take(), 0) << "another notification is none of its business";
}

TEST_F(Installing, switching_off_later_leaves_the_methods_in_place) {
    const Host& running = start(host::photos);
    const auto before = running.installations();
    reloadPreferences({{"enabled", false}});
    reloadPreferences({{"enabled", true}});
    EXPECT_EQ(running.installations(), before);
}

// The library's own class.

TEST_F(Installing, registers_the_flow_layout_in_every_host_with_UIKit) {
    writePreferences({{"enabled", false}});
    start(host::plain);
    Class flowLayout = objc_getClass("RKFlowLayout");
    ASSERT_TRUE(flowLayout != Nil);
    EXPECT_STREQ(class_getName(class_getSuperclass(flowLayout)), "UICollectionViewFlowLayout");
    UICollectionViewFlowLayout* layout = [[[flowLayout alloc] init] autorelease];
    EXPECT_TRUE([layout isMemberOfClass:flowLayout]);
    UICollectionViewFlowLayout* stock = [[[UICollectionViewFlowLayout alloc] init] autorelease];
    EXPECT_EQ([layout itemSize].width, [stock itemSize].width);
}

// Missing classes and methods, release by release.

// The signatures of hooked methods, by class and message.
bool existsIn(Release release, const std::string& className, const std::string& message) {
    return std::ranges::any_of(signatureTable(), [&](const SignatureRow& row) {
        return row.className == className && row.kind + row.selector == message && row.existsIn(release);
    });
}

class Releases : public LibraryTest, public testing::WithParamInterface<Release> {};

TEST_P(Releases, load_the_library_into_every_host_and_take_what_rows_they_can) {
    change([](Conditions& conditions) { conditions.release = GetParam(); });
    for (const char* application : allHosts) {
        SCOPED_TRACE(application);
        HostProcess process = startProcess(application);
        std::size_t installed = 0;
        const json answer = process.call("hooks");
        for (const json& hook : answer.at("hooks")) {
            const std::string className = hook.at("class");
            const std::string message = hook.at("method");
            const bool isReplaced = hook.at("kind") == "replaced";
            const bool isThere =
                !className.empty() && (!isReplaced || existsIn(GetParam(), className, message));
            EXPECT_EQ(hook.at("installed").get<bool>(), isThere) << className << " " << message;
            installed += isThere;
        }
        const bool hasHooks = application != std::string(host::jolly) && GetParam() > Release::ios7_1;
        if (hasHooks) EXPECT_GT(installed, 0U);
        EXPECT_EQ(process.call("ready").at("release"), releaseName(GetParam())) << "the host is gone";
    }
}

INSTANTIATE_TEST_SUITE_P(All, Releases, testing::ValuesIn(allReleases), [](const auto& info) {
    std::string name(releaseName(info.param));
    std::ranges::replace(name, '.', '_');
    return name;
});

TEST_F(Installing, rows_of_missing_classes_change_nothing) {
    setHasFramework(host::photos, "PhotosUICore", false);
    for (const Installation& each : start(host::photos).installations()) {
        const bool isMissing = each.className.empty();
        if (isMissing) EXPECT_FALSE(each.installed) << each.selector;
    }
    EXPECT_TRUE(std::ranges::any_of(host().installations(),
                                    [](const Installation& each) { return each.className.empty(); }));
    EXPECT_GT([[photos::openAlbumList() mainCollectionView] numberOfItemsInSection:0], 0);
}

// Two replacements of one method.

struct DoubleCase {
    const char* bundleIdentifier;
    const char* selector;
};

class DoubleReplacement : public LibraryTest, public testing::WithParamInterface<DoubleCase> {};

TEST_P(DoubleReplacement, runs_the_later_one_first_which_reaches_the_earlier) {
    std::vector<Installation> found;
    std::ranges::copy_if(start(GetParam().bundleIdentifier).installations(), std::back_inserter(found),
                         [](const Installation& each) { return each.selector == GetParam().selector; });
    ASSERT_EQ(found.size(), 2U);
    const auto saved = [](const Installation& each) { return *static_cast<const void* const*>(each.slot); };
    Method method = class_getClassMethod(objc_getClass(found[0].className.c_str()),
                                         sel_registerName(GetParam().selector));
    EXPECT_EQ(reinterpret_cast<const void*>(method_getImplementation(method)), found[1].implementation);
    EXPECT_EQ(saved(found[1]), found[0].implementation);
    EXPECT_NE(saved(found[0]), found[0].implementation);
    EXPECT_NE(saved(found[0]), found[1].implementation);
}

INSTANTIATE_TEST_SUITE_P(Applications, DoubleReplacement,
                         testing::Values(DoubleCase{host::whatsApp,
                                                    "fetchAssetCollectionsWithType:subtype:options:"},
                                         DoubleCase{host::imgur, "fetchAssetsInAssetCollection:options:"}));

// Kinds of hooking framework.

class HookingStyles : public LibraryTest, public testing::WithParamInterface<HookingStyle> {};

TEST_P(HookingStyles, make_no_difference) {
    change([](Conditions& conditions) { conditions.hooking = GetParam(); });
    for (const Installation& each : start(host::photos).installations())
        if (each.slot != nullptr)
            EXPECT_TRUE(*static_cast<const void* const*>(each.slot) != nullptr)
                << each.className << " " << each.selector << " has nothing to pass calls on to";

    PUAlbumListViewController* list = photos::openAlbumList();
    EXPECT_EQ([[photos::openAlbum("Holidays") assets] count], 3U);
    // Inherited on the device: overridden for the class alone.
    UIViewController* other = [[[UIViewController alloc] init] autorelease];
    for (UIViewController* each : std::initializer_list<UIViewController*>{list, other})
        [each viewWillTransitionToSize:CGSizeMake(667, 375) withTransitionCoordinator:nil];
    EXPECT_TRUE([photos::openMoments() isViewLoaded]);
    settle();
}

INSTANTIATE_TEST_SUITE_P(All, HookingStyles,
                         testing::Values(HookingStyle{true, false}, HookingStyle{false, false},
                                         HookingStyle{true, true}, HookingStyle{false, true}));

} // namespace
} // namespace simulator::test
