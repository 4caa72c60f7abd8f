// A picture in memory: a PNG file, or one that is drawn when it is asked for. Immutable, any thread.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

@interface UIImage : NSObject {
  @private
    NSData* _file; // nil for a generated picture
    NSUInteger _seed;
    CGSize _pixelSize;
    CGFloat _scale;
    NSString* _fileName;
}

+ (UIImage*)imageWithData:(NSData*)data;
// A generated picture: the same seed and size always give the same pixels, different seeds different ones.
+ (UIImage*)imageWithPixelSize:(CGSize)pixelSize seed:(NSUInteger)seed;

// nil for a missing, unreadable or damaged file. A name that ends in @2x or @3x before its extension sets
// the scale; a plain name is also looked for with the suffix of the screen's scale first.
- (instancetype)initWithContentsOfFile:(NSString*)path;

// In points: the pixels divided by the scale.
@property (nonatomic, readonly) CGSize size;
@property (nonatomic, readonly) CGFloat scale;
// The last part of the path; nil for an image that came from no file.
@property (nonatomic, readonly) NSString* fileName;

@end

// The PNG file of an image, nil for a nil image. Autoreleased.
extern "C" NSData* UIImagePNGRepresentation(UIImage* image);
