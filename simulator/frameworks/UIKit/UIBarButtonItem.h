// Buttons in bars: not views, but what a bar makes its buttons from.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

@class UIImage, UIView;

namespace simulator {
struct BarItemState;
}

typedef NS_ENUM(NSInteger, UIBarButtonItemStyle) {
    UIBarButtonItemStylePlain = 0,
    UIBarButtonItemStyleDone = 2,
};

typedef NS_ENUM(NSInteger, UIBarButtonSystemItem) {
    UIBarButtonSystemItemDone = 0,
    UIBarButtonSystemItemCancel = 1,
    UIBarButtonSystemItemEdit = 2,
    UIBarButtonSystemItemSave = 3,
    UIBarButtonSystemItemAdd = 4,
    UIBarButtonSystemItemFlexibleSpace = 5,
    UIBarButtonSystemItemAction = 9,
    UIBarButtonSystemItemTrash = 16,
};

@interface UIBarItem : NSObject {
  @private
    simulator::BarItemState* _barItemState;
}

@property (nonatomic, copy) NSString* title;
@property (nonatomic, retain) UIImage* image;
@property (nonatomic) NSInteger tag;
@property (nonatomic, getter=isEnabled) BOOL enabled;

@end

@interface UIBarButtonItem : UIBarItem {
  @private
    UIBarButtonItemStyle _style;
    id _target;
    SEL _action;
    UIView* _customView;
}

// The target is not retained.
- (instancetype)initWithTitle:(NSString*)title
                        style:(UIBarButtonItemStyle)style
                       target:(id)target
                       action:(SEL)action;
- (instancetype)initWithImage:(UIImage*)image
                        style:(UIBarButtonItemStyle)style
                       target:(id)target
                       action:(SEL)action;
- (instancetype)initWithBarButtonSystemItem:(UIBarButtonSystemItem)systemItem
                                     target:(id)target
                                     action:(SEL)action;
- (instancetype)initWithCustomView:(UIView*)customView;

@property (nonatomic) UIBarButtonItemStyle style;
@property (nonatomic, assign) id target;
@property (nonatomic) SEL action;
@property (nonatomic, retain) UIView* customView;

@end

@interface UITabBarItem : UIBarItem

- (instancetype)initWithTitle:(NSString*)title image:(UIImage*)image tag:(NSInteger)tag;

@end
