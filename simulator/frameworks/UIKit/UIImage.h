// A picture in memory: decoded from PNG data, immutable, any thread.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

#include <memory>

namespace simulator {
class Bitmap;
}

@interface UIImage : NSObject {
  @private
    std::shared_ptr<const simulator::Bitmap>* _bitmap;
    CGFloat _scale;
    NSString* _fileName;
}

// An image of the main bundle: NAME.png, preferring NAME@2x.png or NAME@3x.png where the screen has that
// scale.
+ (UIImage*)imageNamed:(NSString*)name;
+ (UIImage*)imageWithContentsOfFile:(NSString*)path;
+ (UIImage*)imageWithData:(NSData*)data;
+ (UIImage*)imageWithData:(NSData*)data scale:(CGFloat)scale;
// A generated picture: the same seed and size always give the same pixels, different seeds different ones.
+ (UIImage*)imageWithPixelSize:(CGSize)pixelSize seed:(NSUInteger)seed;

// nil for a missing, unreadable or damaged file. A name that ends in @2x or @3x before its extension sets
// the scale; a plain name is also looked for with the suffix of the screen's scale first.
- (instancetype)initWithContentsOfFile:(NSString*)path;
- (instancetype)initWithData:(NSData*)data;
- (instancetype)initWithData:(NSData*)data scale:(CGFloat)scale;

// In points: the pixels divided by the scale.
@property (nonatomic, readonly) CGSize size;
@property (nonatomic, readonly) CGFloat scale;

@end

// The PNG file of an image, nil for a nil image. Autoreleased.
extern "C" NSData* UIImagePNGRepresentation(UIImage* image);
