#import "Preferences/PSViewController.h"

#import "Preferences/PSRootController.h"
#import "Preferences/PSSpecifier.h"

@implementation PSViewController

- (void)dealloc {
    [_specifier release];
    [super dealloc];
}

- (PSSpecifier*)specifier {
    return _specifier;
}

- (void)setSpecifier:(PSSpecifier*)specifier {
    [specifier retain];
    [_specifier release];
    _specifier = specifier;
    if ([[self title] length] == 0) [self setTitle:[specifier name]];
}

- (PSRootController*)rootController {
    return _rootController;
}

- (void)setRootController:(PSRootController*)controller {
    _rootController = controller;
}

- (UIViewController*)parentController {
    return _parentController;
}

- (void)setParentController:(UIViewController*)controller {
    _parentController = controller;
}

- (id)readPreferenceValue:(PSSpecifier*)specifier {
    return [PSRootController readPreferenceValue:specifier];
}

- (void)setPreferenceValue:(id)value specifier:(PSSpecifier*)specifier {
    [PSRootController setPreferenceValue:value specifier:specifier];
}

- (void)pushController:(id)controller {
    [self pushController:controller animate:YES];
}

- (void)pushController:(id)controller animate:(BOOL)animated {
    [self showController:controller animate:animated];
}

- (void)showController:(id)controller {
    [self showController:controller animate:YES];
}

- (void)showController:(id)controller animate:(BOOL)animated {
    if (controller) [[self navigationController] pushViewController:controller animated:animated];
}

// Told of links into Settings and of the application's life; a pane overrides what it cares for.
- (void)handleURL:(NSDictionary*)url {
}
- (void)suspend {
}
- (void)willBecomeActive {
}
- (void)willResignActive {
}
- (void)didLock {
}

- (BOOL)canBeShownFromSuspendedState {
    return YES;
}

- (NSInteger)navigationItemLargeTitleDisplayMode {
    return 0;
}

@end
