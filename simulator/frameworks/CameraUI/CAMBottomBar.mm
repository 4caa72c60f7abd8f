#import "CameraUI/CameraUI.h"

namespace {
constexpr CGFloat imageWellSide = 44;
constexpr CGFloat shutterSide = 66;
constexpr CGFloat margin = 16;
} // namespace

@implementation CAMBottomBar

@synthesize backgroundView = _backgroundView, imageWell = _imageWell, shutterButton = _shutterButton;

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    if (!self) return nil;
    _backgroundView = [[UIView alloc] initWithFrame:[self bounds]];
    [_backgroundView setBackgroundColor:[UIColor blackColor]];
    [_backgroundView setUserInteractionEnabled:NO];
    _imageWell = [[CAMImageWell alloc] initWithFrame:CGRectMake(0, 0, imageWellSide, imageWellSide)];
    [_imageWell setAccessibilityLabel:@"Last photo"];
    _shutterButton = [[UIButton buttonWithType:UIButtonTypeCustom] retain];
    [_shutterButton setBounds:CGRectMake(0, 0, shutterSide, shutterSide)];
    [_shutterButton setAccessibilityLabel:@"Shutter"];
    for (UIView* view in @[ _backgroundView, _imageWell, _shutterButton ])
        [self addSubview:view];
    return self;
}

- (void)dealloc {
    [_backgroundView release];
    [_imageWell release];
    [_shutterButton release];
    [super dealloc];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    CGRect bounds = [self bounds];
    CGFloat middle = bounds.size.height / 2;
    [_backgroundView setFrame:bounds];
    [_imageWell setCenter:CGPointMake(margin + imageWellSide / 2, middle)];
    [_shutterButton setCenter:CGPointMake(bounds.size.width / 2, middle)];
}

@end
