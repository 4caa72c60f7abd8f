#include "simulator/uikit/uikit_fixture.h"

#include <span>

namespace simulator::test {

namespace {

using Views = UIKitClockTest;

TEST_F(Views, follow_the_bounds_of_their_superview_as_their_mask_says) {
    const struct {
        UIViewAutoresizing mask;
        CGRect before;
        CGRect after; // when the superview grows from 100 x 100 to 200 x 150
    } cases[] = {
        {0, CGRectMake(10, 10, 20, 20), CGRectMake(10, 10, 20, 20)},
        {UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight, CGRectMake(10, 10, 80, 80),
         CGRectMake(10, 10, 180, 130)},
        {UIViewAutoresizingFlexibleTopMargin, CGRectMake(0, 70, 100, 20), CGRectMake(0, 120, 100, 20)},
        {UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleRightMargin, CGRectMake(20, 0, 60, 10),
         CGRectMake(20, 0, 135, 10)},
    };
    for (const auto& each : cases) {
        UIView* superview = addView(CGRectMake(0, 0, 100, 100));
        UIView* view = addView(each.before, superview);
        [view setAutoresizingMask:each.mask];
        [superview setFrame:CGRectMake(30, 30, 200, 150)];
        EXPECT_TRUE(CGRectEqualToRect([view frame], each.after)) << "mask " << each.mask;
    }
}

TEST_F(Views, that_an_animation_moves_take_no_touches_meanwhile_unless_allowed) {
    UIView* behind = addView(CGRectMake(0, 0, 100, 100));
    UIView* view = addView(CGRectMake(0, 0, 100, 100));
    Listener* noted = listener();
    const auto animate = [&](UIViewAnimationOptions options) {
        [UIView animateWithDuration:0.5
            delay:0.4
            options:options
            animations:^{
                [view setAlpha:0.5];
            }
            completion:^(BOOL) {
                [noted note:@"completed"];
            }];
    };
    animate(0);
    EXPECT_EQ([view alpha], 0.5);
    clock().advance(0.8);
    EXPECT_EQ(tap(view), behind);
    EXPECT_TRUE(notes().empty());
    clock().advance(0.2);
    EXPECT_EQ(notes().size(), 1U);
    EXPECT_EQ(tap(view), view);
    animate(UIViewAnimationOptionAllowUserInteraction);
    EXPECT_EQ(tap(view), view);
}

std::pair<CGFloat, CGFloat> sides(CGSize size) { return {size.width, size.height}; }

TEST_F(Views, read_whole_pictures_for_the_scale_of_the_screen_only) {
    const auto read = [this](const std::string& written, std::span<const char> bytes) {
        const std::string folder = "/var/mobile/";
        device().writeFile(folder + written, {bytes.data(), bytes.size()});
        NSString* path = [NSString stringWithUTF8String:(folder + "lock.png").c_str()];
        return sides([[[[UIImage alloc] initWithContentsOfFile:path] autorelease] size]);
    };
    NSData* file = UIImagePNGRepresentation([UIImage imageWithPixelSize:CGSizeMake(30, 20) seed:1]);
    const std::span whole(static_cast<const char*>([file bytes]), [file length]);
    for (const std::size_t length : {std::size_t(0), whole.size() / 3, whole.size() - 20})
        EXPECT_EQ(read("lock.png", whole.first(length)), sides(CGSizeZero)) << length;
    EXPECT_EQ(read("lock.png", whole), sides(CGSizeMake(30, 20)));
    EXPECT_EQ(read("lock@2x.png", whole), sides(CGSizeMake(15, 10)));
}

} // namespace

} // namespace simulator::test
