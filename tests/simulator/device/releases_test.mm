#include "device/releases.h"
#include "frameworks/LocalAuthentication/LocalAuthentication.h"
#include "frameworks/ObjectiveC/ObjectiveC.h"
#include "simulator/device/device_test.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace simulator::test {
namespace {

const SignatureRow& row(std::string_view className, char kind, std::string_view selector) {
    const auto found = std::ranges::find_if(signatureTable(), [&](const SignatureRow& each) {
        return each.className == className && each.kind == kind && each.selector == selector;
    });
    if (found == signatureTable().end()) throw std::invalid_argument("no such row");
    return *found;
}

std::vector<std::string> releasesWith(const SignatureRow& wanted) {
    std::vector<std::string> names;
    for (const Release release : allReleases)
        if (wanted.existsIn(release)) names.emplace_back(releaseName(release));
    return names;
}

TEST(Releases, table_says_where_a_method_exists) {
    using Names = std::vector<std::string>;
    EXPECT_EQ(
        releasesWith(row("PUAlbumListViewController", '-', "visibleAlbumListCellContentViewAtIndexPath:")),
        (Names{"8.4", "9.3", "10.1", "10.2", "complete"}));
    EXPECT_EQ(releasesWith(row("PUAlbumListViewController", '-', "showPeople")),
              (Names{"10.1", "10.2", "10.3", "11.4", "complete"}));
    EXPECT_EQ(releasesWith(row("PUAssetViewModel", '-', "wantsIrisBadgeVisible")),
              (Names{"9.3", "10.1", "10.2", "10.3", "complete"}));
    EXPECT_EQ(releasesWith(row("UITabBar", '-', "hidden")), (Names{"complete"}));
}

TEST(Releases, names_and_versions_agree_with_the_device) {
    for (const Release release : allReleases)
        EXPECT_EQ(releaseNamed(releaseName(release)), release);
    EXPECT_FALSE(releaseNamed("10.9"));
    EXPECT_DOUBLE_EQ(coreFoundationVersion(Release::ios10_2), 1348.22);
    EXPECT_DOUBLE_EQ(coreFoundationVersion(Release::complete), coreFoundationVersion(Release::ios10_3));
}

std::string plainName(Release release) {
    std::string name(releaseName(release));
    std::ranges::replace(name, '.', '_');
    return name;
}

struct ClassCase {
    const char* name;
    Release release;
    bool present;
};

class ClassPresence : public testing::TestWithParam<ClassCase> {};

TEST_P(ClassPresence, follows_the_release) {
    setCurrentRelease(GetParam().release);
    EXPECT_EQ(objc_getClass(GetParam().name) != Nil, GetParam().present);
}

INSTANTIATE_TEST_SUITE_P(Releases, ClassPresence,
                         testing::Values(ClassCase{"LAContext", Release::ios7_1, false},
                                         ClassCase{"LAContext", Release::ios8_4, true},
                                         ClassCase{"LAContext", Release::complete, true},
                                         ClassCase{"NSString", Release::ios7_1, true},
                                         ClassCase{"NoSuchClass", Release::complete, false}),
                         [](const auto& info) {
                             return std::string(info.param.name) + "_" + plainName(info.param.release);
                         });

TEST(Releases, class_of_a_framework_is_there_once_the_framework_is_loaded) {
    registerFramework("Authentication", {"LAContext"});
    EXPECT_TRUE(objc_getClass("LAContext") != Nil);
    setLoadedFrameworks({"Foundation"});
    EXPECT_TRUE(objc_getClass("LAContext") == Nil);
    setLoadedFrameworks({"Foundation", "Authentication"});
    EXPECT_TRUE(objc_getClass("LAContext") != Nil);
}

struct MethodCase {
    Release release;
    bool present;
};

class MethodPresence : public testing::TestWithParam<MethodCase> {
  protected:
    MethodPresence() { setCurrentRelease(GetParam().release); }

    NSAutoreleasePool* m_pool = [[NSAutoreleasePool alloc] init];
    ~MethodPresence() override { [m_pool drain]; }
};

// containsString: came with iOS 8; strings are objects of subclasses that the table does not name.
TEST_P(MethodPresence, is_the_same_wherever_it_is_asked_for) {
    const bool present = GetParam().present;
    NSString* text = [NSMutableString stringWithString:@"text"];
    const SEL selector = @selector(containsString:);
    EXPECT_EQ([text respondsToSelector:selector] != NO, present);
    EXPECT_EQ([NSString instancesRespondToSelector:selector] != NO, present);
    EXPECT_EQ(class_getInstanceMethod([NSString class], selector) != nullptr, present);
    const std::string raised = exceptionOf([&] { objc_msgLookup(text, selector); });
    EXPECT_EQ(raised.empty(), present) << raised;
    if (!present)
        EXPECT_THAT(raised, testing::HasSubstr("containsString:]: unrecognized selector sent to instance"));
}

INSTANTIATE_TEST_SUITE_P(Releases, MethodPresence,
                         testing::Values(MethodCase{Release::ios7_1, false},
                                         MethodCase{Release::ios8_4, true},
                                         MethodCase{Release::ios12_4, true},
                                         MethodCase{Release::complete, true}),
                         [](const auto& info) { return plainName(info.param.release); });

TEST(Releases, a_name_of_no_release_exists_in_the_complete_one) {
    @autoreleasepool {
        LAContext* context = [[[LAContext alloc] init] autorelease];
        setCurrentRelease(Release::ios10_3);
        EXPECT_FALSE([context respondsToSelector:@selector(canEvaluatePolicy:)]);
        setCurrentRelease(Release::complete);
        EXPECT_TRUE([context respondsToSelector:@selector(canEvaluatePolicy:)]);
    }
}

id answerNumber(id, SEL) { return @"added"; }

TEST(Releases, a_method_that_is_absent_can_be_added_and_is_there_from_then_on) {
    @autoreleasepool {
        setCurrentRelease(Release::ios10_3);
        const SEL selector = @selector(canEvaluatePolicy:);
        EXPECT_TRUE(class_addMethod([LAContext class], selector, reinterpret_cast<IMP>(answerNumber), "@@:"));
        id context = [[[LAContext alloc] init] autorelease];
        EXPECT_TRUE([context respondsToSelector:selector]);
        const auto method = reinterpret_cast<id (*)(id, SEL)>(objc_msgLookup(context, selector));
        EXPECT_TRUE([method(context, selector) isEqual:@"added"]);
        EXPECT_FALSE(
            class_addMethod([LAContext class], selector, reinterpret_cast<IMP>(answerNumber), "@@:"));
    }
}

} // namespace
} // namespace simulator::test
