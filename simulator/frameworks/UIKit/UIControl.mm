#import "UIKit/UIControl.h"

#import "UIKit/DisplayViews.h"
#import "UIKit/UIImage.h"
#import "UIKit/internal/ActionTargets.h"

#include <algorithm>

@implementation UIControl

- (void)addTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)events {
    _target = target;
    _action = action;
    _events = events;
}

- (void)sendActionsForControlEvents:(UIControlEvents)events {
    const simulator::Retained<UIControl*> alive(self);
    if (_events & events) simulator::sendAction(_target, _action, self);
}

@end

@implementation UIButton

+ (instancetype)buttonWithType:(UIButtonType)type {
    return [[[self alloc] initWithFrame:CGRectZero] autorelease];
}

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _imageView = [[UIImageView alloc] initWithFrame:CGRectZero];
    _titleLabel = [[UILabel alloc] initWithFrame:CGRectZero];
    return self;
}

- (void)dealloc {
    [_titleLabel release];
    [_imageView release];
    [super dealloc];
}

- (void)setTitle:(NSString*)title forState:(UIControlState)state {
    [_titleLabel setText:title];
    [self addSubview:_titleLabel];
    [self setNeedsLayout];
}

- (void)setImage:(UIImage*)image forState:(UIControlState)state {
    [_imageView setImage:image];
    [self addSubview:_imageView];
    [self setNeedsLayout];
}

- (void)setTintColor:(UIColor*)color {
    [super setTintColor:color];
    [_imageView setTintColor:color];
}

// Picture and title stand side by side in the middle.
- (void)layoutSubviews {
    [super layoutSubviews];
    const CGSize size = [self bounds].size;
    const CGSize image = [_imageView image] != nil ? [[_imageView image] size] : CGSizeZero;
    CGSize title = [_titleLabel sizeThatFits:CGSizeZero];
    title.width = std::min(title.width, std::max<CGFloat>(size.width - image.width, 0));
    const CGFloat left = (size.width - image.width - title.width) / 2;
    [_imageView setFrame:CGRectMake(left, (size.height - image.height) / 2, image.width, image.height)];
    [_titleLabel
        setFrame:CGRectMake(left + image.width, (size.height - title.height) / 2, title.width, title.height)];
}

@end

@implementation UISwitch

@synthesize on = _on;

- (void)setOn:(BOOL)on animated:(BOOL)animated {
    [self setOn:on];
}

@end

@implementation UITextField

@synthesize text = _text, placeholder = _placeholder, font = _font, secureTextEntry = _secureTextEntry;

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _text = @"";
    _font = [[UIFont systemFontOfSize:17] retain];
    return self;
}

- (void)dealloc {
    [_text release];
    [_placeholder release];
    [_font release];
    [super dealloc];
}

- (void)setText:(NSString*)text {
    [_text autorelease];
    _text = text != nil ? [text copy] : @"";
}

@end
