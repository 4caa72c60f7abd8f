// The device that runs the application: its kind and its haptic engine.
#pragma once

#import <Foundation/Foundation.h>

typedef NS_ENUM(NSInteger, UIUserInterfaceIdiom) {
    UIUserInterfaceIdiomPhone = 0,
    UIUserInterfaceIdiomPad = 1,
};

// Taps the user's finger; the simulated one keeps what it was asked for.
@interface _UITapticEngine : NSObject {
  @private
    NSMutableArray* _actuatedFeedback;
}

- (void)actuateFeedback:(NSInteger)feedback;

// NSNumbers of all feedback played so far, oldest first.
@property (nonatomic, readonly) NSArray* actuatedFeedback;

@end

@interface UIDevice : NSObject

+ (UIDevice*)currentDevice;

// As in "10.3".
@property (nonatomic, readonly) NSString* systemVersion;
@property (nonatomic, readonly) UIUserInterfaceIdiom userInterfaceIdiom;

// nil on a device without one.
- (_UITapticEngine*)_tapticEngine;

@end

namespace simulator {

bool isPad();

} // namespace simulator
