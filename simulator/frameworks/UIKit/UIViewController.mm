#import "UIKit/UIViewController.h"

#import "UIKit/UIBarButtonItem.h"
#import "UIKit/UINavigationController.h"
#import "UIKit/UINavigationItem.h"
#import "UIKit/UIPopoverPresentationController.h"
#import "UIKit/UIScreen.h"
#import "UIKit/UITabBarController.h"
#import "UIKit/internal/ControllerState.h"
#import "UIKit/internal/MainThread.h"
#import "UIKit/internal/ViewState.h"

#include <algorithm>

using simulator::mainThreadOnly;
using simulator::Retained;

namespace {

// The nearest controller above this one, or itself, of a class.
template <typename Controller> Controller* enclosing(UIViewController* controller) {
    UIViewController* candidate = [controller parentViewController];
    while (candidate && ![candidate isKindOfClass:[Controller class]])
        candidate = [candidate parentViewController];
    return static_cast<Controller*>(candidate);
}

} // namespace

@implementation UIViewController

- (instancetype)init {
    mainThreadOnly(self, _cmd);
    self = [super init];
    if (self) _controllerState = new simulator::ControllerState;
    return self;
}

- (void)dealloc {
    if (_controllerState) {
        if (_controllerState->view) [_controllerState->view.get() viewState].controller = nil;
        for (const auto& child : _controllerState->children)
            [child.get() controllerState].parent = nil;
        if (_controllerState->presented) [_controllerState->presented.get() controllerState].presenting = nil;
    }
    delete _controllerState;
    [super dealloc];
}

- (simulator::ControllerState&)controllerState {
    return *_controllerState;
}

- (UIResponder*)nextResponder {
    return [[self viewIfLoaded] superview];
}

#pragma mark View

- (NSString*)title {
    mainThreadOnly(self, _cmd);
    return _controllerState->title.autoreleased();
}

- (void)setTitle:(NSString*)title {
    mainThreadOnly(self, _cmd);
    _controllerState->title = Retained<NSString*>::copyOf(title);
    [[self navigationItem] setTitle:title];
    [_controllerState->tabBarItem.get() setTitle:title];
}

- (UIView*)view {
    mainThreadOnly(self, _cmd);
    [self loadViewIfNeeded];
    return _controllerState->view.get();
}

- (void)setView:(UIView*)view {
    mainThreadOnly(self, _cmd);
    if (_controllerState->view) [_controllerState->view.get() viewState].controller = nil;
    _controllerState->view = view;
    if (view) [view viewState].controller = self;
}

- (UIView*)viewIfLoaded {
    mainThreadOnly(self, _cmd);
    return _controllerState->view.get();
}

- (BOOL)isViewLoaded {
    mainThreadOnly(self, _cmd);
    return _controllerState->view ? YES : NO;
}

- (void)loadView {
    UIView* view = [[[UIView alloc] initWithFrame:[[UIScreen mainScreen] bounds]] autorelease];
    [view setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [self setView:view];
}

- (void)loadViewIfNeeded {
    mainThreadOnly(self, _cmd);
    if (_controllerState->view) return;
    [self loadView];
    [self viewDidLoad];
}

- (void)viewDidLoad {
    mainThreadOnly(self, _cmd);
}

- (void)viewWillAppear:(BOOL)animated {
    mainThreadOnly(self, _cmd);
}

- (void)viewDidAppear:(BOOL)animated {
    mainThreadOnly(self, _cmd);
}

- (void)viewWillDisappear:(BOOL)animated {
    mainThreadOnly(self, _cmd);
}

- (void)viewDidDisappear:(BOOL)animated {
    mainThreadOnly(self, _cmd);
}

- (void)viewWillLayoutSubviews {
    mainThreadOnly(self, _cmd);
}

- (void)viewDidLayoutSubviews {
    mainThreadOnly(self, _cmd);
}

- (void)viewWillTransitionToSize:(CGSize)size
       withTransitionCoordinator:(id<UIViewControllerTransitionCoordinator>)coordinator {
    mainThreadOnly(self, _cmd);
    for (UIViewController* child in [self childViewControllers])
        [child viewWillTransitionToSize:size withTransitionCoordinator:coordinator];
}

#pragma mark Editing

- (BOOL)isEditing {
    mainThreadOnly(self, _cmd);
    return _controllerState->editing ? YES : NO;
}

- (void)setEditing:(BOOL)editing {
    [self setEditing:editing animated:NO];
}

- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
    mainThreadOnly(self, _cmd);
    _controllerState->editing = editing;
    [_controllerState->editButton.get() setTitle:editing ? @"Done" : @"Edit"];
}

