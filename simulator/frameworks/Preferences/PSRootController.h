#pragma once

#import "UIKit/UIKit.h"

@class PSSpecifier;

/// The navigation that preference panes are pushed onto, and what reads and writes preferences for them.
@interface PSRootController : UINavigationController
/// The stored value of the row's key in its domain, else its default; nil without key or domain.
+ (id)readPreferenceValue:(PSSpecifier*)specifier;
/// Stores the value unless the row has it already, and tells who listens.
+ (void)setPreferenceValue:(id)value specifier:(PSSpecifier*)specifier;
+ (void)writePreference:(PSSpecifier*)specifier;
- (id)readPreferenceValue:(PSSpecifier*)specifier;
- (void)setPreferenceValue:(id)value specifier:(PSSpecifier*)specifier;
@end
