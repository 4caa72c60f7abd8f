// What a controller shows in the navigation bar: a title and buttons on either side.
#pragma once

#import "UIKit/UIBarButtonItem.h"

@interface UINavigationItem : NSObject {
  @private
    NSString* _title;
    NSString* _prompt;
    UIView* _titleView;
    NSArray* _leftBarButtonItems;
    NSArray* _rightBarButtonItems;
    BOOL _hidesBackButton;
}

- (instancetype)initWithTitle:(NSString*)title;

@property (nonatomic, copy) NSString* title;
@property (nonatomic, copy) NSString* prompt;
@property (nonatomic, retain) UIView* titleView;
@property (nonatomic) BOOL hidesBackButton;
// nil when there are none.
@property (nonatomic, copy) NSArray* leftBarButtonItems;
@property (nonatomic, copy) NSArray* rightBarButtonItems;
// The first of each side.
@property (nonatomic, retain) UIBarButtonItem* leftBarButtonItem;
@property (nonatomic, retain) UIBarButtonItem* rightBarButtonItem;
- (void)setLeftBarButtonItems:(NSArray*)items animated:(BOOL)animated;
- (void)setRightBarButtonItems:(NSArray*)items animated:(BOOL)animated;

@end
