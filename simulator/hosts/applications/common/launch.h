/// How an application shows its first screen.
#pragma once

#import "UIKit/UIKit.h"

namespace simulator {

/// Makes a window of the screen's size with the controller as its root and makes it the key window; the
/// application keeps it. Main thread.
UIWindow* showRootViewController(UIViewController* controller);

/// A bar button with a title.
UIBarButtonItem* barButton(NSString* title, id target, SEL action);

} // namespace simulator
