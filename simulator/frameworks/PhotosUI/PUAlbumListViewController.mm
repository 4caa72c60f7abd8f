#import "PhotosUI/PUAlbumListViewController.h"

#import "PhotosUI/Albums.h"
#import "PhotosUI/PUAlbumListCellContentViewHelper.h"
#import "PhotosUI/ScreenHelpers.h"
#include "UIKit/model/Outlines.h"

#include <objc/runtime.h>

#include <algorithm>
#include <cmath>

using simulator::albumOf;
using simulator::barButton;
using simulator::hasSubtype;
using simulator::isUserAlbum;
using simulator::symbolButton;

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
    const CGFloat columns = std::max<CGFloat>(2, std::ceil((width - margin) / (widestCover + margin)));
    return std::floor((width - margin * (columns + 1)) / columns);
}

NSUInteger editCapabilitiesOf(PHCollection* collection) {
    constexpr NSUInteger all =
        PUAlbumEditCapabilitiesDelete | PUAlbumEditCapabilitiesRename | PUAlbumEditCapabilitiesReorder;
    if (isUserAlbum(collection)) return all;
    const bool staysInPlace = collection == nil || [albumOf(collection) isTrashBin] ||
                              hasSubtype(collection, PHAssetCollectionSubtypeSmartAlbumUserLibrary);
    return staysInPlace ? PUAlbumEditCapabilitiesNone : PUAlbumEditCapabilitiesReorder;
}

} // namespace

@implementation PUSessionInfo

@synthesize transferredAssets = _transferredAssets;

- (void)dealloc {
    [_transferredAssets release];
    [super dealloc];
}

@end

@implementation PUAlbumListViewController

@synthesize sessionInfo = _sessionInfo, pickingDelegate = _pickingDelegate;
@synthesize mainCollectionView = _mainCollectionView, _pickerBannerView = _pickerBannerView;

- (instancetype)init {
    self = [super init];
    [self setTitle:@"Albums"];
    return self;
}

- (void)dealloc {
    [_mainCollectionView setDataSource:nil];
    [_mainCollectionView setDelegate:nil];
    [_sessionInfo release];
    [_rows release];
    [_mainCollectionView release];
    [_pickerBannerView release];
    [super dealloc];
}

#pragma mark The screen

