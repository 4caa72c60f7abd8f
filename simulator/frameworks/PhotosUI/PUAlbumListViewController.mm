#import "PhotosUI/PUAlbumListViewController.h"
#import "PhotosUI/BarButton.h"

#import "Dispatch/Dispatch.h"
#import "PhotosUI/PUNavigationController.h"
#import "PhotosUI/PUPhotosGrid.h"
#import "PhotosUI/PURootCollections.h"

#include <Block.h>

#include <algorithm>
#include <cmath>

namespace {

NSString* const cellIdentifier = @"album";
constexpr PHAssetCollectionSubtype placesSubtype = static_cast<PHAssetCollectionSubtype>(1000000203);
constexpr CGFloat spaceBelowCover = 44;
constexpr CGFloat bannerHeight = 74;

// How wide Photos draws an album's cover on the screens that it was designed for.
constexpr struct {
    CGFloat screenWidth;
    CGFloat side;
} coverSides[] = {{320, 136}, {375, 164}, {414, 180}};

CGFloat coverSideForWidth(CGFloat width) {
    for (auto known : coverSides)
        if (known.screenWidth == width) return known.side;
    constexpr CGFloat margin = 16;
    constexpr CGFloat widestCover = 180;
    CGFloat columns = std::max<CGFloat>(2, std::ceil((width - margin) / (widestCover + margin)));
    return std::floor((width - margin * (columns + 1)) / columns);
}

BOOL isAssetCollection(PHCollection* collection) {
    return [collection isKindOfClass:[PHAssetCollection class]];
}

BOOL isUserAlbum(PHCollection* collection) {
    if (!isAssetCollection(collection)) return NO;
    auto album = static_cast<PHAssetCollection*>(collection);
    return [album assetCollectionType] == PHAssetCollectionTypeAlbum &&
           [album assetCollectionSubtype] == PHAssetCollectionSubtypeAlbumRegular;
}

BOOL isPlaces(PHCollection* collection) {
    return isAssetCollection(collection) &&
           [static_cast<PHAssetCollection*>(collection) assetCollectionSubtype] == placesSubtype;
}

// Stock albums appear once they hold something; the library itself is always there.
BOOL isShown(PHCollection* collection) {
    if (!isAssetCollection(collection)) return YES;
    auto album = static_cast<PHAssetCollection*>(collection);
    if ([album assetCollectionType] != PHAssetCollectionTypeSmartAlbum) return YES;
    if ([album assetCollectionSubtype] == PHAssetCollectionSubtypeSmartAlbumUserLibrary) return YES;
    return [[PHAsset fetchAssetsInAssetCollection:album options:nil] count] > 0;
}

NSUInteger editCapabilitiesOf(PHCollection* collection) {
    constexpr NSUInteger all =
        PUAlbumEditCapabilitiesDelete | PUAlbumEditCapabilitiesRename | PUAlbumEditCapabilitiesReorder;
    if (isUserAlbum(collection)) return all;
    if ([collection isKindOfClass:[PHCollectionList class]]) return PUAlbumEditCapabilitiesReorder;
    if (!isAssetCollection(collection)) return PUAlbumEditCapabilitiesNone;
    auto album = static_cast<PHAssetCollection*>(collection);
    BOOL staysInPlace =
        [album isTrashBin] || [album assetCollectionSubtype] == PHAssetCollectionSubtypeSmartAlbumUserLibrary;
    return staysInPlace ? PUAlbumEditCapabilitiesNone : PUAlbumEditCapabilitiesReorder;
}

UIImage* coverOf(PHCollection* collection, CGFloat side) {
    if (!isAssetCollection(collection)) return nil;
    PHAsset* key = [[PHAsset fetchKeyAssetsInAssetCollection:static_cast<PHAssetCollection*>(collection)
                                                     options:nil] firstObject];
    if (key == nil) return nil;
    PHImageRequestOptions* options = [[[PHImageRequestOptions alloc] init] autorelease];
    [options setSynchronous:YES];
    __block UIImage* cover = nil;
    [[PHImageManager defaultManager] requestImageForAsset:key
                                               targetSize:CGSizeMake(side, side)
                                              contentMode:PHImageContentModeAspectFill
                                                  options:options
                                            resultHandler:^(UIImage* image, NSDictionary*) {
                                                cover = [image retain];
                                            }];
    return [cover autorelease];
}

} // namespace

