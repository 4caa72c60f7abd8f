// A view that shows a picture. Takes no touches unless told to.
#pragma once

#import "UIKit/UIView.h"

@class UIImage;

@interface UIImageView : UIView {
  @private
    UIImage* _image;
}

// Takes the size of the image; an empty view for nil.
- (instancetype)initWithImage:(UIImage*)image;

@property (nonatomic, retain) UIImage* image;

@end
