#import "UIKit/UITabBarController.h"

#import "UIKit/UINavigationController.h"
#import "UIKit/internal/Casts.h"
#import "UIKit/internal/Containers.h"

namespace {

constexpr CGFloat tabBarHeight = 49;

} // namespace

@implementation UITabBar

@synthesize items = _items, selectedItem = _selectedItem;

- (void)dealloc {
    [_items release];
    [super dealloc];
}

- (void)setItems:(NSArray*)items {
    [_items autorelease];
    _items = [items copy];
    [self setNeedsLayout];
}

- (BOOL)hidden {
    return [self isHidden];
}

// The class has this method of its own on a device.
- (void)layoutSubviews {
    [super layoutSubviews];
}

@end

@implementation UITabBarController

@synthesize tabBar = _tabBar, selectedViewController = _selectedViewController;

- (instancetype)init {
    self = [super init];
    _tabBar = [[UITabBar alloc] initWithFrame:CGRectZero];
    return self;
}

- (void)dealloc {
    [_tabBar release];
    [super dealloc];
}

- (NSArray*)viewControllers {
    return [self childViewControllers];
}

- (void)setViewControllers:(NSArray*)controllers {
    NSArray* before = [self childViewControllers];
    [self setChildViewControllers:controllers];
    [_tabBar setItems:[controllers valueForKey:@"tabBarItem"]];
    const bool remains = [controllers containsObject:_selectedViewController];
    [self setSelectedViewController:remains ? _selectedViewController : [controllers firstObject]];
    [self disown:before];
}

- (void)setSelectedViewController:(UIViewController*)controller {
    UIViewController* old = _selectedViewController;
    _selectedViewController = controller;
    [_tabBar setSelectedItem:[controller tabBarItem]];
    if (old != controller && [self isViewLoaded]) [self showChildInsteadOf:old animated:NO];
}

- (UIViewController*)shownChild {
    return _selectedViewController;
}

- (CGRect)contentFrame {
    CGRect frame = [[self view] bounds];
    if (![_tabBar isHidden]) frame.size.height -= tabBarHeight;
    return frame;
}

- (void)viewDidLoad {
    [super viewDidLoad];
    [self showChildInsteadOf:nil animated:NO];
    [[self view] addSubview:_tabBar];
}

- (void)viewWillLayoutSubviews {
    [super viewWillLayoutSubviews];
    const CGSize size = [[self view] bounds].size;
    [_tabBar setFrame:CGRectMake(0, size.height - tabBarHeight, size.width, tabBarHeight)];
    [[_selectedViewController view] setFrame:[self contentFrame]];
}

@end

@implementation UITabBarController (Input)

- (void)tapItem:(UITabBarItem*)item {
    for (UIViewController* controller in [self viewControllers]) {
        if ([controller tabBarItem] != item) continue;
        if (controller == [self selectedViewController])
            [simulator::as<UINavigationController>(controller) popToRootViewControllerAnimated:YES];
        else
            [self setSelectedViewController:controller];
        return;
    }
}

@end
