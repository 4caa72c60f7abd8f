#import "UIKit/UINavigationController.h"

#import "UIKit/internal/Containers.h"

namespace {

constexpr CGFloat statusBarHeight = 20;
constexpr CGFloat barHeight = 44;

} // namespace

@implementation UINavigationBar

@synthesize items = _items;

- (void)dealloc {
    [_items release];
    [super dealloc];
}

- (UINavigationItem*)topItem {
    return [_items lastObject];
}

@end

@implementation UIToolbar

@synthesize items = _items;

- (void)dealloc {
    [_items release];
    [super dealloc];
}

@end

@implementation UINavigationController

@synthesize navigationBar = _navigationBar, toolbar = _toolbar;

- (instancetype)init {
    self = [super init];
    _navigationBar = [[UINavigationBar alloc] initWithFrame:CGRectZero];
    _toolbar = [[UIToolbar alloc] initWithFrame:CGRectZero];
    [_toolbar setHidden:YES];
    return self;
}

- (instancetype)initWithRootViewController:(UIViewController*)root {
    self = [self init];
    [self pushViewController:root animated:NO];
    return self;
}

- (void)dealloc {
    [_navigationBar release];
    [_toolbar release];
    [super dealloc];
}

- (BOOL)isToolbarHidden {
    return [_toolbar isHidden];
}

- (void)setToolbarHidden:(BOOL)hidden {
    [_toolbar setHidden:hidden];
    [[self viewIfLoaded] setNeedsLayout];
}

- (NSArray*)viewControllers {
    return [self childViewControllers];
}

- (UIViewController*)topViewController {
    return [[self childViewControllers] lastObject];
}

- (void)pushViewController:(UIViewController*)controller animated:(BOOL)animated {
    NSArray* stack = [self childViewControllers];
    if (controller == nil || [stack containsObject:controller])
        [NSException raise:NSInvalidArgumentException
                    format:@"%@ cannot be pushed onto %@", controller, self];
    [self setStack:[stack arrayByAddingObject:controller] animated:animated];
}

- (UIViewController*)popViewControllerAnimated:(BOOL)animated {
    const NSUInteger count = [[self childViewControllers] count];
    return count < 2 ? nil : [[self popToDepth:count - 1 animated:animated] firstObject];
}

- (NSArray*)popToRootViewControllerAnimated:(BOOL)animated {
    return [self popToDepth:1 animated:animated];
}

// Takes away all but the first `depth` controllers and returns what was taken.
- (NSArray*)popToDepth:(NSUInteger)depth animated:(BOOL)animated {
    NSArray* stack = [self childViewControllers];
    if ([stack count] <= depth) return [NSArray array];
    [self setStack:[stack subarrayWithRange:NSMakeRange(0, depth)] animated:animated];
    return [stack subarrayWithRange:NSMakeRange(depth, [stack count] - depth)];
}

- (void)setStack:(NSArray*)stack animated:(BOOL)animated {
    NSArray* before = [self childViewControllers];
    UIViewController* top = [stack lastObject];
    [self setChildViewControllers:stack];
    [_navigationBar setItems:[stack valueForKey:@"navigationItem"]];
    [_toolbar setItems:[top toolbarItems]];
    if ([before lastObject] != top && [self isViewLoaded])
        [self showChildInsteadOf:[before lastObject] animated:animated];
    [self disown:before];
}

- (UIViewController*)shownChild {
    return [self topViewController];
}

- (CGRect)contentFrame {
    CGRect frame = [[self view] bounds];
    frame.origin.y += statusBarHeight + barHeight;
    frame.size.height -= statusBarHeight + barHeight;
    if (![_toolbar isHidden]) frame.size.height -= barHeight;
    return frame;
}

- (void)viewDidLoad {
    [super viewDidLoad];
    [self showChildInsteadOf:nil animated:NO];
    [[self view] addSubview:_navigationBar];
    [[self view] addSubview:_toolbar];
}

- (void)viewWillLayoutSubviews {
    [super viewWillLayoutSubviews];
    const CGSize size = [[self view] bounds].size;
    [_navigationBar setFrame:CGRectMake(0, statusBarHeight, size.width, barHeight)];
    [_toolbar setFrame:CGRectMake(0, size.height - barHeight, size.width, barHeight)];
    [[[self topViewController] view] setFrame:[self contentFrame]];
}

@end
