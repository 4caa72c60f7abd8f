// Buttons in bars: not views, but what a bar makes its buttons from.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

@class UIImage;

typedef NS_ENUM(NSInteger, UIBarButtonItemStyle) {
    UIBarButtonItemStylePlain = 0,
};

@interface UIBarItem : NSObject {
  @private
    NSString* _title;
    UIImage* _image;
    NSInteger _tag;
}

@property (nonatomic, copy) NSString* title;
@property (nonatomic, retain) UIImage* image;
@property (nonatomic) NSInteger tag;

@end

@interface UIBarButtonItem : UIBarItem {
  @private
    UIBarButtonItemStyle _style;
    id _target;
    SEL _action;
}

- (instancetype)initWithTitle:(NSString*)title
                        style:(UIBarButtonItemStyle)style
                       target:(id)target
                       action:(SEL)action;

@property (nonatomic) UIBarButtonItemStyle style;
@property (nonatomic, assign) id target;
@property (nonatomic) SEL action;

@end

@interface UITabBarItem : UIBarItem

- (instancetype)initWithTitle:(NSString*)title image:(UIImage*)image tag:(NSInteger)tag;

@end
