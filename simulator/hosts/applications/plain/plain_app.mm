#include "hosts/applications/plain/plain_app.h"

#import "PhotosUI/ScreenHelpers.h"
#import "UIKit/ViewTree.h"
#import "hosts/applications/common/AlbumPickerViewController.h"

#include "hosts/applications/common/screen.h"
#include "hosts/host.h"

@implementation PlainViewController

- (void)viewDidLoad {
    [super viewDidLoad];
    UIImage* picture = [UIImage imageWithPixelSize:CGSizeMake(160, 120) seed:51];
    UIImageView* view = [[[UIImageView alloc] initWithFrame:[[self view] bounds]] autorelease];
    [view setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [view setContentMode:UIViewContentModeScaleAspectFit];
    [view setImage:picture];
    [[self view] addSubview:view];
    [[self navigationItem] setRightBarButtonItems:@[
        simulator::barButton(@"Share", self, @selector(share:)),
        simulator::barButton(@"Pick", self, @selector(pickPhoto:))
    ]];
}

- (void)share:(id)sender {
    UIImage* picture = [static_cast<UIImageView*>([[[self view] subviews] firstObject]) image];
    UIActivityViewController* sheet =
        [[[UIActivityViewController alloc] initWithActivityItems:@[ picture ]
                                           applicationActivities:nil] autorelease];
    [[sheet popoverPresentationController] setBarButtonItem:sender];
    [self presentViewController:sheet animated:YES completion:nil];
}

- (void)pickPhoto:(id)sender {
    UIViewController* picker = [[[AlbumPickerViewController alloc] init] autorelease];
    [picker setTitle:@"Photos"];
    [[self navigationController] pushViewController:picker animated:YES];
}

@end

namespace simulator::plain {

namespace {

// The first screen has both buttons.
void tapOnFirstScreen(const char* button) {
    UIViewController* root = [[[UIApplication sharedApplication] keyWindow] rootViewController];
    [static_cast<UINavigationController*>(root) popToRootViewControllerAnimated:NO];
    tapBarButton(button);
}

} // namespace

void saveImage() {
    waitForNewPhoto([] {
        tapOnFirstScreen("Share");
        noteTouch("Save Image");
        if (![onScreen<UIActivityViewController>() chooseActivityWithTitle:@"Save Image"])
            throw std::runtime_error("the share sheet does not offer to save the image");
    });
}

nlohmann::json listPicker() {
    tapOnFirstScreen("Pick");
    return describePickerOnScreen();
}

void addVerbs() {
    registerVerb("saveImage", saveImage);
    registerVerb("listPicker", listPicker);
}

} // namespace simulator::plain
