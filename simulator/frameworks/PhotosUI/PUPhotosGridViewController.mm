#import "PhotosUI/PUPhotosGrid.h"

#import "PhotosUI/PUNavigationController.h"
#import "PhotosUI/PUOneUp.h"
#import "PhotosUI/PUPhotoActions.h"
#import "PhotosUI/ScreenHelpers.h"

#include "UIKit/model/Outlines.h"

#include <objc/runtime.h>

using simulator::barButton;
using simulator::symbolButton;

namespace {

NSString* const cellIdentifier = @"photo";
constexpr CGFloat columns = 4;
constexpr CGFloat gap = 1;
constexpr NSInteger pictureTag = 1;
constexpr NSInteger tickTag = 2;
constexpr CGFloat tickSide = 22;

UIImageView* pictureViewOf(UICollectionViewCell* cell) {
    UIView* content = [cell contentView];
    auto picture = static_cast<UIImageView*>([content viewWithTag:pictureTag]);
    if (picture != nil) return picture;
    picture = [[[UIImageView alloc] initWithFrame:[content bounds]] autorelease];
    [picture setTag:pictureTag];
    [picture setContentMode:UIViewContentModeScaleAspectFill];
    [picture setClipsToBounds:YES];
    [picture setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [content addSubview:picture];
    return picture;
}

// Pale, with a tick in the corner.
void showSelected(UICollectionViewCell* cell, bool selected) {
    UIImageView* picture = pictureViewOf(cell);
    [picture setAlpha:selected ? 0.5 : 1];
    UIView* content = [cell contentView];
    [[content viewWithTag:tickTag] removeFromSuperview];
    if (!selected) return;
    const CGSize size = [content bounds].size;
    UIImageView* tick = [[[UIImageView alloc]
        initWithImage:[UIImage imageWithOutline:simulator::outline::check]] autorelease];
    [tick setTag:tickTag];
    [tick setFrame:CGRectMake(size.width - tickSide - 4, size.height - tickSide - 4, tickSide, tickSide)];
    [tick setTintColor:[UIColor whiteColor]];
    [tick setBackgroundColor:[UIColor colorWithRed:0 green:0.48 blue:1 alpha:1]];
    [[tick layer] setCornerRadius:tickSide / 2];
    [content addSubview:tick];
}

} // namespace

@implementation PUPhotosGridViewController

@synthesize assets = _assets, alwaysHideTabBar = _alwaysHideTabBar;

- (instancetype)init {
    self = [super initWithCollectionViewLayout:[[[UICollectionViewFlowLayout alloc] init] autorelease]];
    if (self) _selectedAssets = [[NSMutableOrderedSet alloc] init];
    return self;
}

- (void)dealloc {
    [_selectedAssets release];
    [_assets release];
    [super dealloc];
}

#pragma mark What is shown

- (PHFetchResult*)fetchAssets {
    return nil;
}

- (PHAssetCollection*)editableAlbum {
    return nil;
}

- (BOOL)isTrashBinViewController {
    return NO;
}

- (BOOL)initiallyScrolledToBottom {
    return NO;
}

- (BOOL)pu_wantsTabBarVisible {
    return ![self alwaysHideTabBar] && ![self isEditing];
}

- (void)reloadAssets {
    PHFetchResult* assets = [self fetchAssets];
    [_assets release];
    _assets = [assets retain];
    if ([self isViewLoaded]) [[self collectionView] reloadData];
}

#pragma mark The screen

- (void)viewDidLoad {
    [super viewDidLoad];
    [[self collectionView] registerClass:[UICollectionViewCell class]
              forCellWithReuseIdentifier:cellIdentifier];
    [[self navigationItem] setLeftItemsSupplementBackButton:YES];
    [self _updateNavigationItem];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    [self reloadAssets];
    const CGFloat side = ([[self collectionView] bounds].size.width - gap * (columns - 1)) / columns;
    UICollectionViewFlowLayout* layout = [self collectionViewLayout];
    [layout setItemSize:CGSizeMake(side, side)];
    [layout setMinimumInteritemSpacing:gap];
    [layout setMinimumLineSpacing:gap];
    _needsScrollToBottom = [self initiallyScrolledToBottom];
}

// Where the bottom is shows only once the grid has its size.
- (void)viewDidLayoutSubviews {
    [super viewDidLayoutSubviews];
    if (!_needsScrollToBottom) return;
    _needsScrollToBottom = NO;
    UICollectionView* grid = [self collectionView];
    [grid layoutIfNeeded];
    const CGFloat hidden = [grid contentSize].height - [grid bounds].size.height;
    if (hidden > 0) [grid setContentOffset:CGPointMake(0, hidden) animated:NO];
}

- (void)_updateNavigationItem {
    NSString* title = [self isEditing] ? @"Cancel" : @"Select";
    [[self navigationItem] setRightBarButtonItem:barButton(title, self, @selector(_toggleSelecting:))];
    NSArray* tools = nil;
    if ([self isEditing] && [self isTrashBinViewController])
        tools = @[ barButton(@"Recover", self, @selector(_removeButtonPressed:)) ];
    else if ([self isEditing])
        tools = @[
            barButton(@"Add To", self, @selector(_addToAlbumButtonPressed:)),
            symbolButton(simulator::outline::trash, @"Delete", self, @selector(_removeButtonPressed:))
        ];
    [self setToolbarItems:tools animated:NO];
    [[self navigationController] setToolbarHidden:tools == nil];
}

- (NSInteger)collectionView:(UICollectionView*)collectionView numberOfItemsInSection:(NSInteger)section {
    return static_cast<NSInteger>([_assets count]);
}

- (UICollectionViewCell*)collectionView:(UICollectionView*)collectionView
                 cellForItemAtIndexPath:(NSIndexPath*)path {
    UICollectionViewCell* cell = [collectionView dequeueReusableCellWithReuseIdentifier:cellIdentifier
                                                                           forIndexPath:path];
    PHAsset* asset = [_assets objectAtIndex:static_cast<NSUInteger>([path item])];
    UIImageView* picture = pictureViewOf(cell);
    [picture setImage:simulator::pictureOf(asset, [picture bounds].size)];
    showSelected(cell, [_selectedAssets containsObject:asset]);
    return cell;
}

#pragma mark Opening and selecting

- (void)collectionView:(UICollectionView*)collectionView didSelectItemAtIndexPath:(NSIndexPath*)path {
    PHAsset* asset = [_assets objectAtIndex:static_cast<NSUInteger>([path item])];
    if (![self isEditing]) {
        [self _openAsset:asset];
        return;
    }
    const BOOL selected = ![_selectedAssets containsObject:asset];
    [self setSelected:selected forAsset:asset];
    showSelected([collectionView cellForItemAtIndexPath:path], selected);
}

- (void)_openAsset:(PHAsset*)asset {
    // The one-up view came with iOS 9.
    if (objc_getClass("PUOneUpViewController") == Nil) return;
    PUBrowsingSession* session =
        [[[PUBrowsingSession alloc] initWithAsset:asset inTrash:[self isTrashBinViewController]] autorelease];
    PUOneUpViewController* oneUp =
        [[[PUOneUpViewController alloc] initWithBrowsingSession:session] autorelease];
    [[self navigationController] pushViewController:oneUp animated:YES];
}

- (void)_toggleSelecting:(id)sender {
    [self setEditing:![self isEditing] animated:YES];
}

- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
    [super setEditing:editing animated:animated];
    if (!editing) [_selectedAssets removeAllObjects];
    [self _updateNavigationItem];
    [self pu_updateTabBarVisibility];
    if ([self isViewLoaded]) [[self collectionView] reloadData];
}

