#pragma once

#import "UIKit/UIKit.h"

/// The navigation that preference panes are pushed onto.
@interface PSRootController : UINavigationController
@end
