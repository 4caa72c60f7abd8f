// What crosses between processes: real children of the test, joined by the device folder.
#include "device/json_objects.h"
#include "device/process.h"
#include "frameworks/AppSupport/AppSupport.h"
#include "frameworks/CoreFoundation/CoreFoundation.h"
#include "frameworks/RocketBootstrap/RocketBootstrap.h"
#include "simulator/device/device_test.h"

#include <gmock/gmock.h>

#include <csignal>

namespace simulator::test {
namespace {

using nlohmann::json;
using testing::HasSubstr;

constexpr const char* sandboxed = "com.example.nothing";
constexpr const char* shell = "com.apple.springboard";
constexpr const char* centreName = "com.example.centre";

json& received() {
    static json list = json::array();
    return list;
}

} // namespace
} // namespace simulator::test

@interface MessageRecorder : NSObject
- (NSDictionary*)handleMessage:(NSString*)name userInfo:(NSDictionary*)userInfo;
@end
@implementation MessageRecorder
- (NSDictionary*)handleMessage:(NSString*)name userInfo:(NSDictionary*)userInfo {
    simulator::test::received().push_back({[name UTF8String], simulator::jsonFromObject(userInfo)});
    return nil;
}
@end

namespace simulator::test {
namespace {

class Processes : public DeviceTest {
  protected:
    ~Processes() override { [centre stopServer]; }

    void serve(bool unlocked) {
        if (unlocked) rocketbootstrap_distributedmessagingcenter_apply(centre);
        [centre registerForMessageName:@"save" target:recorder selector:@selector(handleMessage:userInfo:)];
        [centre runServerOnCurrentThread];
    }

    static json message(const json& userInfo, bool unlock) {
        return {{"do", "sendMessage"},
                {"centre", centreName},
                {"name", "save"},
                {"userInfo", userInfo},
                {"unlock", unlock}};
    }

    MessageRecorder* recorder = [[[MessageRecorder alloc] init] autorelease];
    CPDistributedMessagingCenter* centre =
        [CPDistributedMessagingCenter centerNamed:[NSString stringWithUTF8String:centreName]];
};

TEST_F(Processes, messages_arrive_in_order_as_property_lists) {
    serve(true);
    HostProcess sender(hostProcess(sandboxed));
    const json first = {
        {"titles", {"Holidays", "Ünïcode 😀", "quote \" ' <&>"}}, {"number", 7}, {"flag", true}};
    EXPECT_EQ(sender.call(message(first, true)), json({{"sent", true}}));
    for (int i = 0; i < 20; ++i)
        sender.call(message({{"index", i}}, true));
    ASSERT_TRUE(runUntil([] { return received().size() == 21; }));
    EXPECT_EQ(received()[0], json({"save", first}));
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(received()[i + 1][1]["index"], i);
}

TEST_F(Processes, a_large_message_arrives_whole) {
    serve(true);
    HostProcess sender(hostProcess(shell));
    json titles = json::array();
    for (int i = 0; i < 20000; ++i)
        titles.push_back("album number " + std::to_string(i));
    sender.call(message({{"titles", titles}}, false));
    ASSERT_TRUE(runUntil([] { return received().size() == 1; }));
    EXPECT_EQ(received()[0][1]["titles"], titles);
}

struct Reach {
    const char* name;
    const char* sender;
    bool serverUnlocked;
    bool senderUnlocked;
    bool arrives;
};

class MessageReach : public Processes, public testing::WithParamInterface<Reach> {};

TEST_P(MessageReach, needs_both_sides_unlocked_out_of_a_sandbox) {
    serve(GetParam().serverUnlocked);
    HostProcess sender(hostProcess(GetParam().sender));
    const json answer = sender.call(message({{"index", 1}}, GetParam().senderUnlocked));
    EXPECT_EQ(answer["sent"], GetParam().arrives);
    const double patience = GetParam().arrives ? 5 : 0.2;
    EXPECT_EQ(runUntil([] { return !received().empty(); }, patience), GetParam().arrives);
}

INSTANTIATE_TEST_SUITE_P(Processes, MessageReach,
                         testing::Values(Reach{"both_unlocked", sandboxed, true, true, true},
                                         Reach{"server_unlocked", sandboxed, true, false, false},
                                         Reach{"sender_unlocked", sandboxed, false, true, false},
                                         Reach{"no_sandbox", shell, false, false, true}),
                         [](const auto& info) { return info.param.name; });

TEST_F(Processes, a_message_without_a_server_is_lost) {
    EXPECT_FALSE([centre sendMessageName:@"save" userInfo:nil]);
}

TEST_F(Processes, a_message_after_the_server_was_killed_is_lost) {
    serve(true);
    [centre stopServer];
    HostProcess sender(hostProcess(sandboxed));
    EXPECT_EQ(sender.call(message({{"index", 1}}, true)), json({{"sent", false}}));
}

TEST_F(Processes, user_info_may_be_nil_but_nothing_beside_a_property_list) {
    serve(true);
    EXPECT_TRUE([centre sendMessageName:@"save" userInfo:nil]);
    EXPECT_FALSE([centre sendMessageName:@"save" userInfo:@{@"object" : recorder}]);
    ASSERT_TRUE(runUntil([] { return !received().empty(); }));
    EXPECT_EQ(received(), json::array({json::array({"save", nullptr})}));
}

int notified;
void countNotification(CFNotificationCenterRef, void* observer, CFStringRef, const void*,
                       CFDictionaryRef userInfo) {
    EXPECT_TRUE([NSThread isMainThread]);
    EXPECT_EQ(observer, &notified);
    EXPECT_EQ(userInfo, nullptr);
    ++notified;
}

void observe(NSString* name) {
    CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), &notified, countNotification,
                                    reinterpret_cast<CFStringRef>(name), nullptr,
                                    CFNotificationSuspensionBehaviorDeliverImmediately);
}