- (id)selectedAssets {
    return _selectedAssets;
}

- (void)setSelected:(BOOL)selected forAsset:(PHAsset*)asset {
    if (selected)
        [_selectedAssets addObject:asset];
    else
        [_selectedAssets removeObject:asset];
}

// The selection changes with every tap, so what outlives the tap needs a copy.
- (NSArray*)_selectionAsArray {
    NSMutableArray* assets = [NSMutableArray array];
    for (PHAsset* asset in [self selectedAssets])
        [assets addObject:asset];
    return assets;
}

- (void)_endSelecting {
    [self setEditing:NO animated:YES];
    [self reloadAssets];
}

- (void)_addToAlbumButtonPressed:(id)sender {
    PUAlbumListViewController* list = [[[PUAlbumListViewController alloc] init] autorelease];
    PUSessionInfo* session = [[[PUSessionInfo alloc] init] autorelease];
    [session setTransferredAssets:[NSOrderedSet orderedSetWithArray:[self _selectionAsArray]]];
    [list setSessionInfo:session];
    [list setPickingDelegate:self];
    UIViewController* navigation =
        [[[PUNavigationController alloc] initWithRootViewController:list] autorelease];
    [self presentViewController:navigation animated:YES completion:nil];
}

- (void)albumListDidFinishPicking:(PUAlbumListViewController*)list {
    [self dismissViewControllerAnimated:YES completion:nil];
    [self _endSelecting];
}

#pragma mark Removing and recovering

- (void)_removeButtonPressed:(id)sender {
    const NSUInteger count = [[self selectedAssets] count];
    const bool recovers = [self isTrashBinViewController];
    if (count == 0) return;
    if (!recovers && [self editableAlbum] == nil) {
        [self _removeSelectedAssetsWithCompletion:nil];
        return;
    }
    NSString* title = @"Remove from Album";
    if (recovers)
        title = count == 1 ? @"Recover Photo" : [NSString stringWithFormat:@"Recover %lu Photos", count];
    simulator::confirm(self, [self view], nil, nil, title, ^{
        if (recovers)
            [self _recoverSelectedAssets];
        else
            [self _removeSelectedAssetsWithCompletion:nil];
    });
}

- (void)_removeSelectedAssetsWithCompletion:(void (^)(BOOL success))completion {
    NSArray* assets = [self _selectionAsArray];
    PHAssetCollection* album = [self editableAlbum];
    void (^done)(BOOL) = ^(BOOL success) {
        [self _endSelecting];
        if (completion != nil) completion(success);
    };
    if (album != nil) {
        simulator::changeLibrary(
            ^{
                [[PHAssetCollectionChangeRequest changeRequestForAssetCollection:album] removeAssets:assets];
            },
            done);
    } else {
        [[[[PUDeletePhotosActionController alloc] initWithAssets:assets] autorelease]
            performFromViewController:self
                           completion:done];
    }
}

- (void)_recoverSelectedAssets {
    NSArray* assets = [self _selectionAsArray];
    simulator::changeLibrary(
        ^{
            [PHAssetChangeRequest undeleteAssets:assets];
        },
        ^(BOOL) {
            [self _endSelecting];
        });
}

@end

@implementation PUZoomableGridViewController

- (instancetype)init {
    self = [super init];
    [self setTitle:@"Moments"];
    return self;
}

- (PHFetchResult*)fetchAssets {
    return [PHAsset fetchAssetsWithOptions:nil];
}

// Its own, as on the device.
- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
}

@end