@implementation PUAlbumPickerSessionInfo

@synthesize transferredAssets = _transferredAssets;

- (instancetype)initWithTransferredAssets:(NSArray*)assets completionHandler:(void (^)(BOOL added))handler {
    self = [super init];
    if (!self) return nil;
    _transferredAssets = [assets copy];
    if (handler) _completionHandler = Block_copy(handler);
    return self;
}

- (void)dealloc {
    [_transferredAssets release];
    if (_completionHandler) Block_release(_completionHandler);
    [super dealloc];
}

- (void)finishWithResult:(BOOL)added {
    auto handler = _completionHandler;
    _completionHandler = nil;
    if (!handler) return;
    handler(added);
    Block_release(handler);
}

@end

@interface PUAlbumListViewController (Private)
- (void)_updateNavigationItem;
- (void)_updateLayout;
- (void)_confirmDeletionOfCollection:(PHCollection*)collection fromView:(UIView*)view;
@end

@implementation PUAlbumListViewController

@synthesize sessionInfo = _sessionInfo, disallowsSearch = _disallowsSearch;

- (instancetype)init {
    return [self initWithCollectionList:nil];
}

- (instancetype)initWithCollectionList:(PHCollectionList*)list {
    self = [super init];
    if (!self) return nil;
    _collectionList = [list retain];
    [self setTitle:list ? [list localizedTitle] : @"Albums"];
    return self;
}

+ (void)presentPickerForAssets:(NSArray*)assets
            fromViewController:(UIViewController*)presenter
             completionHandler:(void (^)(BOOL added))handler {
    PUAlbumPickerSessionInfo* session = [[[PUAlbumPickerSessionInfo alloc]
        initWithTransferredAssets:assets
                completionHandler:^(BOOL added) {
                    [presenter dismissViewControllerAnimated:YES completion:nil];
                    handler(added);
                }] autorelease];
    PUAlbumListViewController* list = [[[self alloc] init] autorelease];
    [list setSessionInfo:session];
    PUNavigationController* navigation =
        [[[PUNavigationController alloc] initWithRootViewController:list] autorelease];
    [presenter presentViewController:navigation animated:YES completion:nil];
}

- (void)dealloc {
    [_mainCollectionView setDataSource:nil];
    [_mainCollectionView setDelegate:nil];
    [_collectionList release];
    [_sessionInfo release];
    [_rows release];
    [_mainCollectionView release];
    [_pickerBannerView release];
    [super dealloc];
}

#pragma mark The screen

- (UICollectionView*)mainCollectionView {
    return _mainCollectionView;
}

- (UIView*)_pickerBannerView {
    return _pickerBannerView;
}

