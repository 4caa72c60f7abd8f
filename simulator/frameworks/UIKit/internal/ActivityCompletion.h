// How the share sheet hears that an activity is over.
#pragma once

#import "UIKit/UIActivity.h"
#import "UIKit/internal/Ownership.h"

@interface UIActivity (Completion)
- (void)setFinishHandler:(void (^)(BOOL completed))handler;
@end
