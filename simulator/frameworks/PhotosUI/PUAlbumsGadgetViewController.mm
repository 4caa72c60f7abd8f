#import "PhotosUI/PUAlbumsGadgetViewController.h"

#import "PhotosUI/Albums.h"
#import "PhotosUI/PUAlbumListViewController.h"
#import "PhotosUI/ScreenHelpers.h"
#import "UIKit/internal/Containers.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr CGFloat margin = 16;
constexpr CGFloat coverWidth = 0.44; // of the screen, so that the third cover shows that there are more
constexpr CGFloat spaceBelowCover = 44;
constexpr CGFloat headerHeight = 52;
constexpr CGFloat seeAllWidth = 64;

bool isAmong(PHCollection* collection, std::initializer_list<NSInteger> subtypes) {
    const NSInteger subtype = [simulator::albumOf(collection) assetCollectionSubtype];
    return std::ranges::find(subtypes, subtype) != subtypes.end();
}

// The row has the library itself, the favorites and the user's albums; everything else is in the tables.
bool isInRow(PHCollection* collection) {
    return isAmong(collection,
                   {PHAssetCollectionSubtypeSmartAlbumUserLibrary,
                    PHAssetCollectionSubtypeSmartAlbumFavorites, PHAssetCollectionSubtypeAlbumRegular});
}

bool isMediaType(PHCollection* collection) {
    return isAmong(collection, {201, 202, 204, 207, 208, 210, 211, 212, 213, 214, 215});
}

bool isOther(PHCollection* collection) {
    return simulator::albumOf(collection) != nil && !isInRow(collection) && !isMediaType(collection);
}

const struct {
    NSString* title;
    bool (*holds)(PHCollection* collection);
} lists[] = {{@"Media Types", isMediaType}, {@"Other Albums", isOther}};

NSArray* shownCollections(bool (*wanted)(PHCollection*)) {
    NSMutableArray* found = [NSMutableArray array];
    for (PHCollection* collection in simulator::rootCollections())
        if (wanted(collection) && simulator::isShown(collection)) [found addObject:collection];
    return found;
}

void showIn(PXNavigationListGadget* list, NSArray* collections) {
    NSMutableArray* counts = [NSMutableArray array];
    for (PHCollection* collection in collections)
        [counts addObject:[NSString stringWithFormat:@"%lu", simulator::countIn(collection)]];
    [list showCollections:collections details:counts];
}

} // namespace

@implementation PUHorizontalAlbumListGadget

@synthesize albums = _albums;

- (instancetype)init {
    self = [super init];
    _contentViewHelper = [[PUAlbumListCellContentViewHelper alloc] init];
    return self;
}

- (void)dealloc {
    [_albums release];
    [_contentViewHelper release];
    [super dealloc];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    [_collectionView addGestureRecognizer:[[[UIPinchGestureRecognizer alloc]
                                              initWithTarget:self
                                                      action:@selector(_handlePinch:)] autorelease]];
}

- (void)setAlbums:(NSArray*)albums {
    [_albums autorelease];
    _albums = [albums copy];
    [[self collectionView] reloadData];
}

- (CGSize)itemSize {
    const CGFloat side = std::floor([[UIScreen mainScreen] bounds].size.width * coverWidth);
    return CGSizeMake(side, side + spaceBelowCover);
}

- (CGFloat)height {
    return [self itemSize].height;
}

- (Class)cellClass {
    return [PUAlbumListCell class];
}

- (PHAssetCollection*)albumAtIndexPath:(NSIndexPath*)path {
    return path != nil ? [_albums objectAtIndex:static_cast<NSUInteger>([path item])] : nil;
}

- (NSInteger)collectionView:(UICollectionView*)collectionView numberOfItemsInSection:(NSInteger)section {
    return static_cast<NSInteger>([_albums count]);
}

