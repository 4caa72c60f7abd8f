#import "PhotosUI/PUPhotosSharingViewController.h"
#import "PhotosUI/BarButton.h"

namespace {

NSArray* picturesOf(NSArray* assets) {
    PHImageRequestOptions* options = [[[PHImageRequestOptions alloc] init] autorelease];
    [options setSynchronous:YES];
    NSMutableArray* pictures = [NSMutableArray array];
    for (PHAsset* asset in assets)
        [[PHImageManager defaultManager] requestImageForAsset:asset
                                                   targetSize:PHImageManagerMaximumSize
                                                  contentMode:PHImageContentModeAspectFit
                                                      options:options
                                                resultHandler:^(UIImage* image, NSDictionary*) {
                                                    if (image) [pictures addObject:image];
                                                }];
    return pictures;
}

} // namespace

@implementation PUPhotosSharingViewController

@synthesize assets = _assets;

- (instancetype)initWithAssets:(NSArray*)assets {
    self = [super init];
    if (!self) return nil;
    _assets = [assets copy];
    NSUInteger count = [assets count];
    [self setTitle:[NSString stringWithFormat:@"%lu Photo%s Selected", count, count == 1 ? "" : "s"]];
    [[self navigationItem] setLeftBarButtonItem:barButton(@"Cancel", self, @selector(_cancelButtonPressed:))];
    [[self navigationItem] setRightBarButtonItem:barButton(@"Next", self, @selector(_nextButtonPressed:))];
    return self;
}

- (void)dealloc {
    [_assets release];
    [_photosView release];
    [super dealloc];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    _photosView = [[UIScrollView alloc] initWithFrame:[[self view] bounds]];
    [[self view] addSubview:_photosView];
}

- (void)viewDidLayoutSubviews {
    [super viewDidLayoutSubviews];
    CGRect bounds = [[self view] bounds];
    [_photosView setFrame:CGRectMake(0, 0, bounds.size.width, bounds.size.height / 2)];
}

- (void)_cancelButtonPressed:(id)sender {
    [self dismissViewControllerAnimated:YES completion:nil];
}

- (void)_nextButtonPressed:(id)sender {
    UIActivityViewController* sheet =
        [[[UIActivityViewController alloc] initWithActivityItems:picturesOf(_assets)
                                           applicationActivities:nil] autorelease];
    [[sheet popoverPresentationController] setSourceView:[self view]];
    [self presentViewController:sheet animated:YES completion:nil];
}

@end
