// Stand-in of the user-interface framework. Include this header alone.
//
// Views, controllers and alerts belong to the main thread and raise NSInternalInconsistencyException
// elsewhere; colours, fonts, images and text measurement may be used on any thread. Memory is counted by
// hand.
#pragma once

#import "CoreGraphics/CoreGraphics.h"
#import "QuartzCore/QuartzCore.h"

#import "UIKit/DisplayViews.h"
#import "UIKit/NSIndexPath+UIKit.h"
#import "UIKit/UIActivityViewController.h"
#import "UIKit/UIAlertController.h"
#import "UIKit/UIApplication.h"
#import "UIKit/UIBarButtonItem.h"
#import "UIKit/UICollectionView.h"
#import "UIKit/UIColor.h"
#import "UIKit/UIControl.h"
#import "UIKit/UIDevice.h"
#import "UIKit/UIFont.h"
#import "UIKit/UIGestureRecognizer.h"
#import "UIKit/UIImage.h"
#import "UIKit/UINavigationController.h"
#import "UIKit/UINavigationItem.h"
#import "UIKit/UIPasteboard.h"
#import "UIKit/UIPopoverPresentationController.h"
#import "UIKit/UIScreen.h"
#import "UIKit/UIScrollView.h"
#import "UIKit/UITabBarController.h"
#import "UIKit/UITableView.h"
#import "UIKit/UIView.h"
#import "UIKit/UIViewController.h"
#import "UIKit/UIViewControllerPreviewing.h"
#import "UIKit/UIWindow.h"
