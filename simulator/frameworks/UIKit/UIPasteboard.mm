#import "UIKit/UIPasteboard.h"

@implementation UIPasteboard

@synthesize string = _string;

+ (UIPasteboard*)generalPasteboard {
    static UIPasteboard* const pasteboard = [[UIPasteboard alloc] init];
    return pasteboard;
}

@end
