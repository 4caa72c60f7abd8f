#import "hosts/applications/plain/PlainApplication.h"

#include "hosts/applications/common/launch.h"

namespace {
constexpr CGSize pictureSize = {160, 120};
constexpr NSUInteger pictureSeed = 7;
} // namespace

@implementation PlainViewController

- (void)dealloc {
    [_imageView release];
    [super dealloc];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    UIImage* picture = [UIImage imageWithPixelSize:pictureSize seed:pictureSeed];
    _imageView = [[UIImageView alloc] initWithImage:picture];
    [[self view] addSubview:_imageView];
    [[self navigationItem] setRightBarButtonItems:@[
        simulator::barButton(@"Share", self, @selector(share:)),
        simulator::barButton(@"Pick", self, @selector(pickPhoto:))
    ]];
}

- (UIImage*)image {
    return [_imageView image];
}

- (void)share:(id)sender {
    UIActivityViewController* sheet =
        [[[UIActivityViewController alloc] initWithActivityItems:@[ [self image] ]
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

@implementation PlainApplication

- (void)dealloc {
    [_window release];
    [super dealloc];
}

- (void)applicationDidFinishLaunching:(UIApplication*)application {
    UIViewController* picture = [[[PlainViewController alloc] init] autorelease];
    [picture setTitle:@"Picture"];
    _window = simulator::showRootViewController(
        [[[UINavigationController alloc] initWithRootViewController:picture] autorelease]);
}

@end
