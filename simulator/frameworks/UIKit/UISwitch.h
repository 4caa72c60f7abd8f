// A control that is on or off.
#pragma once

#import "UIKit/UIControl.h"

@interface UISwitch : UIControl {
  @private
    BOOL _on;
}

@property (nonatomic, getter=isOn) BOOL on;
- (void)setOn:(BOOL)on animated:(BOOL)animated;

@end
