#import "CameraUI/CameraUI.h"

#import "Photos/Photos.h"

#include <objc/runtime.h>

namespace {

constexpr CGFloat bottomBarHeight = 100;

UIImage* pictureOfNewestPhoto() {
    if (!objc_getClass("PHAsset")) return nil; // before iOS 8
    PHFetchOptions* newestFirst = [[[PHFetchOptions alloc] init] autorelease];
    [newestFirst setSortDescriptors:@[ [NSSortDescriptor sortDescriptorWithKey:@"creationDate"
                                                                     ascending:NO] ]];
    PHAsset* newest = [[PHAsset fetchAssetsWithOptions:newestFirst] firstObject];
    if (newest == nil) return nil;
    PHImageRequestOptions* options = [[[PHImageRequestOptions alloc] init] autorelease];
    [options setSynchronous:YES];
    __block UIImage* picture = nil;
    [[PHImageManager defaultManager] requestImageForAsset:newest
                                               targetSize:CGSizeMake(88, 88)
                                              contentMode:PHImageContentModeAspectFill
                                                  options:options
                                            resultHandler:^(UIImage* image, NSDictionary*) {
                                                picture = [image retain];
                                            }];
    return [picture autorelease];
}

} // namespace

@implementation CAMViewfinderViewController

@synthesize captureController = _captureController, bottomBar = _bottomBar;

- (instancetype)init {
    self = [super init];
    if (!self) return nil;
    Class engineClass = objc_getClass("CAMCaptureEngine");
    _captureController = [[engineClass ? engineClass : [CAMCaptureController class] alloc] init];
    [[NSNotificationCenter defaultCenter] addObserver:self
                                             selector:@selector(_engineDidSave:)
                                                 name:CAMCaptureDidSaveNotification
                                               object:_captureController];
    return self;
}

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    [_captureController release];
    [_bottomBar release];
    [super dealloc];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    CGRect bounds = [[self view] bounds];
    CGRect barFrame = CGRectMake(0, bounds.size.height - bottomBarHeight, bounds.size.width, bottomBarHeight);
    _bottomBar = [[CAMBottomBar alloc] initWithFrame:barFrame];
    [_bottomBar setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleTopMargin];
    [[_bottomBar shutterButton] addTarget:self
                                   action:@selector(_shutterPressed:)
                         forControlEvents:UIControlEventTouchUpInside];
    [[self view] addSubview:_bottomBar];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    [[_bottomBar imageWell] setThumbnailImage:pictureOfNewestPhoto()];
}

- (void)_shutterPressed:(id)sender {
    [_captureController captureStillImageWithError:nil];
}

- (void)_engineDidSave:(NSNotification*)notification {
    [[_bottomBar imageWell] setThumbnailImage:pictureOfNewestPhoto()];
}

@end
