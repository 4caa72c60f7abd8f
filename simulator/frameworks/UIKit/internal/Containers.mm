#import "UIKit/internal/Containers.h"

@implementation UIViewController (Appearance)

- (void)willChangeAppearance:(BOOL)appears animated:(BOOL)animated {
    if (_appeared == appears) return;
    [self view];
    if (appears) [self viewWillAppear:animated];
    [[self shownChild] willChangeAppearance:appears animated:animated];
    if (!appears) [self viewWillDisappear:animated];
}

- (void)didChangeAppearance:(BOOL)appears animated:(BOOL)animated {
    if (_appeared == appears) return;
    _appeared = appears;
    [[self shownChild] didChangeAppearance:appears animated:animated];
    if (appears)
        [self viewDidAppear:animated];
    else
        [self viewDidDisappear:animated];
}

@end

@implementation UIViewController (Container)

- (UIViewController*)parentViewController {
    return _parentViewController;
}

- (NSArray*)childViewControllers {
    return [[_childViewControllers retain] autorelease];
}

- (void)setChildViewControllers:(NSArray*)children {
    [_childViewControllers autorelease];
    _childViewControllers = [children copy];
    for (UIViewController* child in children)
        child->_parentViewController = self;
}

- (void)disown:(NSArray*)children {
    for (UIViewController* child in children)
        if (![_childViewControllers containsObject:child]) child->_parentViewController = nil;
}

- (UIViewController*)shownChild {
    return nil;
}

- (CGRect)contentFrame {
    return CGRectZero;
}

- (void)showChildInsteadOf:(UIViewController*)old animated:(BOOL)animated {
    UIViewController* shown = [self shownChild];
    const BOOL tells = _appeared;
    if (tells) {
        [old willChangeAppearance:NO animated:animated];
        [shown willChangeAppearance:YES animated:animated];
    }
    [[old viewIfLoaded] removeFromSuperview];
    if (shown != nil) {
        [[shown view] setFrame:[self contentFrame]];
        [[self view] insertSubview:[shown view] atIndex:0];
    }
    if (!tells) return;
    [old didChangeAppearance:NO animated:animated];
    [[self view] layoutIfNeeded];
    [shown didChangeAppearance:YES animated:animated];
}

@end
