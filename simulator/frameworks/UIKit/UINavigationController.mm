#import "UIKit/UINavigationController.h"

#import "UIKit/internal/ControllerState.h"
#import "UIKit/internal/MainThread.h"

using simulator::mainThreadOnly;
using simulator::Retained;

namespace {

constexpr CGFloat statusBarHeight = 20;
constexpr CGFloat barHeight = 44;

} // namespace

namespace simulator {

struct NavigationState {
    Retained<NSMutableArray*> stack = [NSMutableArray array];
    Retained<UINavigationBar*> bar;
    Retained<UIToolbar*> toolbar;
    bool barIsHidden = false;
    bool toolbarIsHidden = true;
};

} // namespace simulator

@implementation UINavigationBar

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
    [self setNeedsLayout];
}

- (UINavigationItem*)topItem {
    mainThreadOnly(self, _cmd);
    return [_items lastObject];
}

- (UINavigationItem*)backItem {
    mainThreadOnly(self, _cmd);
    const NSUInteger count = [_items count];
    return count > 1 ? [_items objectAtIndex:count - 2] : nil;
}

@end

@implementation UIToolbar

- (void)dealloc {
    [_items release];
    [super dealloc];
}

- (NSArray*)items {
    mainThreadOnly(self, _cmd);
    return [[_items retain] autorelease];
}

- (void)setItems:(NSArray*)items {
    [self setItems:items animated:NO];
}

- (void)setItems:(NSArray*)items animated:(BOOL)animated {
    mainThreadOnly(self, _cmd);
    [_items autorelease];
    _items = [items copy];
    [self setNeedsLayout];
}

@end

@implementation UINavigationController

- (instancetype)init {
    self = [super init];
    _navigationState = new simulator::NavigationState;
    _navigationState->bar =
        Retained<UINavigationBar*>::adopted([[UINavigationBar alloc] initWithFrame:CGRectZero]);
    _navigationState->toolbar = Retained<UIToolbar*>::adopted([[UIToolbar alloc] initWithFrame:CGRectZero]);
    [_navigationState->toolbar.get() setHidden:YES];
    return self;
}

- (instancetype)initWithRootViewController:(UIViewController*)root {
    self = [self init];
    [self pushViewController:root animated:NO];
    return self;
}

- (void)dealloc {
    delete _navigationState;
    [super dealloc];
}

- (UINavigationBar*)navigationBar {
    mainThreadOnly(self, _cmd);
    return _navigationState->bar.get();
}

- (UIToolbar*)toolbar {
    mainThreadOnly(self, _cmd);
    return _navigationState->toolbar.get();
}

- (BOOL)isNavigationBarHidden {
    mainThreadOnly(self, _cmd);
    return _navigationState->barIsHidden ? YES : NO;
}

- (void)setNavigationBarHidden:(BOOL)hidden {
    mainThreadOnly(self, _cmd);
    _navigationState->barIsHidden = hidden;
    [_navigationState->bar.get() setHidden:hidden];
    [[self viewIfLoaded] setNeedsLayout];
}

- (BOOL)isToolbarHidden {
    mainThreadOnly(self, _cmd);
    return _navigationState->toolbarIsHidden ? YES : NO;
}

- (void)setToolbarHidden:(BOOL)hidden {
    mainThreadOnly(self, _cmd);
    _navigationState->toolbarIsHidden = hidden;
    [[self toolbar] setHidden:hidden];
    [[self viewIfLoaded] setNeedsLayout];
}

#pragma mark The stack

- (NSArray*)viewControllers {
    mainThreadOnly(self, _cmd);
    return [[_navigationState->stack.get() copy] autorelease];
}

- (void)setViewControllers:(NSArray*)controllers {
    mainThreadOnly(self, _cmd);
    [self setStack:controllers animated:NO];
}

- (UIViewController*)topViewController {
    mainThreadOnly(self, _cmd);
    return [_navigationState->stack.get() lastObject];
}

- (UIViewController*)visibleViewController {
    mainThreadOnly(self, _cmd);
    UIViewController* presented = [self presentedViewController];
    return presented ? presented : [self topViewController];
}

