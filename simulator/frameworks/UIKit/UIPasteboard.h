// What is copied between applications. The simulated one belongs to its process.
#pragma once

#import <Foundation/Foundation.h>

@interface UIPasteboard : NSObject {
    NSString* _string;
}

+ (UIPasteboard*)generalPasteboard;

@property (nonatomic, copy) NSString* string;

@end