- (void)viewDidLoad {
    [super viewDidLoad];
    CGRect bounds = [[self view] bounds];
    UICollectionViewFlowLayout* layout = [[[UICollectionViewFlowLayout alloc] init] autorelease];
    _mainCollectionView = [[UICollectionView alloc] initWithFrame:bounds collectionViewLayout:layout];
    [_mainCollectionView
        setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [_mainCollectionView setBackgroundColor:[UIColor whiteColor]];
    [_mainCollectionView registerClass:[PUAlbumListCell class] forCellWithReuseIdentifier:cellIdentifier];
    [_mainCollectionView setDataSource:self];
    [_mainCollectionView setDelegate:self];
    [[self view] addSubview:_mainCollectionView];
    if (_sessionInfo) [self _addPickerBanner];
    [self _updateLayout];
}

- (void)_addPickerBanner {
    CGFloat width = [[self view] bounds].size.width;
    _pickerBannerView = [[UIView alloc] initWithFrame:CGRectMake(0, 0, width, bannerHeight)];
    [_pickerBannerView setAutoresizingMask:UIViewAutoresizingFlexibleWidth];
    UILabel* label =
        [[[UILabel alloc] initWithFrame:CGRectInset([_pickerBannerView bounds], 16, 16)] autorelease];
    NSUInteger count = [[_sessionInfo transferredAssets] count];
    [label setText:[NSString stringWithFormat:@"Add %lu photo%s to an album.", count, count == 1 ? "" : "s"]];
    [_pickerBannerView addSubview:label];
    [[self view] addSubview:_pickerBannerView];
    CGRect rest = [[self view] bounds];
    rest.origin.y += bannerHeight;
    rest.size.height -= bannerHeight;
    [_mainCollectionView setFrame:rest];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    [self _updateNavigationItem];
    [self reloadContentView];
}

- (void)viewDidLayoutSubviews {
    [super viewDidLayoutSubviews];
    [self _updateLayout];
}

- (void)viewWillTransitionToSize:(CGSize)size
       withTransitionCoordinator:(id<UIViewControllerTransitionCoordinator>)coordinator {
    [super viewWillTransitionToSize:size withTransitionCoordinator:coordinator];
    [coordinator animateAlongsideTransition:nil
                                 completion:^(id) {
                                     [self _updateLayout];
                                 }];
}

- (void)_updateLayout {
    CGFloat width = [_mainCollectionView bounds].size.width;
    CGFloat side = coverSideForWidth(width);
    auto layout = static_cast<UICollectionViewFlowLayout*>([_mainCollectionView collectionViewLayout]);
    CGSize itemSize = CGSizeMake(side, side + spaceBelowCover);
    if (layout == nil || CGSizeEqualToSize([layout itemSize], itemSize)) return;
    CGFloat columns = std::floor(width / side);
    CGFloat margin = std::floor((width - columns * side) / (columns + 1));
    [layout setItemSize:itemSize];
    [layout setSectionInset:UIEdgeInsets{margin, margin, margin, margin}];
    [layout setMinimumInteritemSpacing:margin];
    [layout setMinimumLineSpacing:margin];
}

- (void)_updateNavigationItem {
    UINavigationItem* item = [self navigationItem];
    if (_sessionInfo) {
        [item setRightBarButtonItem:barButton(@"Cancel", self, @selector(_cancelPicking:))];
        return;
    }
    NSMutableArray* right = [NSMutableArray array];
    NSString* editTitle = [self isEditing] ? @"Done" : @"Edit";
    [right addObject:barButton(editTitle, self, @selector(_toggleEditing:))];
    if (![self disallowsSearch]) [right addObject:barButton(@"Search", self, @selector(_search:))];
    [item setRightBarButtonItems:right];
    if ([item leftBarButtonItem] == nil)
        [item setLeftBarButtonItem:barButton(@"+", self, @selector(_addAlbum:))];
}

- (BOOL)showPeople {
    return _collectionList == nil && _sessionInfo == nil ? YES : NO;
}

- (BOOL)showPlaces {
    return _sessionInfo == nil ? YES : NO;
}

- (BOOL)alwaysHideTabBar {
    return NO;
}

#pragma mark The albums

// The row of people stands for no collection, so it is held as a null object.
- (void)reloadContentView {
    NSMutableArray* rows = [NSMutableArray array];
    if ([self showPeople]) [rows addObject:[NSNull null]];
    BOOL places = [self showPlaces];
    for (PHCollection* collection in _collectionList ? [_collectionList collections] : PURootCollections()) {
        if (isPlaces(collection) && !places) continue;
        if (isShown(collection)) [rows addObject:collection];
    }
    [_rows release];
    _rows = [rows copy];
    [_mainCollectionView reloadData];
}

- (PHCollection*)collectionAtIndexPath:(NSIndexPath*)path {
    NSUInteger row = static_cast<NSUInteger>([path item]);
    if (path == nil || row >= [_rows count]) return nil;
    id object = [_rows objectAtIndex:row];
    return object == [NSNull null] ? nil : object;
}

- (NSIndexPath*)indexPathForFirstEditableAlbum {
    for (NSUInteger row = 0; row < [_rows count]; ++row) {
        NSIndexPath* path = [NSIndexPath indexPathForItem:static_cast<NSInteger>(row) inSection:0];
        if (isUserAlbum([self collectionAtIndexPath:path])) return path;
    }
    return nil;
}

- (NSString*)titleForCollection:(PHCollection*)collection {
    return collection ? [collection localizedTitle] : @"People";
}

- (NSString*)subtitleForCollection:(PHCollection*)collection {
    if (collection == nil) return nil;
    NSUInteger count =
        isAssetCollection(collection)
            ? [[PHAsset fetchAssetsInAssetCollection:static_cast<PHAssetCollection*>(collection)
                                             options:nil] count]
            : [[static_cast<PHCollectionList*>(collection) collections] count];
    return [NSString stringWithFormat:@"%lu", count];
}

- (void)setTitleForCell:(id)cell withCollection:(PHCollection*)collection {
    [[cell albumListCellContentView] setTitle:[self titleForCollection:collection]];
}

- (NSInteger)collectionView:(UICollectionView*)collectionView numberOfItemsInSection:(NSInteger)section {
    return static_cast<NSInteger>([_rows count]);
}

- (UICollectionViewCell*)collectionView:(UICollectionView*)collectionView
                 cellForItemAtIndexPath:(NSIndexPath*)path {
    PUAlbumListCell* cell = [collectionView dequeueReusableCellWithReuseIdentifier:cellIdentifier
                                                                      forIndexPath:path];
    PHCollection* collection = [self collectionAtIndexPath:path];
    PUAlbumListCellContentView* content = [cell albumListCellContentView];
    [content setDelegate:self];
    [content setEditCapabilities:editCapabilitiesOf(collection)];
    [content setEditing:[self isEditing]];
    [self setTitleForCell:cell withCollection:collection];
    [content setSubtitle:[self subtitleForCollection:collection]];
    [[content stackView] setCoverImage:coverOf(collection, [[content stackView] bounds].size.width)];
    return cell;
}

- (PUAlbumListCellContentView*)visibleAlbumListCellContentViewAtIndexPath:(NSIndexPath*)path {
    return [static_cast<PUAlbumListCell*>([_mainCollectionView cellForItemAtIndexPath:path])
        albumListCellContentView];
}

- (PUAlbumListCellContentView*)_preparedAlbumListCellContentViewAtIndexPath:(NSIndexPath*)path {
    PUAlbumListCellContentView* visible = [self visibleAlbumListCellContentViewAtIndexPath:path];
    if (visible || path == nil || static_cast<NSUInteger>([path item]) >= [_rows count]) return visible;
    UICollectionViewCell* cell = [self collectionView:_mainCollectionView cellForItemAtIndexPath:path];
    return [static_cast<PUAlbumListCell*>(cell) albumListCellContentView];
}

#pragma mark Opening and picking

- (void)collectionView:(UICollectionView*)collectionView didSelectItemAtIndexPath:(NSIndexPath*)path {
    [collectionView deselectItemAtIndexPath:path animated:NO];
    if ([self isEditing]) return;
    [self didSelectItemAtIndexPath:path];
}

- (void)didSelectItemAtIndexPath:(NSIndexPath*)path {
    PHCollection* collection = [self collectionAtIndexPath:path];
    if ([collection isKindOfClass:[PHCollectionList class]])
        [self _openFolder:static_cast<PHCollectionList*>(collection)];
    else if (_sessionInfo)
        [self _addPickedAssetsToAlbum:static_cast<PHAssetCollection*>(collection)];
    else
        [self _openAlbum:static_cast<PHAssetCollection*>(collection)];
}

- (void)_openFolder:(PHCollectionList*)folder {
    PUAlbumListViewController* list =
        [[[PUAlbumListViewController alloc] initWithCollectionList:folder] autorelease];
    [list setSessionInfo:_sessionInfo];
    [[self navigationController] pushViewController:list animated:YES];
}

- (void)_openAlbum:(PHAssetCollection*)album {
    if (album == nil) return;
    PUPhotosAlbumViewController* contents = [[[PUPhotosAlbumViewController alloc] init] autorelease];
    [contents setAssetCollection:album
        fetchResultContainingAssetCollection:nil
                             filterPredicate:nil
                        existingFetchResults:nil];
    [[self navigationController] pushViewController:contents animated:YES];
}

- (void)_addPickedAssetsToAlbum:(PHAssetCollection*)album {
    if (album == nil) return;
    NSArray* assets = [_sessionInfo transferredAssets];
    PUAlbumPickerSessionInfo* session = _sessionInfo;
    [[PHPhotoLibrary sharedPhotoLibrary]
        performChanges:^{
            [[PHAssetCollectionChangeRequest changeRequestForAssetCollection:album] addAssets:assets];
        }
        completionHandler:^(BOOL success, NSError*) {
            dispatch_async(dispatch_get_main_queue(), ^{
                [session finishWithResult:success];
            });
        }];
}

- (void)_cancelPicking:(id)sender {
    [_sessionInfo finishWithResult:NO];
}

#pragma mark Editing

- (void)_toggleEditing:(id)sender {
    [self setEditing:[self isEditing] ? NO : YES animated:YES];
}

- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
    [super setEditing:editing animated:animated];
    for (PUAlbumListCell* cell in [_mainCollectionView visibleCells])
        [[cell albumListCellContentView] setEditing:editing];
    [self _updateNavigationItem];
}

