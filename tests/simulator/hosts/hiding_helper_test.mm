// The system's helper that hides photos and shows them again.
#import "PhotosUI/PUAssetHidingHelper.h"

#include "simulator/hosts/hosts_test.h"

#include <atomic>

namespace simulator::test {
namespace {

class HidingHelper : public HostsTest {
  protected:
    HidingHelper() { start(bundle::photos); }

    struct Outcome {
        std::atomic<bool> arrived = false;
        bool success = false;
        bool onMainThread = true;
    };

    // Applies the state and waits for the handler; gives what it was told.
    bool apply(NSArray* assets, bool hidden) {
        Outcome outcome;
        Outcome* const seen = &outcome;
        @autoreleasepool {
            PUAssetHidingHelper* helper = [[[PUAssetHidingHelper alloc] init] autorelease];
            [helper setAssets:assets];
            [helper applyHiddenState:hidden ? YES : NO
                   completionHandler:^(BOOL success, NSError*) {
                       seen->onMainThread = [NSThread isMainThread];
                       seen->success = success;
                       seen->arrived = true;
                   }];
        }
        waitFor([&] { return outcome.arrived.load(); });
        EXPECT_FALSE(outcome.onMainThread);
        return outcome.success;
    }
};

TEST_F(HidingHelper, hides_and_shows_photos_without_touching_their_albums) {
    EXPECT_TRUE(apply(@[ asset(0), asset(1) ], true));
    EXPECT_TRUE(photo(0).hidden && photo(1).hidden && !photo(2).hidden);
    EXPECT_EQ(numbersIn("Holidays").size(), 3U);
    EXPECT_TRUE(apply(@[ asset(0) ], false));
    EXPECT_TRUE(!photo(0).hidden && photo(1).hidden);
}

TEST_F(HidingHelper, takes_no_photos_at_all) {
    EXPECT_TRUE(apply(@[], true));
    EXPECT_TRUE(apply(nil, true));
    EXPECT_EQ(library().visibleAssets().size(), 10U);
}

TEST_F(HidingHelper, takes_no_handler_and_keeps_its_photos_until_the_work_is_done) {
    @autoreleasepool {
        PUAssetHidingHelper* helper = [[PUAssetHidingHelper alloc] init];
        NSMutableArray* live = [NSMutableArray arrayWithObject:asset(3)];
        [helper setAssets:live];
        [live removeAllObjects];
        [helper applyHiddenState:YES completionHandler:nil];
        [helper release];
    }
    waitFor([&] { return photo(3).hidden; });
}

TEST_F(HidingHelper, changes_nothing_when_the_library_refuses) {
    device().changeConditions([](Conditions& conditions) { conditions.faults.refuseLibraryChanges = true; });
    EXPECT_FALSE(apply(@[ asset(0) ], true));
    EXPECT_FALSE(photo(0).hidden);
}

TEST_F(HidingHelper, refuses_a_set) {
    PUAssetHidingHelper* helper = [[[PUAssetHidingHelper alloc] init] autorelease];
    NSString* raised = nil;
    @try {
        [helper setAssets:static_cast<id>([NSSet setWithObject:@"photo"])];
    } @catch (NSException* exception) {
        raised = [exception name];
    }
    EXPECT_TRUE([raised isEqualToString:NSInvalidArgumentException]);
}

} // namespace
} // namespace simulator::test
