#import "UIKit/UIVisualEffectView.h"

#import "ObjectiveC/MainThreadOnly.h"
#import "UIKit/internal/MainThread.h"

@implementation UIVisualEffect

+ (BOOL)isMainThreadOnly {
    return YES;
}

- (id)copyWithZone:(NSZone*)zone {
    return [self retain];
}

@end

@implementation UIBlurEffect

@synthesize style = _style;

+ (UIBlurEffect*)effectWithStyle:(UIBlurEffectStyle)style {
    UIBlurEffect* effect = [[[self alloc] init] autorelease];
    effect->_style = style;
    return effect;
}

@end

@implementation UIVisualEffectView

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _contentView = [[UIView alloc] initWithFrame:[self bounds]];
    [_contentView setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [self addSubview:_contentView];
    return self;
}

- (instancetype)initWithEffect:(UIVisualEffect*)effect {
    self = [self initWithFrame:CGRectZero];
    _effect = [effect copy];
    return self;
}

- (void)dealloc {
    [_effect release];
    [_contentView release];
    [super dealloc];
}

- (UIVisualEffect*)effect {
    simulator::mainThreadOnly(self, _cmd);
    return _effect;
}

- (void)setEffect:(UIVisualEffect*)effect {
    simulator::mainThreadOnly(self, _cmd);
    [_effect autorelease];
    _effect = [effect copy];
}

- (UIView*)contentView {
    simulator::mainThreadOnly(self, _cmd);
    return _contentView;
}

@end
