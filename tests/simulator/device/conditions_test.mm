#include "device/conditions.h"

#include "frameworks/LocalAuthentication/LocalAuthentication.h"
#include "frameworks/LocalAuthentication/Reasons.h"
#include "hosts/host.h"
#include "simulator/device/device_test.h"

#include <gmock/gmock.h>

#include <future>
#include <optional>

namespace simulator::test {
namespace {

using nlohmann::json;

TEST(ConditionsFile, keeps_every_field) {
    Conditions conditions;
    conditions.release = Release::ios12_4;
    conditions.coreFoundationVersion = 1300.5;
    conditions.screen = {768, 1024, 1};
    conditions.idiom = Idiom::pad;
    conditions.biometricOutcome = BiometricOutcome::userFallback;
    conditions.hapticEngine = false;
    conditions.manualClock = true;
    conditions.faults = {true, {"/a"}, {"/b"}, true};
    conditions.hooking = {false, true};
    EXPECT_EQ(conditionsFromJson(toJson(conditions)), conditions);
    EXPECT_EQ(conditionsFromJson(json::object()), Conditions{});
}

TEST(ConditionsFile, names_what_is_wrong) {
    for (const json& wrong : {json{{"colour", 1}}, json{{"release", "10.9"}}, json{{"idiom", "watch"}},
                              json{{"screen", 5}}, json{{"faults", {{"diskFull", "yes"}}}}, json::array({1})})
        EXPECT_NE(exceptionOf([&] { conditionsFromJson(wrong); }), "") << wrong;
}

class ConditionsOfDevice : public DeviceTest {};

TEST_F(ConditionsOfDevice, change_at_once) {
    EXPECT_FALSE(currentConditions()->faults.refuseLibraryChanges);
    for (const bool refuse : {true, false, true}) {
        device().changeConditions(
            [&](Conditions& conditions) { conditions.faults.refuseLibraryChanges = refuse; });
        EXPECT_EQ(currentConditions()->faults.refuseLibraryChanges, refuse);
    }
}

TEST_F(ConditionsOfDevice, only_a_device_can_be_opened) {
    EXPECT_EQ(Device::open(device().folder()).conditions(), Conditions{});
    EXPECT_NE(exceptionOf([&] { Device::open(device().folder() / "run"); }), "");
}

struct Authentication {
    const char* name;
    BiometricOutcome outcome;
    bool available;
    bool success;
    std::optional<NSInteger> code;
};

class AuthenticationOutcome : public DeviceTest, public testing::WithParamInterface<Authentication> {};

TEST_P(AuthenticationOutcome, comes_back_on_a_queue_of_its_own) {
    device().changeConditions(
        [](Conditions& conditions) { conditions.biometricOutcome = GetParam().outcome; });
    LAContext* context = [[[LAContext alloc] init] autorelease];
    NSError* unavailable = nil;
    EXPECT_EQ([context canEvaluatePolicy:LAPolicyDeviceOwnerAuthenticationWithBiometrics
                                   error:&unavailable] != NO,
              GetParam().available);
    EXPECT_EQ(unavailable == nil, GetParam().available);
    [context canEvaluatePolicy:LAPolicyDeviceOwnerAuthenticationWithBiometrics error:NULL];

    std::promise<void> replied;
    std::promise<void>* reply = &replied;
    __block bool success = false;
    __block std::optional<NSInteger> code;
    [context evaluatePolicy:LAPolicyDeviceOwnerAuthenticationWithBiometrics
            localizedReason:@"The reason"
                      reply:^(BOOL succeeded, NSError* error) {
                          EXPECT_FALSE([NSThread isMainThread]);
                          success = succeeded != NO;
                          if (error != nil) code = [error code];
                          reply->set_value();
                      }];
    replied.get_future().wait();
    EXPECT_EQ(success, GetParam().success);
    EXPECT_EQ(code, GetParam().code);
    EXPECT_EQ(authenticationReasons(), std::vector<std::string>{"The reason"});
}

INSTANTIATE_TEST_SUITE_P(
    Conditions, AuthenticationOutcome,
    testing::Values(Authentication{"success", BiometricOutcome::success, true, true, {}},
                    Authentication{"failed", BiometricOutcome::failed, true, false, -1},
                    Authentication{"userCancel", BiometricOutcome::userCancel, true, false, -2},
                    Authentication{"userFallback", BiometricOutcome::userFallback, true, false, -3},
                    Authentication{"notAvailable", BiometricOutcome::notAvailable, false, false, -6},
                    Authentication{
                        "refusedWithoutError", BiometricOutcome::refusedWithoutError, true, false, {}}),
    [](const auto& info) { return info.param.name; });

TEST_F(ConditionsOfDevice, an_empty_reason_raises) {
    LAContext* context = [[[LAContext alloc] init] autorelease];
    EXPECT_NE(exceptionOf([&] {
                  [context evaluatePolicy:LAPolicyDeviceOwnerAuthenticationWithBiometrics
                          localizedReason:@""
                                    reply:^(BOOL, NSError*){
                                    }];
              }),
              "");
}

TEST_F(ConditionsOfDevice, a_host_starts_its_application_after_everything_is_set) {
    device().changeConditions([](Conditions& conditions) {
        conditions.release = Release::ios8_4;
        conditions.coreFoundationVersion = 1300.0;
        conditions.manualClock = true;
    });
    std::string seen;
    registerApplication("com.example.test",
                        {.start =
                             [&] {
                                 seen = [[[NSBundle mainBundle] bundleIdentifier] UTF8String];
                                 seen += std::filesystem::equivalent(std::filesystem::current_path(),
                                                                     device().root())
                                             ? " in root"
                                             : " elsewhere";
                             },
                         .frameworks = {},
                         .worksInRootFolder = true});
    const std::filesystem::path before = std::filesystem::current_path();
    Host host({.bundleIdentifier = "com.example.test", .device = device().folder(), .library = {}});
    std::filesystem::current_path(before);
    EXPECT_EQ(seen, "com.example.test in root");
    EXPECT_EQ(currentRelease(), Release::ios8_4);
    EXPECT_TRUE(host.installations().empty());
}

TEST_F(ConditionsOfDevice, a_library_that_cannot_be_loaded_is_an_error) {
    const HostOptions options{
        .bundleIdentifier = "com.example.test", .device = device().folder(), .library = "/no/such/library"};
    EXPECT_THAT(exceptionOf([&] { Host host(options); }), testing::HasSubstr("/no/such/library"));
}

} // namespace
} // namespace simulator::test
