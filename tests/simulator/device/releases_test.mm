// What exists in a release, and what becomes of messages to what does not.
#include "device/releases.h"

#import "UIKit/UIKit.h"
#include "device/exceptions.h"
#include "device/threads.h"
#include "frameworks/ObjectiveC/ObjectiveC.h"

#include <gmock/gmock.h>

#include <thread>

namespace simulator::test {
namespace {

constexpr const char* albumList = "PUAlbumListViewController";
constexpr const char* cellAt = "visibleAlbumListCellContentViewAtIndexPath:";

const struct Fact {
    const char* className;
    const char* selector; // null: the class itself
    Release release;
    bool present;
} facts[] = {
    {"LAContext", nullptr, Release::ios7_1, false},
    {"LAContext", nullptr, Release::ios8_4, true},
    {"NoSuchClass", nullptr, Release::complete, false},
    {albumList, "showPeople", Release::ios9_3, false},
    {albumList, "showPeople", Release::ios10_1, true},
    {albumList, "showPeople", Release::ios12_4, false},
    {albumList, cellAt, Release::ios10_2, true},
    {albumList, cellAt, Release::ios10_3, false},
    {albumList, "alwaysHideTabBar", Release::ios12_4, false},
    {albumList, "alwaysHideTabBar", Release::complete, true},
};

class Releases : public testing::Test {
  protected:
    ~Releases() override { [m_pool drain]; }

  private:
    NSAutoreleasePool* m_pool = [[NSAutoreleasePool alloc] init];
};

TEST_F(Releases, decide_what_exists_wherever_it_is_asked_for) {
    for (const Fact& fact : facts) {
        SCOPED_TRACE(testing::Message() << fact.className << " " << releaseName(fact.release));
        setCurrentRelease(fact.release);
        Class cls = objc_getClass(fact.className);
        if (fact.selector == nullptr) {
            EXPECT_EQ(cls != Nil, fact.present);
            continue;
        }
        const SEL selector = sel_registerName(fact.selector);
        id object = [[cls new] autorelease];
        EXPECT_EQ([object respondsToSelector:selector] != NO, fact.present);
        EXPECT_EQ([cls instancesRespondToSelector:selector] != NO, fact.present);
        EXPECT_EQ(class_getInstanceMethod(cls, selector) != nullptr, fact.present);
        EXPECT_THAT(anyExceptionOf([&] { objc_msgLookup(object, selector); }).value_or(""),
                    testing::HasSubstr(fact.present ? "" : "]: unrecognized selector sent to instance"));
    }
}

int seven(id, SEL) { return 7; }

TEST_F(Releases, lose_a_method_until_it_is_added) {
    setCurrentRelease(Release::ios12_4);
    Class cls = objc_getClass(albumList);
    const SEL selector = sel_registerName("alwaysHideTabBar");
    EXPECT_TRUE(class_addMethod(cls, selector, reinterpret_cast<IMP>(seven), "i@:"));
    EXPECT_FALSE(class_addMethod(cls, selector, reinterpret_cast<IMP>(seven), "i@:"));
    id object = [[cls new] autorelease];
    EXPECT_EQ(reinterpret_cast<int (*)(id, SEL)>(objc_msgLookup(object, selector))(object, selector), 7);
}

TEST_F(Releases, keep_views_and_controllers_to_the_main_thread) {
    setCurrentRelease(Release::ios10_3);
    const struct {
        id receiver;
        SEL selector;
        std::string raises;
    } messages[] = {
        {[[UILabel new] autorelease], @selector(frame), "-[UILabel frame]"},
        {[[UIViewController new] autorelease], @selector(view), "-[UIViewController view]"},
        {[UIApplication class], @selector(sharedApplication), "+[UIApplication sharedApplication]"},
        {[[UITapGestureRecognizer new] autorelease], @selector(view), "-[UITapGestureRecognizer view]"},
        {[[UIBarButtonItem new] autorelease], @selector(title), "-[UIBarButtonItem title]"},
        {[[UILabel new] autorelease], @selector(retain), ""},
        {[UIColor class], @selector(blackColor), ""},
    };
    for (const auto& [receiver, selector, raises] : messages) {
        const auto lookUp = [&] {
            return anyExceptionOf([&] { objc_msgLookup(receiver, selector); }).value_or("");
        };
        EXPECT_EQ(lookUp(), "");
        std::string raised;
        std::thread([&] {
            registerThread();
            @autoreleasepool {
                raised = lookUp();
            }
        }).join();
        EXPECT_EQ(raised, raises.empty() ? ""
                                         : "NSInternalInconsistencyException: " + raises +
                                               " must be used from the main thread only");
    }
}

} // namespace
} // namespace simulator::test
