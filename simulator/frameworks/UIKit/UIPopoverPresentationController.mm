#import "UIKit/UIPopoverPresentationController.h"

#import "ObjectiveC/MainThreadOnly.h"
#import "UIKit/UIBarButtonItem.h"
#import "UIKit/internal/MainThread.h"

using simulator::mainThreadOnly;

@implementation UIPresentationController

+ (BOOL)isMainThreadOnly {
    return YES;
}

- (instancetype)initWithPresentedViewController:(UIViewController*)controller {
    mainThreadOnly(self, _cmd);
    self = [super init];
    _presentedViewController = controller;
    return self;
}

- (void)dealloc {
    [_sourceView release];
    [super dealloc];
}

- (UIViewController*)presentedViewController {
    mainThreadOnly(self, _cmd);
    return _presentedViewController;
}

- (UIView*)sourceView {
    mainThreadOnly(self, _cmd);
    return _sourceView;
}

- (void)setSourceView:(UIView*)view {
    mainThreadOnly(self, _cmd);
    [view retain];
    [_sourceView release];
    _sourceView = view;
}

- (CGRect)sourceRect {
    mainThreadOnly(self, _cmd);
    return _sourceRect;
}

- (void)setSourceRect:(CGRect)rect {
    mainThreadOnly(self, _cmd);
    _sourceRect = rect;
}

@end

@implementation UIPopoverPresentationController

@synthesize permittedArrowDirections = _permittedArrowDirections;

- (void)dealloc {
    [_barButtonItem release];
    [super dealloc];
}

- (UIBarButtonItem*)barButtonItem {
    mainThreadOnly(self, _cmd);
    return _barButtonItem;
}

- (void)setBarButtonItem:(UIBarButtonItem*)item {
    mainThreadOnly(self, _cmd);
    [item retain];
    [_barButtonItem release];
    _barButtonItem = item;
}

@end
