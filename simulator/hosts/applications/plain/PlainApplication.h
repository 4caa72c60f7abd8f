#pragma once

#import "hosts/applications/common/AlbumPickerViewController.h"

/// An image with a share button and a photo picker: all that an ordinary application has to do with photos.
@interface PlainViewController : UIViewController {
    UIImageView* _imageView;
}
- (UIImage*)image;
- (void)share:(id)sender;
- (void)pickPhoto:(id)sender;
@end

@interface PlainApplication : UIApplication {
    UIWindow* _window;
}
@end
