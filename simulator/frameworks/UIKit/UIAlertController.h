// An alert or a sheet of actions that the user must answer.
#pragma once

#import "UIKit/UIViewController.h"

@class UITextField;

typedef NS_ENUM(NSInteger, UIAlertControllerStyle) {
    UIAlertControllerStyleActionSheet = 0,
    UIAlertControllerStyleAlert = 1,
};

typedef NS_ENUM(NSInteger, UIAlertActionStyle) {
    UIAlertActionStyleDefault = 0,
    UIAlertActionStyleCancel = 1,
    UIAlertActionStyleDestructive = 2,
};

@interface UIAlertAction : NSObject {
  @private
    NSString* _title;
    UIAlertActionStyle _style;
    BOOL _enabled;
    void (^_handler)(UIAlertAction* action);
}

// `handler` may be nil; it runs on the main thread after the alert has gone.
+ (instancetype)actionWithTitle:(NSString*)title
                          style:(UIAlertActionStyle)style
                        handler:(void (^)(UIAlertAction* action))handler;

@property (nonatomic, readonly) NSString* title;
@property (nonatomic, readonly) UIAlertActionStyle style;
@property (nonatomic, getter=isEnabled) BOOL enabled;

@end

@interface UIAlertController : UIViewController {
  @private
    UIAlertControllerStyle _preferredStyle;
    NSString* _message;
    NSMutableArray* _actions;
    NSMutableArray* _textFields;
}

+ (instancetype)alertControllerWithTitle:(NSString*)title
                                 message:(NSString*)message
                          preferredStyle:(UIAlertControllerStyle)style;

@property (nonatomic, readonly) NSString* message;
@property (nonatomic, readonly) UIAlertControllerStyle preferredStyle;
// In the order in which they were added.
@property (nonatomic, readonly) NSArray* actions;
// nil when there are none.
@property (nonatomic, readonly) NSArray* textFields;
// Raises for nil and for a second action of cancel style.
- (void)addAction:(UIAlertAction*)action;
// Raises in an action sheet. The handler may be nil and runs at once.
- (void)addTextFieldWithConfigurationHandler:(void (^)(UITextField* field))handler;

@end

// What a user's finger does to an alert.
@interface UIAlertController (Input)

// Dismisses the alert, then runs the action's handler.
- (void)tapAction:(UIAlertAction*)action;

@end
