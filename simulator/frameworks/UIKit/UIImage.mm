#import "UIKit/UIImage.h"

#import "UIKit/UIScreen.h"
#import "UIKit/internal/ImagePixels.h"
#import "UIKit/internal/Ownership.h"

#include <cmath>

using simulator::Bitmap;

namespace {

// The scale that a file name claims by its suffix, 1 without one.
CGFloat scaleInName(NSString* path) {
    NSString* name = [path stringByDeletingPathExtension];
    if ([name hasSuffix:@"@2x"]) return 2;
    return [name hasSuffix:@"@3x"] ? 3 : 1;
}

// The variant of a plain file name for a scale: icon.png becomes icon@2x.png.
NSString* pathForScale(NSString* path, int scale) {
    NSString* name = [[path stringByDeletingPathExtension] stringByAppendingFormat:@"@%dx", scale];
    NSString* extension = [path pathExtension];
    return [extension length] > 0 ? [name stringByAppendingPathExtension:extension] : name;
}

// The file to load for a path: the variant for the screen's scale where there is one.
NSString* bestFile(NSString* path) {
    const int screenScale = static_cast<int>([[UIScreen mainScreen] scale]);
    if (screenScale == 1 || scaleInName(path) != 1) return path;
    NSString* variant = pathForScale(path, screenScale);
    return [[NSFileManager defaultManager] isReadableFileAtPath:variant] ? variant : path;
}

} // namespace

@implementation UIImage

@synthesize scale = _scale;

+ (UIImage*)imageNamed:(NSString*)name {
    if ([name length] == 0) return nil;
    NSString* file = [[name pathExtension] length] > 0 ? name : [name stringByAppendingPathExtension:@"png"];
    return [self
        imageWithContentsOfFile:[[[NSBundle mainBundle] resourcePath] stringByAppendingPathComponent:file]];
}

+ (UIImage*)imageWithContentsOfFile:(NSString*)path {
    return [[[self alloc] initWithContentsOfFile:path] autorelease];
}

+ (UIImage*)imageWithData:(NSData*)data {
    return [[[self alloc] initWithData:data] autorelease];
}

+ (UIImage*)imageWithData:(NSData*)data scale:(CGFloat)scale {
    return [[[self alloc] initWithData:data scale:scale] autorelease];
}

+ (UIImage*)imageWithPixelSize:(CGSize)pixelSize seed:(NSUInteger)seed {
    const auto side = [](CGFloat length) {
        return static_cast<std::uint32_t>(std::max<CGFloat>(std::round(length), 1));
    };
    return
        [[[self alloc] initWithBitmap:Bitmap::generated(side(pixelSize.width), side(pixelSize.height), seed)
                                scale:1] autorelease];
}

- (instancetype)initWithBitmap:(std::shared_ptr<const Bitmap>)bitmap scale:(CGFloat)scale {
    self = [super init];
    if (!bitmap) {
        [self release];
        return nil;
    }
    _bitmap = new std::shared_ptr<const Bitmap>(std::move(bitmap));
    _scale = scale;
    return self;
}

- (instancetype)initWithContentsOfFile:(NSString*)path {
    NSString* file = [path length] > 0 ? bestFile(path) : nil;
    self = [self initWithData:file ? [NSData dataWithContentsOfFile:file] : nil scale:scaleInName(file)];
    if (self) _fileName = [[file lastPathComponent] copy];
    return self;
}

- (instancetype)initWithData:(NSData*)data {
    return [self initWithData:data scale:1];
}

- (instancetype)initWithData:(NSData*)data scale:(CGFloat)scale {
    const auto* bytes = static_cast<const std::uint8_t*>([data bytes]);
    return [self initWithBitmap:data ? Bitmap::fromPng({bytes, [data length]}) : nullptr scale:scale];
}

- (void)dealloc {
    delete _bitmap;
    [_fileName release];
    [super dealloc];
}

- (const Bitmap&)bitmap {
    return **_bitmap;
}

- (NSString*)fileName {
    return _fileName;
}

- (CGSize)size {
    return {(*_bitmap)->width() / _scale, (*_bitmap)->height() / _scale};
}

@end

NSData* UIImagePNGRepresentation(UIImage* image) {
    if (!image) return nil;
    const std::vector<std::uint8_t> file = [image bitmap].png();
    return [NSData dataWithBytes:file.data() length:file.size()];
}