- (UIBarButtonItem*)editButtonItem {
    mainThreadOnly(self, _cmd);
    if (!_controllerState->editButton) {
        UIBarButtonItem* button =
            [[[UIBarButtonItem alloc] initWithTitle:[self isEditing] ? @"Done" : @"Edit"
                                              style:UIBarButtonItemStylePlain
                                             target:self
                                             action:@selector(toggleEditing)] autorelease];
        _controllerState->editButton = button;
    }
    return _controllerState->editButton.get();
}

- (void)toggleEditing {
    [self setEditing:[self isEditing] ? NO : YES animated:YES];
}

#pragma mark Containers

- (UIViewController*)parentViewController {
    mainThreadOnly(self, _cmd);
    return _controllerState->parent;
}

- (NSArray*)childViewControllers {
    mainThreadOnly(self, _cmd);
    NSMutableArray* children = [NSMutableArray array];
    for (const auto& child : _controllerState->children)
        [children addObject:child.get()];
    return children;
}

- (void)addChildViewController:(UIViewController*)child {
    mainThreadOnly(self, _cmd);
    if (!child || [child controllerState].parent == self) return;
    const Retained<UIViewController*> alive(child);
    [child removeFromParentViewController];
    [child willMoveToParentViewController:self];
    _controllerState->children.push_back(alive);
    [child controllerState].parent = self;
}

- (void)removeFromParentViewController {
    mainThreadOnly(self, _cmd);
    UIViewController* parent = _controllerState->parent;
    if (!parent) return;
    const Retained<UIViewController*> alive(self);
    std::erase_if([parent controllerState].children, [self](const auto& each) { return each.get() == self; });
    _controllerState->parent = nil;
    [self didMoveToParentViewController:nil];
}

- (void)willMoveToParentViewController:(UIViewController*)parent {
    mainThreadOnly(self, _cmd);
}

- (void)didMoveToParentViewController:(UIViewController*)parent {
    mainThreadOnly(self, _cmd);
}

- (NSArray*)shownChildren {
    NSMutableArray* shown = [NSMutableArray array];
    for (UIViewController* child in [self childViewControllers])
        if ([[child viewIfLoaded] superview]) [shown addObject:child];
    return shown;
}

- (UINavigationController*)navigationController {
    mainThreadOnly(self, _cmd);
    return enclosing<UINavigationController>(self);
}

- (UITabBarController*)tabBarController {
    mainThreadOnly(self, _cmd);
    return enclosing<UITabBarController>(self);
}

- (UINavigationItem*)navigationItem {
    mainThreadOnly(self, _cmd);
    if (!_controllerState->navigationItem) {
        UINavigationItem* item = [[UINavigationItem alloc] initWithTitle:_controllerState->title.get()];
        _controllerState->navigationItem = Retained<UINavigationItem*>::adopted(item);
    }
    return _controllerState->navigationItem.get();
}

- (UITabBarItem*)tabBarItem {
    mainThreadOnly(self, _cmd);
    if (!_controllerState->tabBarItem) {
        UITabBarItem* item = [[UITabBarItem alloc] initWithTitle:_controllerState->title.get()
                                                           image:nil
                                                             tag:0];
        _controllerState->tabBarItem = Retained<UITabBarItem*>::adopted(item);
    }
    return _controllerState->tabBarItem.get();
}

- (void)setTabBarItem:(UITabBarItem*)item {
    mainThreadOnly(self, _cmd);
    _controllerState->tabBarItem = item;
}

- (NSArray*)toolbarItems {
    mainThreadOnly(self, _cmd);
    return _controllerState->toolbarItems.autoreleased();
}

- (void)setToolbarItems:(NSArray*)items {
    [self setToolbarItems:items animated:NO];
}

- (void)setToolbarItems:(NSArray*)items animated:(BOOL)animated {
    mainThreadOnly(self, _cmd);
    _controllerState->toolbarItems = Retained<NSArray*>::copyOf(items);
    UINavigationController* navigation = [self navigationController];
    if ([navigation topViewController] == self) [[navigation toolbar] setItems:items];
}

- (CGSize)preferredContentSize {
    mainThreadOnly(self, _cmd);
    return _controllerState->preferredContentSize;
}

- (void)setPreferredContentSize:(CGSize)size {
    mainThreadOnly(self, _cmd);
    _controllerState->preferredContentSize = size;
}

@end
