// A picture in memory: a PNG file, one that is drawn when it is asked for, or a symbol. Immutable, any
// thread.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

@interface UIImage : NSObject {
  @private
    NSData* _file; // nil for a generated picture
    NSUInteger _seed;
    CGSize _pixelSize;
    CGFloat _scale;
    NSString* _fileName;
    const char* _outline; // nullptr unless it is a symbol
}

+ (UIImage*)imageWithData:(NSData*)data;
// A generated picture: the same seed and size always give the same pixels, different seeds different ones.
+ (UIImage*)imageWithPixelSize:(CGSize)pixelSize seed:(NSUInteger)seed;

// A symbol of 24 points, one of the outlines: shown in the colour of what shows it.
+ (UIImage*)imageWithOutline:(const char*)outline;

// nil for a missing, unreadable or damaged file. A name that ends in @2x or @3x before its extension sets
// the scale; a plain name is also looked for with the suffix of the screen's scale first.
- (instancetype)initWithContentsOfFile:(NSString*)path;

// In points: the pixels divided by the scale.
@property (nonatomic, readonly) CGSize size;
@property (nonatomic, readonly) CGFloat scale;
// The last part of the path; nil for an image that came from no file.
@property (nonatomic, readonly) NSString* fileName;

@end

// What a drawing of the screen needs to know.
@interface UIImage (Drawing)

// nullptr unless it is a symbol.
@property (nonatomic, readonly) const char* outline;
// Of a generated picture the number, of others -1.
@property (nonatomic, readonly) NSInteger sceneryNumber;
@property (nonatomic, readonly) CGSize pixelSize;

@end

// The PNG file of an image, nil for a nil image and for a symbol. Autoreleased.
extern "C" NSData* UIImagePNGRepresentation(UIImage* image);
