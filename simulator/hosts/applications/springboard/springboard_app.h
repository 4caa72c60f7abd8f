#pragma once

#import "UIKit/UIKit.h"

@interface FBSystemApp : UIApplication
@end

/// The application that owns the home screen; every other one is started by it.
@interface SpringBoard : FBSystemApp
@end

/// An application on the home screen.
@interface SBIconView : UIControl {
    NSString* _applicationBundleID;
}
@property (nonatomic, copy) NSString* applicationBundleID;
@end