- (void)albumListCellContentView:(PUAlbumListCellContentView*)contentView performDeleteAction:(id)sender {
    for (UICollectionViewCell* cell in [_mainCollectionView visibleCells]) {
        if (![contentView isDescendantOfView:cell]) continue;
        NSIndexPath* path = [_mainCollectionView indexPathForCell:cell];
        [self _confirmDeletionOfCollection:[self collectionAtIndexPath:path] fromView:contentView];
        return;
    }
}

- (void)_confirmDeletionOfCollection:(PHCollection*)collection fromView:(UIView*)view {
    if (collection == nil) return;
    NSString* title = [NSString stringWithFormat:@"Delete “%@”", [collection localizedTitle]];
    NSString* message =
        [NSString stringWithFormat:@"Are you sure you want to delete “%@”? The photos will not be deleted.",
                                   [collection localizedTitle]];
    UIAlertController* sheet = [UIAlertController alertControllerWithTitle:title
                                                                   message:message
                                                            preferredStyle:UIAlertControllerStyleActionSheet];
    [sheet addAction:[UIAlertAction actionWithTitle:@"Delete Album"
                                              style:UIAlertActionStyleDestructive
                                            handler:^(UIAlertAction*) {
                                                [self _deleteCollection:collection];
                                            }]];
    [sheet addAction:[UIAlertAction actionWithTitle:@"Cancel" style:UIAlertActionStyleCancel handler:nil]];
    [[sheet popoverPresentationController] setSourceView:view];
    [[sheet popoverPresentationController] setSourceRect:[view bounds]];
    [self presentViewController:sheet animated:YES completion:nil];
}

