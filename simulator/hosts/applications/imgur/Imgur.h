#pragma once

#import "hosts/applications/common/AlbumPickerViewController.h"

/// Lists the library and the user's albums, with the photos of each, newest first.
@interface IMGAlbumPickerViewController : AlbumPickerViewController
@end

@interface ImgurApplication : UIApplication {
    UIWindow* _window;
}
@end
