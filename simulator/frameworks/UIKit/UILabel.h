// A view that shows text. Takes no touches unless told to.
#pragma once

#import "UIKit/NSString+UIKit.h"
#import "UIKit/UIView.h"

@class UIFont;

namespace simulator {
struct LabelState;
}

typedef NS_ENUM(NSInteger, UIBaselineAdjustment) {
    UIBaselineAdjustmentAlignBaselines = 0,
    UIBaselineAdjustmentAlignCenters = 1,
    UIBaselineAdjustmentNone = 2,
};

@interface UILabel : UIView {
  @private
    simulator::LabelState* _labelState;
}

@property (nonatomic, copy) NSString* text;
// The system font of 17 points unless set.
@property (nonatomic, retain) UIFont* font;
@property (nonatomic, retain) UIColor* textColor;
@property (nonatomic) NSTextAlignment textAlignment;
@property (nonatomic) NSLineBreakMode lineBreakMode;
// 0 means as many as fit.
@property (nonatomic) NSInteger numberOfLines;
@property (nonatomic) UIBaselineAdjustment baselineAdjustment;
@property (nonatomic) BOOL adjustsFontSizeToFitWidth;
@property (nonatomic) BOOL adjustsLetterSpacingToFitWidth;
@property (nonatomic) CGFloat minimumScaleFactor;
@property (nonatomic, getter=isEnabled) BOOL enabled;

@end