- (void)pushViewController:(UIViewController*)controller animated:(BOOL)animated {
    mainThreadOnly(self, _cmd);
    if (!controller || [_navigationState->stack.get() containsObject:controller])
        [NSException raise:NSInvalidArgumentException
                    format:@"%@ cannot be pushed onto %@", controller, self];
    [self setStack:[_navigationState->stack.get() arrayByAddingObject:controller] animated:animated];
}

- (UIViewController*)popViewControllerAnimated:(BOOL)animated {
    mainThreadOnly(self, _cmd);
    const NSUInteger count = [_navigationState->stack.get() count];
    if (count < 2) return nil;
    return [[self popToDepth:count - 1 animated:animated] firstObject];
}

- (NSArray*)popToRootViewControllerAnimated:(BOOL)animated {
    mainThreadOnly(self, _cmd);
    return [self popToDepth:1 animated:animated];
}

- (NSArray*)popToViewController:(UIViewController*)controller animated:(BOOL)animated {
    mainThreadOnly(self, _cmd);
    const NSUInteger index = [_navigationState->stack.get() indexOfObject:controller];
    if (index == NSNotFound)
        [NSException raise:NSInternalInconsistencyException format:@"%@ is not on the stack", controller];
    return [self popToDepth:index + 1 animated:animated];
}

// Takes away all but the first `depth` controllers and returns what was taken.
- (NSArray*)popToDepth:(NSUInteger)depth animated:(BOOL)animated {
    NSArray* stack = [self viewControllers];
    if ([stack count] <= depth) return [NSArray array];
    [self setStack:[stack subarrayWithRange:NSMakeRange(0, depth)] animated:animated];
    return [stack subarrayWithRange:NSMakeRange(depth, [stack count] - depth)];
}

- (void)setStack:(NSArray*)stack animated:(BOOL)animated {
    const Retained<UIViewController*> oldTop([self topViewController]);
    UIViewController* newTop = [stack lastObject];
    NSArray* before = [self viewControllers];
    for (UIViewController* controller in stack)
        [self addChildViewController:controller];
    [_navigationState->stack.get() setArray:stack];
    [self updateBars];
    if (oldTop.get() != newTop && [self isViewLoaded])
        simulator::exchangeChildren(self, oldTop.get(), newTop, [self contentFrame], animated);
    for (UIViewController* controller in stack)
        if (![before containsObject:controller]) [controller didMoveToParentViewController:self];
    for (UIViewController* controller in before) {
        if ([stack containsObject:controller]) continue;
        [controller willMoveToParentViewController:nil];
        [controller removeFromParentViewController];
    }
}

- (void)updateBars {
    NSMutableArray* items = [NSMutableArray array];
    for (UIViewController* controller in _navigationState->stack.get())
        [items addObject:[controller navigationItem]];
    [_navigationState->bar.get() setItems:items];
    [_navigationState->toolbar.get() setItems:[[self topViewController] toolbarItems]];
}

#pragma mark Layout

- (NSArray*)shownChildren {
    UIViewController* top = [self topViewController];
    return top ? [NSArray arrayWithObject:top] : [NSArray array];
}

- (CGRect)contentFrame {
    CGRect frame = [[self view] bounds];
    if (!_navigationState->barIsHidden) {
        frame.origin.y += statusBarHeight + barHeight;
        frame.size.height -= statusBarHeight + barHeight;
    }
    if (!_navigationState->toolbarIsHidden) frame.size.height -= barHeight;
    return frame;
}

- (void)viewDidLoad {
    [super viewDidLoad];
    if (UIViewController* top = [self topViewController]) {
        [[top view] setFrame:[self contentFrame]];
        [[self view] addSubview:[top view]];
    }
    [[self view] addSubview:_navigationState->bar.get()];
    [[self view] addSubview:[self toolbar]];
}

- (void)viewWillLayoutSubviews {
    [super viewWillLayoutSubviews];
    const CGSize size = [[self view] bounds].size;
    [_navigationState->bar.get() setFrame:CGRectMake(0, statusBarHeight, size.width, barHeight)];
    [[self toolbar] setFrame:CGRectMake(0, size.height - barHeight, size.width, barHeight)];
    [[[self topViewController] view] setFrame:[self contentFrame]];
}

@end