TEST_F(Processes, notifications_reach_every_process_by_name) {
    observe(@"com.example.changed");
    HostProcess poster(hostProcess(sandboxed));
    poster.call({{"do", "postNotification"}, {"name", "com.example.other"}});
    poster.call({{"do", "postNotification"}, {"name", "com.example.changed"}});
    ASSERT_TRUE(runUntil([] { return notified == 1; }));
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(),
                                         reinterpret_cast<CFStringRef>(@"com.example.changed"), nullptr,
                                         nullptr, true);
    EXPECT_EQ(notified, 1); // never before the run loop has its turn
    ASSERT_TRUE(runUntil([] { return notified == 2; }));
}

TEST_F(Processes, a_host_says_what_it_is_and_ends_when_told) {
    device().changeConditions([](Conditions& conditions) { conditions.release = Release::ios9_3; });
    HostProcess host(hostProcess(sandboxed));
    EXPECT_EQ(host.call("ready"), json({{"release", "9.3"}, {"coreFoundationVersion", 1280.30}}));
    EXPECT_EQ(host.call("hooks"), json({{"hooks", json::array()}}));
    host.stop();
    EXPECT_FALSE(host.isRunning());
    EXPECT_FALSE(std::filesystem::exists(device().runFolder() / "com.example.nothing.sock"));
}

// The shell's working directory is the device's root.
TEST_F(Processes, a_host_takes_relative_paths) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(device().folder().parent_path());
    HostProcessOptions options = hostProcess(shell);
    options.device = device().folder().filename();
    {
        HostProcess host(options);
        host.call("ready");
        host.stop();
    }
    std::filesystem::current_path(before);
}

TEST_F(Processes, the_clock_of_a_host_is_moved_from_outside) {
    device().changeConditions([](Conditions& conditions) { conditions.manualClock = true; });
    HostProcess host(hostProcess(sandboxed));
    host.call({{"do", "advanceClock"}, {"seconds", 0.5}});
    EXPECT_EQ(host.call({{"do", "advanceClock"}, {"seconds", 1.0}}), json({{"now", 1.5}}));
}

TEST_F(Processes, failures_are_told_in_words) {
    HostProcess host(hostProcess(sandboxed));
    EXPECT_THAT(exceptionOf([&] { host.call("dance"); }), HasSubstr("com.example.nothing: unknown verb"));
    EXPECT_THAT(exceptionOf([&] { host.call({{"do", "sendMessage"}}); }), HasSubstr("centre"));
    kill(host.processIdentifier(), SIGKILL);
    EXPECT_THAT(exceptionOf([&] { host.call("ready"); }), HasSubstr("com.example.nothing: "));

    HostProcessOptions options = hostProcess(sandboxed);
    options.library = "/no/such/library";
    EXPECT_THAT(exceptionOf([&] { HostProcess failing(options); }), HasSubstr("ended with status 1"));
    options.program = "/no/such/program";
    EXPECT_THAT(exceptionOf([&] { HostProcess failing(options); }), HasSubstr("ended with status"));
}

} // namespace
} // namespace simulator::test
