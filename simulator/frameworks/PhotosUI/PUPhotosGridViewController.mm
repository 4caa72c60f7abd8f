#import "PhotosUI/BarButton.h"
#import "PhotosUI/PUPhotosGrid.h"

#import "Dispatch/Dispatch.h"
#import "PhotosUI/PUAlbumListViewController.h"
#import "PhotosUI/PUDeletePhotosActionController.h"
#import "PhotosUI/PUOneUp.h"
#import "PhotosUI/PUPhotosSharingViewController.h"

#include <objc/runtime.h>

namespace {

NSString* const cellIdentifier = @"photo";
constexpr CGFloat columns = 4;
constexpr CGFloat gap = 1;
constexpr NSInteger pictureTag = 1;

NSString* photoCount(NSUInteger count) {
    return count == 1 ? @"Photo" : [NSString stringWithFormat:@"%lu Photos", count];
}

UIImageView* pictureOf(UICollectionViewCell* cell) {
    auto picture = static_cast<UIImageView*>([[cell contentView] viewWithTag:pictureTag]);
    if (picture) return picture;
    picture = [[[UIImageView alloc] initWithFrame:[[cell contentView] bounds]] autorelease];
    [picture setTag:pictureTag];
    [picture setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [[cell contentView] addSubview:picture];
    return picture;
}

} // namespace

@implementation PUPhotosGridViewController

@synthesize alwaysHideTabBar = _alwaysHideTabBar, assets = _assets, photoSelectionManager = _selectionManager;

- (instancetype)init {
    UICollectionViewFlowLayout* layout = [[[UICollectionViewFlowLayout alloc] init] autorelease];
    self = [super initWithCollectionViewLayout:layout];
    if (self) _selectionManager = [[PUPhotoSelectionManager alloc] init];
    return self;
}

- (void)dealloc {
    [_selectionManager release];
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

- (BOOL)showsTrash {
    return NO;
}

- (BOOL)initiallyScrolledToBottom {
    return NO;
}

- (BOOL)pu_wantsTabBarVisible {
    return [self alwaysHideTabBar] || [self isEditing] ? NO : YES;
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
    [[self collectionView] setAllowsMultipleSelection:YES];
    [self _updateNavigationItem];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    [self reloadAssets];
    [self _updateLayout];
    _needsScrollToBottom = [self initiallyScrolledToBottom];
}

// Where the bottom is shows only once the grid has its size.
- (void)viewDidLayoutSubviews {
    [super viewDidLayoutSubviews];
    if (!_needsScrollToBottom) return;
    _needsScrollToBottom = NO;
    [self _scrollToBottom];
}

- (void)_updateLayout {
    CGFloat side = ([[self collectionView] bounds].size.width - gap * (columns - 1)) / columns;
    auto layout = static_cast<UICollectionViewFlowLayout*>([self collectionViewLayout]);
    [layout setItemSize:CGSizeMake(side, side)];
    [layout setMinimumInteritemSpacing:gap];
    [layout setMinimumLineSpacing:gap];
}

- (void)_scrollToBottom {
    UICollectionView* grid = [self collectionView];
    [grid layoutIfNeeded];
    CGFloat hidden = [grid contentSize].height - [grid bounds].size.height;
    if (hidden > 0) [grid setContentOffset:CGPointMake(0, hidden) animated:NO];
}

- (void)_updateNavigationItem {
    NSString* title = [self isEditing] ? @"Cancel" : @"Select";
    [[self navigationItem] setRightBarButtonItem:barButton(title, self, @selector(_toggleSelecting:))];
    NSArray* tools = nil;
    if ([self isEditing] && [self showsTrash])
        tools = @[ barButton(@"Recover", self, @selector(_removeButtonPressed:)) ];
    else if ([self isEditing])
        tools = @[
            barButton(@"Share", self, @selector(_shareButtonPressed:)),
            barButton(@"Add To", self, @selector(_addToAlbumButtonPressed:)),
            barButton(@"Delete", self, @selector(_removeButtonPressed:))
        ];
    [self setToolbarItems:tools animated:NO];
    [[self navigationController] setToolbarHidden:tools == nil ? YES : NO];
}

- (NSInteger)collectionView:(UICollectionView*)collectionView numberOfItemsInSection:(NSInteger)section {
    return static_cast<NSInteger>([_assets count]);
}

- (UICollectionViewCell*)collectionView:(UICollectionView*)collectionView
                 cellForItemAtIndexPath:(NSIndexPath*)path {
    UICollectionViewCell* cell = [collectionView dequeueReusableCellWithReuseIdentifier:cellIdentifier
                                                                           forIndexPath:path];
    PHAsset* asset = [_assets objectAtIndex:static_cast<NSUInteger>([path item])];
    UIImageView* picture = pictureOf(cell);
    PHImageRequestOptions* options = [[[PHImageRequestOptions alloc] init] autorelease];
    [options setSynchronous:YES];
    [[PHImageManager defaultManager] requestImageForAsset:asset
                                               targetSize:[picture bounds].size
                                              contentMode:PHImageContentModeAspectFill
                                                  options:options
                                            resultHandler:^(UIImage* image, NSDictionary*) {
                                                [picture setImage:image];
                                            }];
    [picture setAlpha:[_selectionManager isAssetSelected:asset] ? 0.5 : 1];
    return cell;
}

#pragma mark Opening

- (void)collectionView:(UICollectionView*)collectionView didSelectItemAtIndexPath:(NSIndexPath*)path {
    [collectionView deselectItemAtIndexPath:path animated:NO];
    NSUInteger index = static_cast<NSUInteger>([path item]);
    if (![self isEditing]) {
        [self openAssetAtIndex:index];
        return;
    }
    PHAsset* asset = [_assets objectAtIndex:index];
    BOOL selected = [_selectionManager isAssetSelected:asset] ? NO : YES;
    [_selectionManager setSelected:selected forAsset:asset];
    [pictureOf([collectionView cellForItemAtIndexPath:path]) setAlpha:selected ? 0.5 : 1];
}

- (void)openAssetAtIndex:(NSUInteger)index {
    // The one-up view came with iOS 9.
    if (!objc_getClass("PUOneUpViewController")) return;
    PHAsset* asset = [_assets objectAtIndex:index];
    PUBrowsingSession* session = [[[PUBrowsingSession alloc] initWithAsset:asset
                                                                   inTrash:[self showsTrash]] autorelease];
    PUOneUpViewController* oneUp =
        [[[PUOneUpViewController alloc] initWithBrowsingSession:session] autorelease];
    [[self navigationController] pushViewController:oneUp animated:YES];
}

#pragma mark Selecting

- (void)_toggleSelecting:(id)sender {
    [self setEditing:[self isEditing] ? NO : YES animated:YES];
}

- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
    [super setEditing:editing animated:animated];
    if (!editing) [_selectionManager deselectAllAssets];
    [self _updateNavigationItem];
    [[[self tabBarController] tabBar] setHidden:[self pu_wantsTabBarVisible] ? NO : YES];
    if ([self isViewLoaded]) [[self collectionView] reloadData];
}

- (id)selectedAssets {
    return [_selectionManager orderedSelectedAssets];
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

#pragma mark Removing and recovering

- (void)_removeButtonPressed:(id)sender {
    NSUInteger count = [[self selectedAssets] count];
    if (count == 0) return;
    if ([self showsTrash]) {
        [self _confirm:[@"Recover " stringByAppendingString:photoCount(count)]
                  from:sender
               andThen:^{
                   [self _recoverSelectedAssets];
               }];
    } else if ([self editableAlbum]) {
        [self _confirm:@"Remove from Album"
                  from:sender
               andThen:^{
                   [self _removeSelectedAssetsWithCompletion:nil];
               }];
    } else {
        [self _removeSelectedAssetsWithCompletion:nil];
    }
}

- (void)_confirm:(NSString*)title from:(id)sender andThen:(void (^)(void))action {
    UIAlertController* sheet = [UIAlertController alertControllerWithTitle:nil
                                                                   message:nil
                                                            preferredStyle:UIAlertControllerStyleActionSheet];
    [sheet addAction:[UIAlertAction actionWithTitle:title
                                              style:UIAlertActionStyleDestructive
                                            handler:^(UIAlertAction*) {
                                                action();
                                            }]];
    [sheet addAction:[UIAlertAction actionWithTitle:@"Cancel" style:UIAlertActionStyleCancel handler:nil]];
    [[sheet popoverPresentationController] setSourceView:[self view]];
    [[sheet popoverPresentationController] setSourceRect:[[self view] bounds]];
    [self presentViewController:sheet animated:YES completion:nil];
}

- (void)_removeSelectedAssetsWithCompletion:(void (^)(BOOL success))completion {
    NSArray* assets = [self _selectionAsArray];
    PHAssetCollection* album = [self editableAlbum];
    if (album == nil) {
        [self _deleteAssets:assets completion:completion];
        return;
    }
    [self
        _changeLibrary:^{
            [[PHAssetCollectionChangeRequest changeRequestForAssetCollection:album] removeAssets:assets];
        }
            completion:completion];
}

- (void)_deleteAssets:(NSArray*)assets completion:(void (^)(BOOL success))completion {
    PUDeletePhotosActionController* action =
        [[[PUDeletePhotosActionController alloc] initWithAssets:assets] autorelease];
    [action performFromViewController:self
                           completion:^(BOOL success) {
                               [self _endSelecting];
                               if (completion) completion(success);
                           }];
}

- (void)_recoverSelectedAssets {
    NSArray* assets = [self _selectionAsArray];
    [self
        _changeLibrary:^{
            [PHAssetChangeRequest undeleteAssets:assets];
        }
            completion:nil];
}

- (void)_changeLibrary:(void (^)(void))changes completion:(void (^)(BOOL success))completion {
    [[PHPhotoLibrary sharedPhotoLibrary] performChanges:changes
                                      completionHandler:^(BOOL success, NSError*) {
                                          dispatch_async(dispatch_get_main_queue(), ^{
                                              [self _endSelecting];
                                              if (completion) completion(success);
                                          });
                                      }];
}

#pragma mark Sharing and adding

- (void)_shareButtonPressed:(id)sender {
    PUPhotosSharingViewController* sharing =
        [[[PUPhotosSharingViewController alloc] initWithAssets:[self _selectionAsArray]] autorelease];
    PUNavigationController* navigation =
        [[[PUNavigationController alloc] initWithRootViewController:sharing] autorelease];
    [self presentViewController:navigation animated:YES completion:nil];
}

- (void)_addToAlbumButtonPressed:(id)sender {
    [PUAlbumListViewController presentPickerForAssets:[self _selectionAsArray]
                                   fromViewController:self
                                    completionHandler:^(BOOL) {
                                        [self _endSelecting];
                                    }];
}

@end
