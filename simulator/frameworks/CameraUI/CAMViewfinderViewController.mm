#import "CameraUI/CameraUI.h"

#import "PhotosUI/ScreenHelpers.h"

#include "UIKit/model/Outlines.h"

#include <objc/runtime.h>

namespace {

constexpr CGFloat bottomBarHeight = 100;
constexpr CGFloat imageWellSide = 44;
constexpr CGFloat shutterSide = 66;
constexpr CGFloat margin = 16;
constexpr CGFloat topBarHeight = 44;
constexpr CGFloat modesHeight = 30;
constexpr CGFloat symbolSide = 20;

UIImage* pictureOfNewestPhoto() {
    if (objc_getClass("PHAsset") == Nil) return nil; // before iOS 8
    PHFetchOptions* newestFirst = [[[PHFetchOptions alloc] init] autorelease];
    [newestFirst setSortDescriptors:@[ [NSSortDescriptor sortDescriptorWithKey:@"creationDate"
                                                                     ascending:NO] ]];
    PHAsset* newest = [[PHAsset fetchAssetsWithOptions:newestFirst] firstObject];
    return simulator::pictureOf(newest, CGSizeMake(88, 88));
}

} // namespace

@implementation CAMImageWell

@synthesize thumbnailImage = _thumbnailImage;

- (void)dealloc {
    [_thumbnailImage release];
    [super dealloc];
}

- (void)setThumbnailImage:(UIImage*)image {
    [_thumbnailImage autorelease];
    _thumbnailImage = [image retain];
    [self updateThumbnail];
}

// The picture fills the button.
- (void)layoutSubviews {
    [super layoutSubviews];
    for (UIView* picture in [self subviews])
        [picture setFrame:[self bounds]];
}

- (void)updateThumbnail {
    [self setImage:[self thumbnailImage] forState:UIControlStateNormal];
}

@end

@implementation CustomDrawButton
@end

@implementation CAMBottomBar

@synthesize backgroundView = _backgroundView, imageWell = _imageWell, shutterButton = _shutterButton;

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    if (!self) return nil;
    _backgroundView = [[UIView alloc] initWithFrame:[self bounds]];
    [_backgroundView setBackgroundColor:[UIColor blackColor]];
    [_backgroundView setUserInteractionEnabled:NO];
    _imageWell = [[CAMImageWell alloc] initWithFrame:CGRectMake(0, 0, imageWellSide, imageWellSide)];
    [_imageWell setClipsToBounds:YES];
    _shutterButton = [[UIButton buttonWithType:UIButtonTypeCustom] retain];
    [_shutterButton setAccessibilityLabel:@"Take Picture"];
    [_imageWell setAccessibilityLabel:@"Newest Photo"];
    [_shutterButton setBounds:CGRectMake(0, 0, shutterSide, shutterSide)];
    [_shutterButton setBackgroundColor:[UIColor whiteColor]];
    [[_shutterButton layer] setCornerRadius:shutterSide / 2];
    UIView* ring = [[[UIView alloc] initWithFrame:CGRectInset([_shutterButton bounds], 6, 6)] autorelease];
    [ring setBackgroundColor:[UIColor blackColor]];
    [[ring layer] setCornerRadius:[ring bounds].size.width / 2];
    UIView* disc = [[[UIView alloc] initWithFrame:CGRectInset([_shutterButton bounds], 8, 8)] autorelease];
    [disc setBackgroundColor:[UIColor whiteColor]];
    [[disc layer] setCornerRadius:[disc bounds].size.width / 2];
    for (UIView* view in @[ ring, disc ]) {
        [view setUserInteractionEnabled:NO];
        [_shutterButton addSubview:view];
    }
    for (UIView* view in @[ _backgroundView, _imageWell, _shutterButton ])
        [self addSubview:view];
    return self;
}

- (void)dealloc {
    [_backgroundView release];
    [_imageWell release];
    [_shutterButton release];
    [super dealloc];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    const CGSize size = [self bounds].size;
    [_backgroundView setFrame:[self bounds]];
    [_imageWell setCenter:CGPointMake(margin + imageWellSide / 2, size.height / 2)];
    [_shutterButton setCenter:CGPointMake(size.width / 2, size.height / 2)];
}

@end

@implementation CAMViewfinderViewController

@synthesize captureController = _captureController, bottomBar = _bottomBar;

- (instancetype)init {
    self = [super init];
    if (!self) return nil;
    _captureController = [[CAMCaptureEngine alloc] init];
    [[NSNotificationCenter defaultCenter] addObserver:self
                                             selector:@selector(_showNewestPhoto)
                                                 name:CAMCaptureDidSaveNotification
                                               object:_captureController];
    return self;
}

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    [_captureController release];
    [_previewView release];
    [_bottomBar release];
    [super dealloc];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    const CGSize size = [[self view] bounds].size;
    [[self view] setBackgroundColor:[UIColor blackColor]];
    const CGRect preview =
        CGRectMake(0, topBarHeight, size.width, size.height - topBarHeight - bottomBarHeight - modesHeight);
    _previewView = [[UIImageView alloc] initWithFrame:preview];
    [_previewView setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [_previewView setContentMode:UIViewContentModeScaleAspectFill];
    [_previewView setClipsToBounds:YES];
    UILabel* modes = [[[UILabel alloc]
        initWithFrame:CGRectMake(0, CGRectGetMaxY(preview), size.width, modesHeight)] autorelease];
    [modes setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleTopMargin];
    [modes setFont:[UIFont systemFontOfSize:13]];
    [modes setTextColor:[UIColor colorWithRed:1 green:0.8 blue:0 alpha:1]];
    [modes setTextAlignment:NSTextAlignmentCenter];
    [modes setText:@"PHOTO"];
    UIImageView* flash =
        [[[UIImageView alloc] initWithImage:[UIImage imageWithOutline:simulator::outline::bolt]] autorelease];
    [flash setFrame:CGRectMake(margin, (topBarHeight - symbolSide) / 2, symbolSide, symbolSide)];
    [flash setTintColor:[UIColor whiteColor]];
    for (UIView* view in @[ _previewView, modes, flash ])
        [[self view] addSubview:view];
    _bottomBar = [[CAMBottomBar alloc]
        initWithFrame:CGRectMake(0, size.height - bottomBarHeight, size.width, bottomBarHeight)];
    [_bottomBar setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleTopMargin];
    [[_bottomBar shutterButton] addTarget:self
                                   action:@selector(_shutterPressed:)
                         forControlEvents:UIControlEventTouchUpInside];
    [[self view] addSubview:_bottomBar];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    [self _showNewestPhoto];
}

- (BOOL)prefersStatusBarHidden {
    return YES;
}

- (void)_shutterPressed:(id)sender {
    [_captureController captureStillImageWithError:nil];
}

- (void)_showNewestPhoto {
    [[_bottomBar imageWell] setThumbnailImage:pictureOfNewestPhoto()];
    [_previewView setImage:[_captureController pictureInSight]];
}

@end
