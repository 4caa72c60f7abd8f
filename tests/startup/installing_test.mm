// Loading works in every host of every release.
#import "UIKit/UIKit.h"

#include "hosts/applications/catalogue.h"
#include "hosts/applications/common/screen.h"
#include "support/library_fixture.h"

#include <objc/runtime.h>

#include <algorithm>

namespace simulator::test {
namespace {

using nlohmann::json;

constexpr const char* allHosts[] = {host::camera,   host::photos, host::messenger,
                                    host::whatsApp, host::imgur,  host::springBoard,
                                    host::settings, host::plain,  host::jolly};

class Installing : public LibraryTest {};

int readings; // of the preference file
IMP originalRead;

id countReading(id self, SEL command, NSString* path) {
    if (text(path) == file::preferences) ++readings;
    return reinterpret_cast<id (*)(id, SEL, id)>(originalRead)(self, command, path);
}

TEST_F(Installing, a_switched_off_library_still_reads_its_settings_and_hears_of_changes) {
    originalRead = method_setImplementation(
        class_getClassMethod([NSMutableDictionary class], @selector(dictionaryWithContentsOfFile:)),
        reinterpret_cast<IMP>(countReading));
    writePreferences({{"enabled", false}});
    start(host::photos);
    EXPECT_EQ(readings, 1);
    postReload();
    EXPECT_EQ(readings, 2);
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(),
                                         (CFStringRef) @"com.nrv.rollkeeperprefs", nullptr, nullptr, true);
    settle();
    EXPECT_EQ(readings, 2) << "another notification is none of its business";
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

INSTANTIATE_TEST_SUITE_P(All, Releases, testing::ValuesIn(allReleases, allReleases + 9));

} // namespace
} // namespace simulator::test