- (void)configureCell:(UICollectionViewCell*)cell atIndexPath:(NSIndexPath*)path {
    PHAssetCollection* album = [self albumAtIndexPath:path];
    [_contentViewHelper
        configureAlbumListCellContentView:[static_cast<PUAlbumListCell*>(cell) albumListCellContentView]
                            forCollection:album
                                    title:[album localizedTitle]
                                 animated:NO
                                  enabled:YES
                                  editing:NO];
}

- (void)collectionView:(UICollectionView*)collectionView didSelectItemAtIndexPath:(NSIndexPath*)path {
    [self _openAlbum:[self albumAtIndexPath:path]];
}

- (void)_handlePinch:(UIPinchGestureRecognizer*)pinch {
    if ([pinch state] != UIGestureRecognizerStateBegan) return;
    NSIndexPath* path = [_collectionView indexPathForItemAtPoint:[pinch locationInView:_collectionView]];
    if (path != nil) [self _openAlbum:[self albumAtIndexPath:path]];
}

- (UIViewController*)previewViewControllerForItemAtIndexPath:(NSIndexPath*)path {
    return simulator::contentsOf([self albumAtIndexPath:path]);
}

- (BOOL)_canUseStackedAlbumTransitionToNavigationToCollection:(PHCollection*)collection {
    return YES;
}

// The same way for a tap and for a pinch; which transition it takes makes no difference to what opens.
- (void)_openAlbum:(PHAssetCollection*)album {
    const BOOL spreads = [self _canUseStackedAlbumTransitionToNavigationToCollection:album];
    if ([self respondsToSelector:@selector(navigateToCollection:animated:completion:)])
        [self navigateToCollection:album animated:!spreads completion:nil];
    else
        [self navigateToAssetCollection:album animated:!spreads];
}

- (void)navigateToCollection:(PHCollection*)collection
                    animated:(BOOL)animated
                  completion:(void (^)(BOOL success))completion {
    UIViewController* contents = simulator::contentsOf(simulator::albumOf(collection));
    [[self navigationController] pushViewController:contents animated:animated];
    if (completion) completion(YES);
}

- (UIViewController*)navigateToAssetCollection:(PHAssetCollection*)collection animated:(BOOL)animated {
    UIViewController* contents = simulator::contentsOf(collection);
    [[self navigationController] pushViewController:contents animated:animated];
    return contents;
}

@end

@implementation PUAlbumsGadgetViewController

@synthesize albumRow = _albumRow, lists = _lists;

- (instancetype)init {
    self = [super init];
    [self setTitle:@"Albums"];
    _albumRow = [[PUHorizontalAlbumListGadget alloc] init];
    NSMutableArray* gadgets = [NSMutableArray array];
    for (std::size_t list = 0; list < std::size(lists); ++list) {
        PXNavigationListGadget* gadget = [[[PXNavigationListGadget alloc] init] autorelease];
        [gadget setDelegate:self];
        [gadgets addObject:gadget];
    }
    _lists = [gadgets copy];
    _headers = [[NSMutableArray alloc] init];
    [self setChildViewControllers:@[ _albumRow ]];
    return self;
}

