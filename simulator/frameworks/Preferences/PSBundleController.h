#pragma once

#import <Foundation/Foundation.h>

@class PSListController, PSSpecifier;

/// Gives rows to a list that is not its own.
@interface PSBundleController : NSObject {
    PSListController* _parent;
}
/// The list is not retained.
- (instancetype)initWithParentListController:(PSListController*)parent;
- (instancetype)initWithParentListController:(PSListController*)parent properties:(NSDictionary*)properties;
/// None; for subclasses.
- (NSArray*)specifiersWithSpecifier:(PSSpecifier*)specifier;
@end
