#import "hosts/applications/springboard/springboard_app.h"

#include "hosts/applications/catalogue.h"
#include "hosts/applications/common/screen.h"

namespace {

constexpr CGFloat iconSide = 60;
constexpr CGFloat iconCornerRadius = 13;
constexpr CGFloat nameHeight = 18;
constexpr CGFloat rowHeight = 95;
constexpr CGFloat top = 30;
constexpr NSUInteger columns = 4;
constexpr NSUInteger wallpaper = 89;

SBIconView* makeIcon(const simulator::HomeIcon& icon) {
    SBIconView* view =
        [[[SBIconView alloc] initWithFrame:CGRectMake(0, 0, iconSide, iconSide + nameHeight)] autorelease];
    [view setApplicationBundleID:simulator::string(icon.bundleIdentifier)];
    UIView* plate = [[[UIView alloc] initWithFrame:CGRectMake(0, 0, iconSide, iconSide)] autorelease];
    [plate setBackgroundColor:[UIColor colorWithRed:icon.color[0]
                                              green:icon.color[1]
                                               blue:icon.color[2]
                                              alpha:1]];
    [[plate layer] setCornerRadius:iconCornerRadius];
    UIImageView* symbol =
        [[[UIImageView alloc] initWithImage:[UIImage imageWithOutline:icon.symbol]] autorelease];
    [symbol setFrame:CGRectInset([plate bounds], 12, 12)];
    [symbol setTintColor:[UIColor whiteColor]];
    UILabel* name = [[[UILabel alloc] initWithFrame:CGRectMake(-10, iconSide + 2, iconSide + 20, nameHeight)]
        autorelease];
    [name setText:simulator::string(icon.name)];
    [name setFont:[UIFont systemFontOfSize:12]];
    [name setTextColor:[UIColor whiteColor]];
    [name setTextAlignment:NSTextAlignmentCenter];
    [plate setUserInteractionEnabled:NO];
    for (UIView* part in @[ plate, symbol, name ])
        [view addSubview:part];
    return view;
}

} // namespace

@interface SBHomeScreenViewController : UIViewController
@end

@implementation SBHomeScreenViewController

- (UIStatusBarStyle)preferredStatusBarStyle {
    return UIStatusBarStyleLightContent;
}

- (void)viewDidLoad {
    [super viewDidLoad];
    UIImageView* background = [[[UIImageView alloc] initWithFrame:[[self view] bounds]] autorelease];
    [background setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [background setContentMode:UIViewContentModeScaleAspectFill];
    [background setClipsToBounds:YES];
    [background setImage:[UIImage imageWithPixelSize:CGSizeMake(400, 300) seed:wallpaper]];
    [[self view] addSubview:background];
    for (const simulator::HomeIcon& icon : simulator::homeIcons())
        [[self view] addSubview:makeIcon(icon)];
}

- (void)viewDidLayoutSubviews {
    [super viewDidLayoutSubviews];
    const CGFloat step = [[self view] bounds].size.width / columns;
    NSUInteger place = 0;
    for (UIView* icon in [[self view] subviews]) {
        if (![icon isKindOfClass:[SBIconView class]]) continue;
        const NSUInteger fullRows = place / columns;
        const auto column = static_cast<CGFloat>(place % columns);
        const auto row = static_cast<CGFloat>(fullRows);
        [icon setCenter:CGPointMake(step * (column + 0.5), top + rowHeight * row + rowHeight / 2)];
        ++place;
    }
}

@end

@implementation FBSystemApp
@end

@implementation SpringBoard

- (void)applicationDidFinishLaunching:(UIApplication*)application {
    simulator::showRootViewController([[[SBHomeScreenViewController alloc] init] autorelease]);
}

@end

@implementation SBIconView

@synthesize applicationBundleID = _applicationBundleID;

- (void)dealloc {
    [_applicationBundleID release];
    [super dealloc];
}

@end
