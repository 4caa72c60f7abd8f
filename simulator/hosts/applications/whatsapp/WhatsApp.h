#pragma once

#import "hosts/applications/common/AlbumPickerViewController.h"

/// Lists smart albums, then albums, by kind.
@interface WAAlbumPickerViewController : AlbumPickerViewController
@end

@interface WhatsAppApplication : UIApplication {
    UIWindow* _window;
}
@end