- (void)dealloc {
    for (PXNavigationListGadget* list in _lists)
        [list setDelegate:nil];
    [_albumRow release];
    [_lists release];
    [_headers release];
    [_scrollView release];
    [super dealloc];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    _scrollView = [[UIScrollView alloc] initWithFrame:[[self view] bounds]];
    [_scrollView setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [_scrollView setBackgroundColor:[UIColor whiteColor]];
    [[self view] addSubview:_scrollView];
    [self _addHeader:@"My Albums" withButton:YES];
    [_scrollView addSubview:[_albumRow view]];
    for (const auto& list : lists)
        [self _addHeader:list.title withButton:NO];
    for (PXNavigationListGadget* list in _lists)
        [_scrollView addSubview:[list table]];
    [self registerForPreviewingWithDelegate:self sourceView:[self view]];
    [[self navigationItem] setLeftBarButtonItem:simulator::barButton(@"+", nil, nullptr)];
}

- (void)_addHeader:(NSString*)title withButton:(BOOL)hasButton {
    const CGFloat width = [[self view] bounds].size.width;
    UIView* header = [[[UIView alloc] initWithFrame:CGRectMake(0, 0, width, headerHeight)] autorelease];
    UILabel* label = [[[UILabel alloc]
        initWithFrame:CGRectMake(margin, 0, width - 2 * margin - seeAllWidth, headerHeight)] autorelease];
    [label setText:title];
    [label setFont:[UIFont boldSystemFontOfSize:22]];
    [header addSubview:label];
    if (hasButton) {
        UIButton* button = [UIButton buttonWithType:UIButtonTypeCustom];
        [button setTitle:@"See All" forState:UIControlStateNormal];
        [button setFrame:CGRectMake(width - margin - seeAllWidth, 0, seeAllWidth, headerHeight)];
        [button setAutoresizingMask:UIViewAutoresizingFlexibleLeftMargin];
        [button addTarget:self action:@selector(_seeAll:) forControlEvents:UIControlEventTouchUpInside];
        [header addSubview:button];
    }
    [_headers addObject:header];
    [_scrollView addSubview:header];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    [self reload];
}

- (void)reload {
    [_albumRow setAlbums:shownCollections(isInRow)];
    for (NSUInteger index = 0; index < [_lists count]; ++index)
        showIn([_lists objectAtIndex:index], shownCollections(lists[index].holds));
    [[self view] setNeedsLayout];
}

// From the top down; a list without rows has no header either.
- (void)viewDidLayoutSubviews {
    [super viewDidLayoutSubviews];
    const CGFloat width = [_scrollView bounds].size.width;
    CGFloat top = 0;
    const auto place = [&](UIView* view, CGFloat height) {
        [view setFrame:CGRectMake(0, top, width, height)];
        top += height;
    };
    place([_headers objectAtIndex:0], headerHeight);
    place([_albumRow view], [_albumRow height]);
    for (NSUInteger index = 0; index < [_lists count]; ++index) {
        PXNavigationListGadget* list = [_lists objectAtIndex:index];
        UIView* header = [_headers objectAtIndex:index + 1];
        [header setHidden:[list height] == 0];
        if ([list height] == 0) continue;
        place(header, headerHeight);
        place([list table], [list height]);
    }
    [_scrollView setContentSize:CGSizeMake(width, top + margin)];
}

- (void)_seeAll:(id)sender {
    [[self navigationController] pushViewController:[[[PUAlbumListViewController alloc] init] autorelease]
                                           animated:YES];
}

- (void)navigateToCollection:(PHCollection*)collection
                    animated:(BOOL)animated
                  completion:(void (^)(BOOL success))completion {
    UIViewController* contents = simulator::contentsOf(simulator::albumOf(collection));
    [[self navigationController] pushViewController:contents animated:animated];
    if (completion) completion(YES);
}

- (UIViewController*)previewingContext:(id<UIViewControllerPreviewing>)context
             viewControllerForLocation:(CGPoint)location {
    // The dump of 12.0 shows no preview of a row.
    if (![_albumRow respondsToSelector:@selector(previewViewControllerAtLocation:
                                                                  fromSourceView:outSourceRect:)])
        return nil;
    CGRect sharp = [context sourceRect];
    UIViewController* preview = [_albumRow previewViewControllerAtLocation:location
                                                            fromSourceView:[context sourceView]
                                                             outSourceRect:&sharp];
    if (preview != nil) [context setSourceRect:sharp];
    return preview;
}

- (void)previewingContext:(id<UIViewControllerPreviewing>)context
     commitViewController:(UIViewController*)controller {
    [[self navigationController] pushViewController:controller animated:NO];
}

@end
