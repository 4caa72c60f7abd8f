#import "simulator/uikit/uikit_test.h"

#include "photolibrary/library.h"

namespace simulator::test {

namespace {

class Share : public UIKitTest {
  protected:
    Share() {
        NSArray* items = @[ image(1), @"text", image(2) ];
        sheet = [[UIActivityViewController alloc] initWithActivityItems:items applicationActivities:nil];
        Listener* noted = listener();
        [sheet setCompletionWithItemsHandler:^(NSString*, BOOL completed, NSArray*, NSError*) {
            [noted note:completed ? @"completed" : @"failed"];
        }];
        [root() presentViewController:sheet animated:NO completion:nil];
    }
    ~Share() override { [sheet release]; }

    static UIImage* image(NSUInteger seed) { return [UIImage imageWithPixelSize:CGSizeMake(4, 3) seed:seed]; }

    bool runUntilOver() {
        return host().runUntil([this] { return !notes().empty() && frontController() == root(); });
    }

    std::size_t photoCount() { return PhotoLibrary::open(device())->assets().size(); }

    UIActivityViewController* sheet;
};

TEST_F(Share, saves_the_images_among_the_items_and_closes_the_sheet) {
    UISaveToCameraRollActivity* save = [[sheet offeredActivities] firstObject];
    EXPECT_EQ([save imageCount], 2);
    EXPECT_EQ(viewTreeAsJson().at("presented").at(0).at("activities"), nlohmann::json({"Save 2 Images"}));
    EXPECT_FALSE([sheet chooseActivityWithTitle:@"Print"]);
    EXPECT_TRUE([sheet chooseActivityWithTitle:@"Save 2 Images"]);
    EXPECT_TRUE(runUntilOver());
    EXPECT_EQ(notes(), (std::vector<std::string>{"completed"}));
    EXPECT_EQ(photoCount(), 2U);
}

TEST_F(Share, says_so_when_the_library_refuses) {
    device().changeConditions([](Conditions& conditions) { conditions.faults.refuseLibraryChanges = true; });
    [sheet chooseActivityWithTitle:@"Save 2 Images"];
    EXPECT_TRUE(runUntilOver());
    EXPECT_EQ(notes(), (std::vector<std::string>{"failed"}));
    EXPECT_EQ(photoCount(), 0U);
}

} // namespace

} // namespace simulator::test
