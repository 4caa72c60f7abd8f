// What crosses between processes: real children of the test, joined by the device folder.
#include "device/json_objects.h"
#include "device/threads.h"
#include "frameworks/AppSupport/AppSupport.h"
#include "frameworks/CoreFoundation/CoreFoundation.h"
#include "frameworks/RocketBootstrap/RocketBootstrap.h"
#include "simulator/device/device_fixture.h"

using nlohmann::json;

static json received = json::array();

@interface MessageRecorder : NSObject
@end
@implementation MessageRecorder
+ (void)handleMessage:(NSString*)name userInfo:(NSDictionary*)userInfo {
    received.push_back({[name UTF8String], simulator::jsonFromObject(userInfo)});
}
@end

namespace simulator::test {
namespace {

constexpr const char* sandboxed = "com.example.nothing";

class Processes : public DeviceTest {
  protected:
    CPDistributedMessagingCenter* serve(const std::string& name, bool unlocked) {
        auto* centre =
            [CPDistributedMessagingCenter centerNamed:[NSString stringWithUTF8String:name.c_str()]];
        if (unlocked) rocketbootstrap_distributedmessagingcenter_apply(centre);
        [centre registerForMessageName:@"save"
                                target:[MessageRecorder class]
                              selector:@selector(handleMessage:userInfo:)];
        [centre runServerOnCurrentThread];
        return centre;
    }
    static json message(const std::string& centre, const json& userInfo, bool unlock) {
        return {{"do", "sendMessage"},
                {"centre", centre},
                {"name", "save"},
                {"userInfo", userInfo},
                {"unlock", unlock}};
    }
};

TEST_F(Processes, pass_messages_in_order_as_property_lists) {
    auto* centre = serve("com.example.order", true);
    HostProcess sender = startProcess(sandboxed, false);
    json large = {{"titles", json::array()}, {"number", 7}, {"flag", true}, {"text", "Ünïcode 😀 <&>"}};
    for (int i = 0; i < 20000; ++i)
        large["titles"].push_back("album number " + std::to_string(i));
    EXPECT_EQ(sender.call(message("com.example.order", large, true)), json({{"sent", true}}));
    for (int i = 0; i < 20; ++i)
        sender.call(message("com.example.order", {{"index", i}}, true));
    ASSERT_TRUE(runUntil([] { return received.size() == 21; }));
    EXPECT_EQ(received[0], json({"save", large}));
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(received[i + 1][1]["index"], i);
    EXPECT_FALSE([centre sendMessageName:@"save" userInfo:@{@"object" : [[NSObject new] autorelease]}]);
    [centre stopServer];
    EXPECT_FALSE([centre sendMessageName:@"save" userInfo:nil]);
}

TEST_F(Processes, pass_messages_out_of_a_sandbox_where_both_ends_are_unlocked) {
    const struct {
        const char* sender;
        bool serverUnlocked, senderUnlocked, arrives;
    } cases[] = {{sandboxed, true, true, true},
                 {sandboxed, true, false, false},
                 {sandboxed, false, true, false},
                 {host::springBoard, false, false, true}};
    for (const auto& each : cases) {
        const std::string name = "com.example.centre" + std::to_string(&each - cases);
        auto* centre = serve(name, each.serverUnlocked);
        received.clear();
        HostProcess sender = startProcess(each.sender, false);
        EXPECT_EQ(sender.call(message(name, {{"index", 1}}, each.senderUnlocked))["sent"], each.arrives)
            << name;
        if (each.arrives) EXPECT_TRUE(runUntil([] { return !received.empty(); })) << name;
        [centre stopServer]; // waits for what is on its way
        EXPECT_EQ(!received.empty(), each.arrives) << name;
    }
}

void count(CFNotificationCenterRef, void* counter, CFStringRef, const void*, CFDictionaryRef) {
    EXPECT_TRUE([NSThread isMainThread]);
    ++*static_cast<int*>(counter);
}

TEST_F(Processes, take_notifications_by_name_from_each_other_and_themselves) {
    int notified = 0;
    const auto name = reinterpret_cast<CFStringRef>(@"com.example.changed");
    CFNotificationCenterRef centre = CFNotificationCenterGetDarwinNotifyCenter();
    CFNotificationCenterAddObserver(centre, &notified, count, name, nullptr, 0);
    HostProcess poster = startProcess(sandboxed, false);
    for (const char* each : {"com.example.other", "com.example.changed"})
        poster.call({{"do", "postNotification"}, {"name", each}});
    ASSERT_TRUE(runUntil([&] { return notified == 1; }));
    CFNotificationCenterPostNotification(centre, name, nullptr, nullptr, true);
    EXPECT_EQ(notified, 1) << "never before the run loop has its turn";
    ASSERT_TRUE(runUntil([&] { return notified == 2; }));
    CFNotificationCenterRemoveObserver(centre, &notified, name, nullptr);
}

} // namespace
} // namespace simulator::test
