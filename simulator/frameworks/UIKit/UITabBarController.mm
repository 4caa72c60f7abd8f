#import "UIKit/UITabBarController.h"

#import "UIKit/internal/ControllerState.h"
#import "UIKit/internal/MainThread.h"

using simulator::mainThreadOnly;
using simulator::Retained;

namespace {

constexpr CGFloat tabBarHeight = 49;

} // namespace

namespace simulator {

struct TabState {
    Retained<UITabBar*> bar;
    Retained<NSArray*> controllers = [NSArray array];
    Retained<UIViewController*> selected;
};

} // namespace simulator

@implementation UITabBar

- (void)dealloc {
    [_items release];
    [super dealloc];
}

- (NSArray*)items {
    mainThreadOnly(self, _cmd);
    return [[_items retain] autorelease];
}

- (void)setItems:(NSArray*)items {
    mainThreadOnly(self, _cmd);
    [_items autorelease];
    _items = [items copy];
    if (![_items containsObject:_selectedItem]) _selectedItem = nil;
    [self setNeedsLayout];
}

- (UITabBarItem*)selectedItem {
    mainThreadOnly(self, _cmd);
    return _selectedItem;
}

- (void)setSelectedItem:(UITabBarItem*)item {
    mainThreadOnly(self, _cmd);
    _selectedItem = item;
}

- (BOOL)hidden {
    return [self isHidden];
}

- (void)layoutSubviews {
    [super layoutSubviews];
}

@end

@implementation UITabBarController

- (instancetype)init {
    self = [super init];
    _tabState = new simulator::TabState;
    _tabState->bar = Retained<UITabBar*>::adopted([[UITabBar alloc] initWithFrame:CGRectZero]);
    return self;
}

- (void)dealloc {
    delete _tabState;
    [super dealloc];
}

- (UITabBar*)tabBar {
    mainThreadOnly(self, _cmd);
    return _tabState->bar.get();
}

- (NSArray*)viewControllers {
    mainThreadOnly(self, _cmd);
    return _tabState->controllers.autoreleased();
}

- (void)setViewControllers:(NSArray*)controllers {
    mainThreadOnly(self, _cmd);
    NSArray* before = [self viewControllers];
    NSMutableArray* items = [NSMutableArray array];
    for (UIViewController* controller in controllers) {
        [self addChildViewController:controller];
        [items addObject:[controller tabBarItem]];
    }
    _tabState->controllers = Retained<NSArray*>::copyOf(controllers);
    [[self tabBar] setItems:items];
    if (![controllers containsObject:[self selectedViewController]])
        [self setSelectedViewController:[controllers firstObject]];
    else
        [[self tabBar] setSelectedItem:[[self selectedViewController] tabBarItem]];
    for (UIViewController* controller in controllers)
        if (![before containsObject:controller]) [controller didMoveToParentViewController:self];
    for (UIViewController* controller in before)
        if (![controllers containsObject:controller]) [controller removeFromParentViewController];
}

- (UIViewController*)selectedViewController {
    mainThreadOnly(self, _cmd);
    return _tabState->selected.get();
}

- (void)setSelectedViewController:(UIViewController*)controller {
    mainThreadOnly(self, _cmd);
    if (controller && ![_tabState->controllers.get() containsObject:controller])
        [NSException raise:NSInvalidArgumentException format:@"%@ is not one of the tabs", controller];
    const Retained<UIViewController*> old = _tabState->selected;
    if (old.get() == controller) return;
    _tabState->selected = controller;
    [[self tabBar] setSelectedItem:[controller tabBarItem]];
    if ([self isViewLoaded])
        simulator::exchangeChildren(self, old.get(), controller, [self contentFrame], false);
}

- (NSUInteger)selectedIndex {
    return [[self viewControllers] indexOfObject:[self selectedViewController]];
}

- (void)setSelectedIndex:(NSUInteger)index {
    [self setSelectedViewController:[[self viewControllers] objectAtIndex:index]];
}

- (NSArray*)shownChildren {
    UIViewController* selected = [self selectedViewController];
    return selected ? [NSArray arrayWithObject:selected] : [NSArray array];
}

- (CGRect)contentFrame {
    CGRect frame = [[self view] bounds];
    if (![[self tabBar] isHidden]) frame.size.height -= tabBarHeight;
    return frame;
}

- (void)viewDidLoad {
    [super viewDidLoad];
    if (UIViewController* selected = [self selectedViewController]) {
        [[selected view] setFrame:[self contentFrame]];
        [[self view] addSubview:[selected view]];
    }
    [[self view] addSubview:[self tabBar]];
}

- (void)viewWillLayoutSubviews {
    [super viewWillLayoutSubviews];
    const CGSize size = [[self view] bounds].size;
    [[self tabBar] setFrame:CGRectMake(0, size.height - tabBarHeight, size.width, tabBarHeight)];
    [[[self selectedViewController] view] setFrame:[self contentFrame]];
}

@end
