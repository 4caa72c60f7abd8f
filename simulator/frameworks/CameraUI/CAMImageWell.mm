#import "CameraUI/CameraUI.h"

@implementation CAMImageWell

@synthesize thumbnailImage = _thumbnailImage;

- (void)dealloc {
    [_thumbnailImage release];
    [super dealloc];
}

- (void)setThumbnailImage:(UIImage*)image {
    if (image != _thumbnailImage) {
        [_thumbnailImage release];
        _thumbnailImage = [image retain];
    }
    [self updateThumbnail];
}

- (void)updateThumbnail {
    [self setImage:[self thumbnailImage] forState:UIControlStateNormal];
}

@end
