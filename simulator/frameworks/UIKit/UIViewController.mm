#import "UIKit/UIViewController.h"

#import "UIKit/UINavigationController.h"
#import "UIKit/UINavigationItem.h"
#import "UIKit/UIPopoverPresentationController.h"
#import "UIKit/UIScreen.h"
#import "UIKit/UITabBarController.h"
#import "UIKit/internal/Containers.h"
#import "UIKit/internal/ViewInternals.h"

#include <initializer_list>

namespace {

// The nearest controller of a class above this one.
template <typename Controller> Controller* enclosing(UIViewController* controller) {
    UIViewController* candidate = [controller parentViewController];
    while (candidate != nil && ![candidate isKindOfClass:[Controller class]])
        candidate = [candidate parentViewController];
    return static_cast<Controller*>(candidate);
}

} // namespace

@implementation UIViewController

@synthesize title = _title, tabBarItem = _tabBarItem, toolbarItems = _toolbarItems, editing = _editing,
            modalPresentationStyle = _modalPresentationStyle;

- (instancetype)init {
    self = [super init];
    _childViewControllers = [[NSArray alloc] init];
    return self;
}

- (void)dealloc {
    [self setView:nil];
    for (UIViewController* child in _childViewControllers)
        child->_parentViewController = nil;
    if (_presented != nil) _presented->_presenting = nil;
    if (_endOfTransition) Block_release(_endOfTransition);
    for (id owned : {(id)_title, (id)_navigationItem, (id)_tabBarItem, (id)_toolbarItems,
                     (id)_childViewControllers, (id)_presented, (id)_popover})
        [owned release];
    [super dealloc];
}

- (void)setTitle:(NSString*)title {
    [_title autorelease];
    _title = [title copy];
    [_navigationItem setTitle:title];
}

- (UIView*)view {
    [self loadViewIfNeeded];
    return _view;
}

- (void)loadViewIfNeeded {
    if (_view != nil) return;
    [self loadView];
    [self viewDidLoad];
}

- (void)setView:(UIView*)view {
    if (_view != nil) [_view setViewController:nil];
    [view retain];
    [_view release];
    _view = view;
    if (view != nil) [view setViewController:self];
}

- (UIView*)viewIfLoaded {
    return _view;
}

- (BOOL)isViewLoaded {
    return _view != nil;
}

- (void)loadView {
    UIView* view = [[[UIView alloc] initWithFrame:[[UIScreen mainScreen] bounds]] autorelease];
    [view setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [self setView:view];
}

- (void)viewDidLoad {
}

- (void)viewWillAppear:(BOOL)animated {
}

- (void)viewDidAppear:(BOOL)animated {
}

- (void)viewWillDisappear:(BOOL)animated {
}

- (void)viewDidDisappear:(BOOL)animated {
}

- (void)viewWillLayoutSubviews {
}

- (void)viewDidLayoutSubviews {
}

- (void)viewWillTransitionToSize:(CGSize)size
       withTransitionCoordinator:(id<UIViewControllerTransitionCoordinator>)coordinator {
    for (UIViewController* child in _childViewControllers)
        [child viewWillTransitionToSize:size withTransitionCoordinator:coordinator];
    [_presented viewWillTransitionToSize:size withTransitionCoordinator:coordinator];
}

- (void)setEditing:(BOOL)editing {
    [self setEditing:editing animated:NO];
}

- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
    _editing = editing;
}

- (BOOL)prefersStatusBarHidden {
    return NO;
}

- (UIStatusBarStyle)preferredStatusBarStyle {
    return UIStatusBarStyleDefault;
}

- (UINavigationController*)navigationController {
    return enclosing<UINavigationController>(self);
}

- (UITabBarController*)tabBarController {
    return enclosing<UITabBarController>(self);
}

- (UINavigationItem*)navigationItem {
    if (_navigationItem == nil) {
        _navigationItem = [[UINavigationItem alloc] init];
        [_navigationItem setTitle:_title];
    }
    return _navigationItem;
}

- (void)setToolbarItems:(NSArray*)items animated:(BOOL)animated {
    [_toolbarItems autorelease];
    _toolbarItems = [items copy];
    UINavigationController* navigation = [self navigationController];
    if ([navigation topViewController] == self) [[navigation toolbar] setItems:items];
}

@end
