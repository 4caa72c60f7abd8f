#import "UIKit/UIPopoverPresentationController.h"

@implementation UIPopoverPresentationController

@synthesize sourceView = _sourceView, sourceRect = _sourceRect, barButtonItem = _barButtonItem;

+ (BOOL)isMainThreadOnly {
    return YES;
}

- (void)dealloc {
    [_sourceView release];
    [_barButtonItem release];
    [super dealloc];
}

@end
