#pragma once

#import "UIKit/UIKit.h"

/// The square that shows an album's cover, with rounded corners.
@interface PUStackView : UIView {
    UIImageView* _coverView;
    UIImageView* _cornerOverlayView;
}
@property (nonatomic, retain) UIImage* coverImage;
@end
