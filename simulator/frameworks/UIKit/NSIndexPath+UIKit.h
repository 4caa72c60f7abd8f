// Index paths of two numbers, as tables and collections use them.
#pragma once

#import <Foundation/Foundation.h>

@interface NSIndexPath (UIKit)

+ (NSIndexPath*)indexPathForRow:(NSInteger)row inSection:(NSInteger)section;
+ (NSIndexPath*)indexPathForItem:(NSInteger)item inSection:(NSInteger)section;

@property (nonatomic, readonly) NSInteger section;
@property (nonatomic, readonly) NSInteger row;
@property (nonatomic, readonly) NSInteger item;

@end
