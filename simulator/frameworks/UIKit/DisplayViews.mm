#import "UIKit/DisplayViews.h"

#import "UIKit/UIColor.h"
#import "UIKit/UIImage.h"
#import "UIKit/internal/Text.h"

@implementation UILabel

@synthesize text = _text, font = _font, textColor = _textColor, textAlignment = _textAlignment,
            numberOfLines = _numberOfLines, baselineAdjustment = _baselineAdjustment,
            minimumScaleFactor = _minimumScaleFactor, adjustsFontSizeToFitWidth = _adjustsFontSizeToFitWidth,
            adjustsLetterSpacingToFitWidth = _adjustsLetterSpacingToFitWidth;

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _font = [[UIFont systemFontOfSize:17] retain];
    _textColor = [[UIColor blackColor] retain];
    _numberOfLines = 1;
    [self setUserInteractionEnabled:NO];
    [self setOpaque:NO];
    return self;
}

- (void)dealloc {
    [_text release];
    [_font release];
    [_textColor release];
    [super dealloc];
}

- (CGSize)sizeThatFits:(CGSize)size {
    const CGFloat width = size.width > 0 && _numberOfLines != 1 ? size.width : CGFLOAT_MAX;
    return simulator::sizeOfText(_text, _font, {width, CGFLOAT_MAX}, _numberOfLines);
}

@end

@implementation UIImageView

@synthesize image = _image;

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    [self setUserInteractionEnabled:NO];
    return self;
}

- (instancetype)initWithImage:(UIImage*)image {
    self = [self initWithFrame:{CGPointZero, image != nil ? [image size] : CGSizeZero}];
    _image = [image retain];
    return self;
}

- (void)dealloc {
    [_image release];
    [super dealloc];
}

@end

@implementation UIActivityIndicatorView

@synthesize activityIndicatorViewStyle = _activityIndicatorViewStyle, hidesWhenStopped = _hidesWhenStopped,
            animating = _animating;

- (instancetype)initWithActivityIndicatorStyle:(UIActivityIndicatorViewStyle)style {
    self = [self initWithFrame:CGRectMake(0, 0, 20, 20)];
    _activityIndicatorViewStyle = style;
    [self setHidesWhenStopped:YES];
    return self;
}

- (void)setHidesWhenStopped:(BOOL)hides {
    _hidesWhenStopped = hides;
    [self setHidden:hides && !_animating ? YES : NO];
}

- (void)startAnimating {
    _animating = YES;
    [self setHidden:NO];
}

- (void)stopAnimating {
    _animating = NO;
    if (_hidesWhenStopped) [self setHidden:YES];
}

@end

@implementation UIVisualEffect
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

@synthesize effect = _effect;

- (instancetype)initWithEffect:(UIVisualEffect*)effect {
    self = [self initWithFrame:CGRectZero];
    _effect = [effect retain];
    return self;
}

- (void)dealloc {
    [_effect release];
    [super dealloc];
}

@end