- (void)viewDidLoad {
    [super viewDidLoad];
    UICollectionViewFlowLayout* layout = [[[UICollectionViewFlowLayout alloc] init] autorelease];
    _mainCollectionView = [[UICollectionView alloc] initWithFrame:[[self view] bounds]
                                             collectionViewLayout:layout];
    [_mainCollectionView
        setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [_mainCollectionView setBackgroundColor:[UIColor whiteColor]];
    [_mainCollectionView registerClass:[PUAlbumListCell class] forCellWithReuseIdentifier:cellIdentifier];
    [_mainCollectionView setDataSource:self];
    [_mainCollectionView setDelegate:self];
    [[self view] addSubview:_mainCollectionView];
    if (_sessionInfo != nil)
        [self _addPickerBanner];
    else
        [[self navigationItem]
            setLeftBarButtonItem:symbolButton(simulator::outline::plus, @"+", nil, nullptr)];
    [self _updateLayout];
}

- (void)_addPickerBanner {
    CGRect rest = [[self view] bounds];
    _pickerBannerView = [[UIView alloc] initWithFrame:CGRectMake(0, 0, rest.size.width, bannerHeight)];
    [_pickerBannerView setAutoresizingMask:UIViewAutoresizingFlexibleWidth];
    [_pickerBannerView setBackgroundColor:[UIColor colorWithWhite:0.97 alpha:1]];
    CGRect thumbnail = CGRectMake(16, 12, bannerHeight - 24, bannerHeight - 24);
    UIImageView* picked = [[[UIImageView alloc] initWithFrame:thumbnail] autorelease];
    [picked setContentMode:UIViewContentModeScaleAspectFill];
    [picked setClipsToBounds:YES];
    PHAsset* first = [[[_sessionInfo transferredAssets] array] firstObject];
    [picked setImage:simulator::pictureOf(first, thumbnail.size)];
    [_pickerBannerView addSubview:picked];
    const CGFloat left = CGRectGetMaxX(thumbnail) + 12;
    UILabel* label = [[[UILabel alloc]
        initWithFrame:CGRectMake(left, 0, rest.size.width - left - 16, bannerHeight)] autorelease];
    [label setAutoresizingMask:UIViewAutoresizingFlexibleWidth];
    [label setFont:[UIFont systemFontOfSize:15]];
    const NSUInteger count = [[_sessionInfo transferredAssets] count];
    [label setText:[NSString stringWithFormat:@"Add %lu photo%s to an album.", count, count == 1 ? "" : "s"]];
    [_pickerBannerView addSubview:label];
    [[self view] addSubview:_pickerBannerView];
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

- (void)_updateLayout {
    const CGFloat width = [_mainCollectionView bounds].size.width;
    const CGFloat side = coverSideForWidth(width);
    UICollectionViewFlowLayout* layout = [_mainCollectionView collectionViewLayout];
    const CGSize itemSize = CGSizeMake(side, side + spaceBelowCover);
    if (layout == nil || CGSizeEqualToSize([layout itemSize], itemSize)) return;
    const CGFloat columns = std::floor(width / side);
    const CGFloat margin = std::floor((width - columns * side) / (columns + 1));
    [layout setItemSize:itemSize];
    [layout setSectionInset:UIEdgeInsets{margin, margin, margin, margin}];
    [layout setMinimumInteritemSpacing:margin];
    [layout setMinimumLineSpacing:margin];
}

// Behind the buttons for a new album and for the search there is nothing.
- (void)_updateNavigationItem {
    UINavigationItem* item = [self navigationItem];
    if (_sessionInfo != nil) {
        [item setRightBarButtonItem:barButton(@"Cancel", self, @selector(_cancelPicking:))];
        return;
    }
    UIBarButtonItem* edit = barButton([self isEditing] ? @"Done" : @"Edit", self, @selector(_toggleEditing:));
    UIBarButtonItem* search =
        [self disallowsSearch] ? nil : symbolButton(simulator::outline::search, @"Search", nil, nullptr);
    [item setRightBarButtonItems:[NSArray arrayWithObjects:edit, search, nil]];
}

- (BOOL)showPeople {
    return _sessionInfo == nil;
}

- (BOOL)showPlaces {
    return _sessionInfo == nil;
}

- (BOOL)alwaysHideTabBar {
    return NO;
}

- (BOOL)disallowsSearch {
    return NO;
}

#pragma mark The albums

// The row of people stands for no collection, so it is held as a null object.
- (void)reloadContentView {
    NSMutableArray* rows = [NSMutableArray array];
    if ([self showPeople]) [rows addObject:[NSNull null]];
    const BOOL places = [self showPlaces];
    for (PHCollection* collection in simulator::rootCollections())
        if ((places || !hasSubtype(collection, placesSubtype)) && simulator::isShown(collection))
            [rows addObject:collection];
    [_rows release];
    _rows = [rows copy];
    [_mainCollectionView reloadData];
}

- (PHCollection*)collectionAtIndexPath:(NSIndexPath*)path {
    const auto row = static_cast<NSUInteger>([path item]);
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
    return collection != nil ? [collection localizedTitle] : @"People";
}

- (NSString*)subtitleForCollection:(PHCollection*)collection {
    return collection != nil ? [NSString stringWithFormat:@"%lu", simulator::countIn(collection)] : nil;
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
    // From iOS 12 on a helper fills it, here and on the Albums screen.
    if (Class helper = objc_getClass("PUAlbumListCellContentViewHelper")) {
        [[[[helper alloc] init] autorelease] configureAlbumListCellContentView:content
                                                                 forCollection:collection
                                                                         title:[content title]
                                                                      animated:NO
                                                                       enabled:YES
                                                                       editing:[self isEditing]];
    } else {
        simulator::showCover(content, collection);
    }
    [content setSubtitle:[self subtitleForCollection:collection]];
    return cell;
}

- (PUAlbumListCellContentView*)visibleAlbumListCellContentViewAtIndexPath:(NSIndexPath*)path {
    return [static_cast<PUAlbumListCell*>([_mainCollectionView cellForItemAtIndexPath:path])
        albumListCellContentView];
}

- (PUAlbumListCellContentView*)_preparedAlbumListCellContentViewAtIndexPath:(NSIndexPath*)path {
    PUAlbumListCellContentView* visible = [self visibleAlbumListCellContentViewAtIndexPath:path];
    if (visible != nil || path == nil || static_cast<NSUInteger>([path item]) >= [_rows count])
        return visible;
    UICollectionViewCell* cell = [self collectionView:_mainCollectionView cellForItemAtIndexPath:path];
    return [static_cast<PUAlbumListCell*>(cell) albumListCellContentView];
}

#pragma mark Opening and picking

- (void)collectionView:(UICollectionView*)collectionView didSelectItemAtIndexPath:(NSIndexPath*)path {
    if (![self isEditing]) [self didSelectItemAtIndexPath:path];
}

- (void)didSelectItemAtIndexPath:(NSIndexPath*)path {
    PHAssetCollection* album = albumOf([self collectionAtIndexPath:path]);
    if (album == nil) return;
    if (_sessionInfo != nil)
        [self _addPickedAssetsToAlbum:album];
    else
        [self _openAlbum:album];
}

- (void)_openAlbum:(PHAssetCollection*)album {
    UIViewController* contents = simulator::contentsOf(album);
    [[self navigationController] pushViewController:contents animated:YES];
}

- (void)_addPickedAssetsToAlbum:(PHAssetCollection*)album {
    NSArray* assets = [[_sessionInfo transferredAssets] array];
    simulator::changeLibrary(
        ^{
            [[PHAssetCollectionChangeRequest changeRequestForAssetCollection:album] addAssets:assets];
        },
        ^(BOOL) {
            [_pickingDelegate albumListDidFinishPicking:self];
        });
}

- (void)_cancelPicking:(id)sender {
    [_pickingDelegate albumListDidFinishPicking:self];
}

#pragma mark Editing

- (void)_toggleEditing:(id)sender {
    [self setEditing:![self isEditing] animated:YES];
}

- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
    [super setEditing:editing animated:animated];
    for (PUAlbumListCell* cell in [_mainCollectionView visibleCells])
        [[cell albumListCellContentView] setEditing:editing];
    [self _updateNavigationItem];
}

- (void)albumListCellContentView:(PUAlbumListCellContentView*)contentView performDeleteAction:(id)sender {
    for (UICollectionViewCell* cell in [_mainCollectionView visibleCells])
        if ([contentView isDescendantOfView:cell])
            [self _confirmDeletionOfCollection:[self collectionAtIndexPath:[_mainCollectionView
                                                                               indexPathForCell:cell]]
                                      fromView:contentView];
}

- (void)_confirmDeletionOfCollection:(PHCollection*)collection fromView:(UIView*)view {
    if (collection == nil) return;
    NSString* title = [NSString stringWithFormat:@"Delete “%@”", [collection localizedTitle]];
    NSString* message =
        [NSString stringWithFormat:@"Are you sure you want to delete “%@”? The photos will not be deleted.",
                                   [collection localizedTitle]];
    simulator::confirm(self, view, title, message, @"Delete Album", ^{
        simulator::changeLibrary(
            ^{
                [PHAssetCollectionChangeRequest deleteAssetCollections:@[ collection ]];
            },
            ^(BOOL) {
                [self reloadContentView];
            });
    });
}

@end
