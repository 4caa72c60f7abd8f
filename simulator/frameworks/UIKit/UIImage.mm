#import "UIKit/UIImage.h"

#import "UIKit/UIScreen.h"
#include "UIKit/model/Png.h"

#include <algorithm>
#include <cmath>

namespace {

// The scale that a file name claims by its suffix, 1 without one.
CGFloat scaleInName(NSString* path) {
    NSString* name = [path stringByDeletingPathExtension];
    if ([name hasSuffix:@"@2x"]) return 2;
    return [name hasSuffix:@"@3x"] ? 3 : 1;
}

// The file to load for a path: the variant for the screen's scale where there is one (icon@2x.png for
// icon.png).
NSString* bestFile(NSString* path) {
    const int screenScale = static_cast<int>([[UIScreen mainScreen] scale]);
    if (screenScale == 1 || scaleInName(path) != 1) return path;
    NSString* name = [[path stringByDeletingPathExtension] stringByAppendingFormat:@"@%dx", screenScale];
    NSString* variant = [name stringByAppendingPathExtension:[path pathExtension]];
    return [[NSFileManager defaultManager] isReadableFileAtPath:variant] ? variant : path;
}

} // namespace

@implementation UIImage

@synthesize scale = _scale, fileName = _fileName;

+ (UIImage*)imageWithData:(NSData*)data {
    return [[[self alloc] initWithData:data scale:1] autorelease];
}

+ (UIImage*)imageWithPixelSize:(CGSize)pixelSize seed:(NSUInteger)seed {
    UIImage* image = [[[self alloc] init] autorelease];
    const auto side = [](CGFloat length) { return std::max<CGFloat>(std::round(length), 1); };
    image->_pixelSize = {side(pixelSize.width), side(pixelSize.height)};
    image->_seed = seed;
    image->_scale = 1;
    return image;
}

+ (UIImage*)imageWithOutline:(const char*)outline {
    UIImage* image = [self imageWithPixelSize:CGSizeMake(24, 24) seed:0];
    image->_outline = outline;
    return image;
}

- (instancetype)initWithContentsOfFile:(NSString*)path {
    NSString* file = [path length] > 0 ? bestFile(path) : nil;
    self = [self initWithData:file != nil ? [NSData dataWithContentsOfFile:file] : nil
                        scale:scaleInName(file)];
    if (self != nil) _fileName = [[file lastPathComponent] copy];
    return self;
}

- (instancetype)initWithData:(NSData*)data scale:(CGFloat)scale {
    self = [super init];
    const auto size = simulator::sizeOfPng({static_cast<const std::uint8_t*>([data bytes]), [data length]});
    if (!size) {
        [self release];
        return nil;
    }
    _file = [data copy];
    _pixelSize = CGSizeMake(size->width, size->height);
    _scale = scale;
    return self;
}

- (void)dealloc {
    [_file release];
    [_fileName release];
    [super dealloc];
}

- (CGSize)size {
    return {_pixelSize.width / _scale, _pixelSize.height / _scale};
}

- (NSData*)file {
    if (_file != nil || _outline != nullptr) return _file;
    const auto file = simulator::generatedPng(
        {static_cast<std::uint32_t>(_pixelSize.width), static_cast<std::uint32_t>(_pixelSize.height)}, _seed);
    return [NSData dataWithBytes:file.data() length:file.size()];
}

@end

@implementation UIImage (Drawing)

- (const char*)outline {
    return _outline;
}

- (NSInteger)sceneryNumber {
    return _file == nil && _outline == nullptr ? static_cast<NSInteger>(_seed) : -1;
}

- (CGSize)pixelSize {
    return _pixelSize;
}

@end

NSData* UIImagePNGRepresentation(UIImage* image) { return [image file]; }
