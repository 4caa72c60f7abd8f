// Whatever can take part in the handling of events: views, controllers and the application.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

@interface UIResponder : NSObject

- (UIResponder*)nextResponder;
- (BOOL)canBecomeFirstResponder;
- (BOOL)isFirstResponder;
- (BOOL)becomeFirstResponder;
- (BOOL)resignFirstResponder;

@end