- (void)_deleteCollection:(PHCollection*)collection {
    [self _changeLibrary:^{
        [PHAssetCollectionChangeRequest deleteAssetCollections:@[ collection ]];
    }];
}

- (void)_changeLibrary:(void (^)(void))changes {
    [[PHPhotoLibrary sharedPhotoLibrary] performChanges:changes
                                      completionHandler:^(BOOL, NSError*) {
                                          dispatch_async(dispatch_get_main_queue(), ^{
                                              [self reloadContentView];
                                          });
                                      }];
}

- (void)_addAlbum:(id)sender {
    UIAlertController* alert = [UIAlertController alertControllerWithTitle:@"New Album"
                                                                   message:@"Enter a name for this album."
                                                            preferredStyle:UIAlertControllerStyleAlert];
    [alert addTextFieldWithConfigurationHandler:^(UITextField* field) {
        [field setPlaceholder:@"Title"];
    }];
    [alert addAction:[UIAlertAction actionWithTitle:@"Cancel" style:UIAlertActionStyleCancel handler:nil]];
    // Not retained by its own action's handler: the alert is on the screen while the handler runs.
    __block UIAlertController* shown = alert;
    [alert addAction:[UIAlertAction
                         actionWithTitle:@"Save"
                                   style:UIAlertActionStyleDefault
                                 handler:^(UIAlertAction*) {
                                     [self _createAlbumTitled:[[[shown textFields] firstObject] text]];
                                 }]];
    [self presentViewController:alert animated:YES completion:nil];
}

- (void)_createAlbumTitled:(NSString*)title {
    [self _changeLibrary:^{
        [PHAssetCollectionChangeRequest creationRequestForAssetCollectionWithTitle:title];
    }];
}

- (void)_search:(id)sender {
    UIViewController* search = [[[UIViewController alloc] init] autorelease];
    [search setTitle:@"Search"];
    [[self navigationController] pushViewController:search animated:YES];
}

@end
