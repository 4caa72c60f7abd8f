#import "Preferences/PSBundleController.h"

@implementation PSBundleController

- (instancetype)initWithParentListController:(PSListController*)parent {
    return [self initWithParentListController:parent properties:nil];
}

- (instancetype)initWithParentListController:(PSListController*)parent properties:(NSDictionary*)properties {
    self = [super init];
    if (self) _parent = parent;
    return self;
}

- (NSArray*)specifiersWithSpecifier:(PSSpecifier*)specifier {
    return nil;
}

@end
