#import "UIKit/UIResponder.h"

#import "ObjectiveC/MainThreadOnly.h"
#import "UIKit/internal/MainThread.h"
#import "UIKit/internal/Ownership.h"

namespace {

// The one that keyboard input goes to. Main thread only.
simulator::Weak& firstResponder() {
    static simulator::Weak responder;
    return responder;
}

} // namespace

@implementation UIResponder

+ (BOOL)isMainThreadOnly {
    return YES;
}

- (UIResponder*)nextResponder {
    return nil;
}

- (BOOL)canBecomeFirstResponder {
    return NO;
}

- (BOOL)isFirstResponder {
    return firstResponder().get() == self ? YES : NO;
}

- (BOOL)becomeFirstResponder {
    simulator::mainThreadOnly(self, _cmd);
    if ([self isFirstResponder]) return YES;
    if (![self canBecomeFirstResponder]) return NO;
    if (![(UIResponder*)firstResponder().get() resignFirstResponder] && firstResponder().get()) return NO;
    firstResponder() = self;
    return YES;
}

- (BOOL)resignFirstResponder {
    simulator::mainThreadOnly(self, _cmd);
    if ([self isFirstResponder]) firstResponder() = simulator::Weak();
    return YES;
}

@end
