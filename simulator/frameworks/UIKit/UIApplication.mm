#import "UIKit/UIApplication.h"

#import "UIKit/UIWindow.h"

namespace {

UIApplication* theApplication = nil; // lives as long as the process

} // namespace

@implementation UIApplication

@synthesize keyWindow = _keyWindow;

+ (UIApplication*)sharedApplication {
    return theApplication;
}

- (instancetype)init {
    if (theApplication != nil)
        [NSException raise:NSInternalInconsistencyException
                    format:@"There can only be one UIApplication instance."];
    self = [super init];
    theApplication = self;
    return self;
}

- (void)dealloc {
    theApplication = nil;
    [_keyWindow release];
    [super dealloc];
}

- (void)tellLife:(SEL)step {
    if ([self respondsToSelector:step]) [self performSelector:step withObject:self];
}

@end

@implementation UIApplication (LifeCycle)

+ (UIApplication*)startApplicationOfClass:(Class)applicationClass {
    UIApplication* application = [[applicationClass alloc] init];
    [application tellLife:@selector(applicationDidFinishLaunching:)];
    return application;
}

- (void)enterBackground {
    if (_inBackground) return;
    _inBackground = YES;
    [self tellLife:@selector(applicationDidEnterBackground:)];
}

- (void)enterForeground {
    _inBackground = NO;
}

@end
