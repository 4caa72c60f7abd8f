#import "UIKit/UINavigationItem.h"

#import "ObjectiveC/MainThreadOnly.h"
#import "UIKit/UIView.h"
#import "UIKit/internal/MainThread.h"

using simulator::mainThreadOnly;

namespace {

// The items with another first one; nil takes it away.
NSArray* replacingFirst(NSArray* items, UIBarButtonItem* item) {
    NSMutableArray* changed = [NSMutableArray arrayWithArray:items];
    if ([changed count] > 0) [changed removeObjectAtIndex:0];
    if (item) [changed insertObject:item atIndex:0];
    return changed;
}

NSArray* copyUnlessEmpty(NSArray* items) { return [items count] > 0 ? [items copy] : nil; }

} // namespace

@implementation UINavigationItem

+ (BOOL)isMainThreadOnly {
    return YES;
}

- (instancetype)initWithTitle:(NSString*)title {
    mainThreadOnly(self, _cmd);
    self = [self init];
    _title = [title copy];
    return self;
}

- (void)dealloc {
    [_title release];
    [_prompt release];
    [_titleView release];
    [_leftBarButtonItems release];
    [_rightBarButtonItems release];
    [super dealloc];
}

- (NSString*)title {
    mainThreadOnly(self, _cmd);
    return _title;
}

- (void)setTitle:(NSString*)title {
    mainThreadOnly(self, _cmd);
    [_title autorelease];
    _title = [title copy];
}

- (NSString*)prompt {
    mainThreadOnly(self, _cmd);
    return _prompt;
}

- (void)setPrompt:(NSString*)prompt {
    mainThreadOnly(self, _cmd);
    [_prompt autorelease];
    _prompt = [prompt copy];
}

- (UIView*)titleView {
    mainThreadOnly(self, _cmd);
    return _titleView;
}

- (void)setTitleView:(UIView*)view {
    mainThreadOnly(self, _cmd);
    [_titleView autorelease];
    _titleView = [view retain];
}

- (BOOL)hidesBackButton {
    mainThreadOnly(self, _cmd);
    return _hidesBackButton;
}

- (void)setHidesBackButton:(BOOL)hides {
    mainThreadOnly(self, _cmd);
    _hidesBackButton = hides ? YES : NO;
}

- (NSArray*)leftBarButtonItems {
    mainThreadOnly(self, _cmd);
    return [[_leftBarButtonItems retain] autorelease];
}

- (void)setLeftBarButtonItems:(NSArray*)items {
    mainThreadOnly(self, _cmd);
    [_leftBarButtonItems autorelease];
    _leftBarButtonItems = copyUnlessEmpty(items);
}

- (void)setLeftBarButtonItems:(NSArray*)items animated:(BOOL)animated {
    [self setLeftBarButtonItems:items];
}

- (NSArray*)rightBarButtonItems {
    mainThreadOnly(self, _cmd);
    return [[_rightBarButtonItems retain] autorelease];
}

- (void)setRightBarButtonItems:(NSArray*)items {
    mainThreadOnly(self, _cmd);
    [_rightBarButtonItems autorelease];
    _rightBarButtonItems = copyUnlessEmpty(items);
}

- (void)setRightBarButtonItems:(NSArray*)items animated:(BOOL)animated {
    [self setRightBarButtonItems:items];
}

- (UIBarButtonItem*)leftBarButtonItem {
    return [[self leftBarButtonItems] firstObject];
}

- (void)setLeftBarButtonItem:(UIBarButtonItem*)item {
    [self setLeftBarButtonItems:replacingFirst([self leftBarButtonItems], item)];
}

- (UIBarButtonItem*)rightBarButtonItem {
    return [[self rightBarButtonItems] firstObject];
}

- (void)setRightBarButtonItem:(UIBarButtonItem*)item {
    [self setRightBarButtonItems:replacingFirst([self rightBarButtonItems], item)];
}

@end
