#import "UIKit/UIBarButtonItem.h"

#import "UIKit/UIImage.h"

@implementation UIBarItem

@synthesize title = _title, image = _image, tag = _tag;

+ (BOOL)isMainThreadOnly {
    return YES;
}

- (void)dealloc {
    [_title release];
    [_image release];
    [super dealloc];
}

@end

@implementation UIBarButtonItem

@synthesize style = _style, target = _target, action = _action;

- (instancetype)initWithTitle:(NSString*)title
                        style:(UIBarButtonItemStyle)style
                       target:(id)target
                       action:(SEL)action {
    self = [self init];
    [self setTitle:title];
    _style = style;
    _target = target;
    _action = action;
    return self;
}

@end

@implementation UITabBarItem

- (instancetype)initWithTitle:(NSString*)title image:(UIImage*)image tag:(NSInteger)tag {
    self = [self init];
    [self setTitle:title];
    [self setImage:image];
    [self setTag:tag];
    return self;
}

@end
