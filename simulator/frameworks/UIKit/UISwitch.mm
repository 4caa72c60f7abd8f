#import "UIKit/UISwitch.h"

#import "UIKit/internal/MainThread.h"

namespace {

constexpr CGSize switchSize = {51, 31}; // whatever frame is asked for

} // namespace

@implementation UISwitch

- (instancetype)initWithFrame:(CGRect)frame {
    return [super initWithFrame:{frame.origin, switchSize}];
}

- (BOOL)isOn {
    simulator::mainThreadOnly(self, _cmd);
    return _on;
}

- (void)setOn:(BOOL)on {
    [self setOn:on animated:NO];
}

- (void)setOn:(BOOL)on animated:(BOOL)animated {
    simulator::mainThreadOnly(self, _cmd);
    _on = on ? YES : NO;
}

@end
