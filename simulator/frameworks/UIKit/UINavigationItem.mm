#import "UIKit/UINavigationItem.h"

namespace {

void replace(NSArray** items, NSArray* replacement) {
    [*items autorelease];
    *items = [replacement count] > 0 ? [replacement copy] : nil;
}

} // namespace

@implementation UINavigationItem

@synthesize title = _title, leftBarButtonItems = _leftBarButtonItems,
            rightBarButtonItems = _rightBarButtonItems,
            leftItemsSupplementBackButton = _leftItemsSupplementBackButton;

+ (BOOL)isMainThreadOnly {
    return YES;
}

- (void)dealloc {
    [_title release];
    [_leftBarButtonItems release];
    [_rightBarButtonItems release];
    [super dealloc];
}

- (void)setLeftBarButtonItems:(NSArray*)items {
    replace(&_leftBarButtonItems, items);
}

- (void)setRightBarButtonItems:(NSArray*)items {
    replace(&_rightBarButtonItems, items);
}

- (UIBarButtonItem*)leftBarButtonItem {
    return [_leftBarButtonItems firstObject];
}

- (void)setLeftBarButtonItem:(UIBarButtonItem*)item {
    [self setLeftBarButtonItems:[NSArray arrayWithObjects:item, nil]];
}

- (UIBarButtonItem*)rightBarButtonItem {
    return [_rightBarButtonItems firstObject];
}

- (void)setRightBarButtonItem:(UIBarButtonItem*)item {
    [self setRightBarButtonItems:[NSArray arrayWithObjects:item, nil]];
}

@end
