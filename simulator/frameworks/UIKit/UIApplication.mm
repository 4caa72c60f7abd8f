#import "UIKit/UIApplication.h"

#import "UIKit/UIWindow.h"
#import "UIKit/internal/ActionTargets.h"
#import "UIKit/internal/ApplicationWindows.h"
#import "UIKit/internal/MainThread.h"

using simulator::mainThreadOnly;

namespace {

UIApplication* theApplication = nil; // lives as long as the process

} // namespace

@implementation UIApplication

+ (UIApplication*)sharedApplication {
    return theApplication;
}

- (instancetype)init {
    mainThreadOnly(self, _cmd);
    if (theApplication)
        [NSException raise:NSInternalInconsistencyException
                    format:@"There can only be one UIApplication instance."];
    self = [super init];
    _windows = [[NSMutableArray alloc] init];
    _applicationState = UIApplicationStateInactive;
    theApplication = self;
    return self;
}

- (void)dealloc {
    if (theApplication == self) theApplication = nil;
    [_windows release];
    [_keyWindow release];
    [super dealloc];
}

- (UIWindow*)keyWindow {
    mainThreadOnly(self, _cmd);
    return _keyWindow;
}

- (NSArray*)windows {
    mainThreadOnly(self, _cmd);
    return [[_windows copy] autorelease];
}

- (void)addWindow:(UIWindow*)window {
    if (![_windows containsObject:window]) [_windows addObject:window];
}

- (void)makeKeyWindow:(UIWindow*)window {
    [window retain];
    [_keyWindow release];
    _keyWindow = window;
}

- (UIApplicationState)applicationState {
    mainThreadOnly(self, _cmd);
    return _applicationState;
}

- (id)delegate {
    mainThreadOnly(self, _cmd);
    return _applicationDelegate;
}

- (void)setDelegate:(id)delegate {
    mainThreadOnly(self, _cmd);
    _applicationDelegate = delegate;
}

- (BOOL)sendAction:(SEL)action to:(id)target from:(id)sender forEvent:(id)event {
    mainThreadOnly(self, _cmd);
    if (![target respondsToSelector:action]) return NO;
    simulator::sendAction(target, action, sender);
    return YES;
}

// One step of the application's life.
- (void)tellLife:(SEL)step {
    id listener = _applicationDelegate ? _applicationDelegate : self;
    if ([listener respondsToSelector:step]) [listener performSelector:step withObject:self];
}

@end

@implementation UIApplication (LifeCycle)

+ (UIApplication*)startApplicationOfClass:(Class)applicationClass {
    mainThreadOnly(self, _cmd);
    UIApplication* application = [[applicationClass alloc] init];
    [application tellLife:@selector(applicationDidFinishLaunching:)];
    [application enterForeground];
    return application;
}

- (void)enterBackground {
    mainThreadOnly(self, _cmd);
    if (_applicationState == UIApplicationStateBackground) return;
    _applicationState = UIApplicationStateInactive;
    [self tellLife:@selector(applicationWillResignActive:)];
    _applicationState = UIApplicationStateBackground;
    [self tellLife:@selector(applicationDidEnterBackground:)];
}

- (void)enterForeground {
    mainThreadOnly(self, _cmd);
    if (_applicationState == UIApplicationStateBackground) {
        _applicationState = UIApplicationStateInactive;
        [self tellLife:@selector(applicationWillEnterForeground:)];
    }
    _applicationState = UIApplicationStateActive;
    [self tellLife:@selector(applicationDidBecomeActive:)];
}

@end
