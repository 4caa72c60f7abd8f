// How windows make themselves known to the application.
#pragma once

#import "UIKit/UIApplication.h"

@interface UIApplication (Windows)

- (void)addWindow:(UIWindow*)window;
- (void)makeKeyWindow:(UIWindow*)window;

@end
