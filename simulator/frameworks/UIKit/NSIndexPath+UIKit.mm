#import "UIKit/NSIndexPath+UIKit.h"

@implementation NSIndexPath (UIKit)

+ (NSIndexPath*)indexPathForRow:(NSInteger)row inSection:(NSInteger)section {
    return [self indexPathForItem:row inSection:section];
}

+ (NSIndexPath*)indexPathForItem:(NSInteger)item inSection:(NSInteger)section {
    NSUInteger indexes[] = {static_cast<NSUInteger>(section), static_cast<NSUInteger>(item)};
    return [self indexPathWithIndexes:indexes length:2];
}

- (NSInteger)section {
    return static_cast<NSInteger>([self indexAtPosition:0]);
}

- (NSInteger)row {
    return static_cast<NSInteger>([self indexAtPosition:1]);
}

- (NSInteger)item {
    return static_cast<NSInteger>([self indexAtPosition:1]);
}

@end
