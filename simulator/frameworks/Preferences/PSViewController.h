#pragma once

#import "UIKit/UIKit.h"

@class PSRootController, PSSpecifier;

/// A preference pane of any kind.
@interface PSViewController : UIViewController {
    PSSpecifier* _specifier;
    PSRootController* _rootController;
    UIViewController* _parentController;
}
/// The row that opened this pane.
- (PSSpecifier*)specifier;
- (void)setSpecifier:(PSSpecifier*)specifier;
/// Neither controller is retained.
- (PSRootController*)rootController;
- (void)setRootController:(PSRootController*)controller;
- (UIViewController*)parentController;
- (void)setParentController:(UIViewController*)controller;

- (id)readPreferenceValue:(PSSpecifier*)specifier;
- (void)setPreferenceValue:(id)value specifier:(PSSpecifier*)specifier;

- (void)pushController:(id)controller;
- (void)pushController:(id)controller animate:(BOOL)animated;
- (void)showController:(id)controller;
- (void)showController:(id)controller animate:(BOOL)animated;

- (void)handleURL:(NSDictionary*)url;
- (void)suspend;
- (void)willBecomeActive;
- (void)willResignActive;
- (void)didLock;
- (BOOL)canBeShownFromSuspendedState;
- (NSInteger)navigationItemLargeTitleDisplayMode;
@end
