#include "hosts/applications/photos/photos_app.h"

#import "UIKit/ViewTree.h"

#include "hosts/applications/common/screen.h"
#include "hosts/host.h"

@implementation PLPhotosApplication

// Nothing that Photos has open needs to be closed.
- (void)applicationDidEnterBackground:(UIApplication*)application {
}

@end

@implementation PhotosApplication

@synthesize _tabbedLibraryViewController = _tabbedLibraryViewController;

- (void)dealloc {
    [_tabbedLibraryViewController release];
    [super dealloc];
}

- (void)applicationDidFinishLaunching:(UIApplication*)application {
    _tabbedLibraryViewController = [[PUTabbedLibraryViewController alloc] init];
    simulator::showRootViewController(_tabbedLibraryViewController);
    [_tabbedLibraryViewController setSelectedContentMode:PUContentModeAlbums];
}

@end

namespace simulator::photos {

namespace {

NSIndexPath* pathAt(std::size_t place) {
    return [NSIndexPath indexPathForItem:static_cast<NSInteger>(place) inSection:0];
}

void scrollTo(UIScrollView* scrollView, CGRect frame) {
    CGRect visible = [scrollView bounds];
    CGPoint offset = visible.origin;
    if (CGRectGetMinX(frame) < CGRectGetMinX(visible) || CGRectGetMaxX(frame) > CGRectGetMaxX(visible))
        offset.x = frame.origin.x;
    if (CGRectGetMinY(frame) < CGRectGetMinY(visible) || CGRectGetMaxY(frame) > CGRectGetMaxY(visible))
        offset.y = frame.origin.y;
    if (CGPointEqualToPoint(offset, visible.origin)) return;
    [scrollView setContentOffset:offset animated:NO];
    layOutScreen();
}

void scrollTo(UICollectionView* collection, NSIndexPath* path) {
    layOutScreen();
    scrollTo(collection, [[collection collectionViewLayout] frameForItemAtIndexPath:path]);
}

// In whatever scrolls around it.
void scrollTo(UIView* view) {
    for (UIView* outer = [view superview]; outer != nil; outer = [outer superview])
        if ([outer isKindOfClass:[UIScrollView class]])
            scrollTo(static_cast<UIScrollView*>(outer),
                     {[outer convertPoint:CGPointZero fromView:view], [view bounds].size});
}

void tapItem(UICollectionView* collection, NSIndexPath* path) {
    scrollTo(collection, path);
    UICollectionViewCell* cell = [collection cellForItemAtIndexPath:path];
    if (cell == nil) throw std::runtime_error("nothing is shown at place " + std::to_string([path item]));
    if (![tap(cell) isDescendantOfView:cell])
        throw std::runtime_error("something lies over place " + std::to_string([path item]));
}

PUAlbumsGadgetViewController* albumsScreen() { return onScreen<PUAlbumsGadgetViewController>(); }

// In a table of the Albums screen; nil when there is none.
UITableViewCell* rowOnAlbumsScreen(const std::string& title) {
    for (PXNavigationListGadget* list in [albumsScreen() lists])
        for (UITableViewCell* row in [[list table] visibleCells])
            if (text([[row textLabel] text]) == title) return row;
    return nil;
}

void tapOnAlbumsScreen(const std::string& title) {
    UIView* row = rowOnAlbumsScreen(title);
    UIView* touched = row != nil ? row : coverOnAlbumsScreen(title);
    scrollTo(touched);
    if (![tap(touched) isDescendantOfView:touched])
        throw std::runtime_error("something lies over \"" + title + "\"");
}

void tapSeeAll() {
    std::vector<UIView*> waiting = {[albumsScreen() view]};
    while (!waiting.empty()) {
        UIView* view = waiting.back();
        waiting.pop_back();
        const bool isLabel = [view isKindOfClass:[UILabel class]];
        if (isLabel && [[static_cast<UILabel*>(view) text] isEqualToString:@"See All"]) {
            scrollTo([view superview]);
            tap([view superview]);
            return;
        }
        for (UIView* subview in [view subviews])
            waiting.push_back(subview);
    }
    throw std::runtime_error("the Albums screen offers no \"See All\"");
}

void openAlbumsTab() {
    selectTab(PUContentModeAlbums);
    [[library() selectedNavigationController] popToRootViewControllerAnimated:NO];
    layOutScreen();
}

} // namespace

PhotosApplication* application() {
    return static_cast<PhotosApplication*>([UIApplication sharedApplication]);
}

PUTabbedLibraryViewController* library() {
    return static_cast<PUTabbedLibraryViewController*>([[application() keyWindow] rootViewController]);
}

void selectTab(PUContentMode mode) {
    if ([library() navigationControllerForContentMode:mode] == nil)
        throw std::runtime_error("the library has no tab for content mode " + std::to_string(mode));
    [library() setSelectedContentMode:mode];
    layOutScreen();
}

PUAlbumListViewController* openAlbumList() {
    openAlbumsTab();
    if ([controllerOnScreen() isKindOfClass:[PUAlbumsGadgetViewController class]]) tapSeeAll();
    PUAlbumListViewController* list = albumList();
    [list reloadContentView];
    layOutScreen();
    return list;
}

PUAlbumsGadgetViewController* openAlbumsScreen() {
    openAlbumsTab();
    [albumsScreen() reload];
    layOutScreen();
    return albumsScreen();
}

PUAlbumListCell* coverOnAlbumsScreen(const std::string& title) {
    layOutScreen();
    PUHorizontalAlbumListGadget* row = [albumsScreen() albumRow];
    const NSUInteger item = [[[row albums] valueForKey:@"localizedTitle"] indexOfObject:string(title)];
    if (item == NSNotFound) throw std::runtime_error("the row of albums has no \"" + title + "\"");
    scrollTo([row collectionView], pathAt(item));
    UICollectionViewCell* cell = [[row collectionView] cellForItemAtIndexPath:pathAt(item)];
    scrollTo(cell);
    return static_cast<PUAlbumListCell*>(cell);
}

PUAlbumListViewController* albumList() { return onScreen<PUAlbumListViewController>(); }

nlohmann::json describeAlbums(PUAlbumListViewController* list) {
    auto rows = nlohmann::json::array();
    UICollectionView* collection = [list mainCollectionView];
    layOutScreen();
    for (NSInteger item = 0; item < [collection numberOfItemsInSection:0]; ++item) {
        NSIndexPath* path = [NSIndexPath indexPathForItem:item inSection:0];
        scrollTo(collection, path);
        auto cell = static_cast<PUAlbumListCell*>([collection cellForItemAtIndexPath:path]);
        PUAlbumListCellContentView* content = [cell albumListCellContentView];
        rows.push_back({{"title", text([content title])},
                        {"subtitle", text([content subtitle])},
                        {"editCapabilities", [content editCapabilities]}});
    }
    return rows;
}

NSIndexPath* pathOfAlbum(PUAlbumListViewController* list, const std::string& title) {
    for (NSInteger item = 0; item < [[list mainCollectionView] numberOfItemsInSection:0]; ++item) {
        NSIndexPath* path = [NSIndexPath indexPathForItem:item inSection:0];
        NSString* shown = [[list collectionAtIndexPath:path] localizedTitle];
        if (shown != nil && text(shown) == title) return path;
    }
    throw std::runtime_error("the album list has no album \"" + title + "\"");
}

PUAlbumListCell* albumCell(PUAlbumListViewController* list, const std::string& title) {
    layOutScreen();
    NSIndexPath* path = pathOfAlbum(list, title);
    scrollTo([list mainCollectionView], path);
    return static_cast<PUAlbumListCell*>([[list mainCollectionView] cellForItemAtIndexPath:path]);
}

void tapAlbum(const std::string& title) {
    layOutScreen();
    if ([controllerOnScreen() isKindOfClass:[PUAlbumsGadgetViewController class]])
        return tapOnAlbumsScreen(title);
    PUAlbumListViewController* list = albumList();
    tapItem([list mainCollectionView], pathOfAlbum(list, title));
}

void pinchAlbum(const std::string& title) { pinch(coverOnAlbumsScreen(title)); }

void hardPressAlbum(const std::string& title) { hardPress(coverOnAlbumsScreen(title)); }

PUPhotosAlbumViewController* openAlbum(const std::string& title) {
    openAlbumList();
    tapAlbum(title);
    return onScreen<PUPhotosAlbumViewController>();
}

void setEditing(bool editing) {
    PUAlbumListViewController* list = albumList();
    if ([list isEditing] != (editing ? YES : NO)) tapBarButton(editing ? "Edit" : "Done");
    layOutScreen();
}

void tapDeleteAlbum(const std::string& title) {
    UIButton* button = [[albumCell(albumList(), title) albumListCellContentView] _deleteButton];
    if (button == nil) throw std::runtime_error("the album \"" + title + "\" has no delete button now");
    if (tap(button) != button)
        throw std::runtime_error("the delete button of \"" + title + "\" cannot be touched");
}

PUZoomableGridViewController* openMoments() {
    selectTab(PUContentModePhotos);
    [[library() selectedNavigationController] popToRootViewControllerAnimated:NO];
    layOutScreen();
    return onScreen<PUZoomableGridViewController>();
}

void selectPhotos(PUPhotosGridViewController* grid, const std::vector<std::size_t>& places) {
    if (![grid isEditing]) tapBarButton("Select");
    for (std::size_t place : places)
        tapItem([grid collectionView], pathAt(place));
}

PUAlbumListViewController* addSelectionToAlbum() {
    tapBarButton("Add To");
    layOutScreen();
    return albumList();
}

PUOneUpViewController* openPhoto(PUPhotosGridViewController* grid, std::size_t place) {
    tapItem([grid collectionView], pathAt(place));
    return onScreen<PUOneUpViewController>();
}

void addVerbs() {
    using nlohmann::json;
    const auto inAlbumCell = [](const json& request) -> UIView* {
        PUAlbumListCell* cell = albumCell(albumList(), request.at("title"));
        return [cell viewWithTag:request.at("tag").get<NSInteger>()];
    };
    registerVerb("albums", [] { return describeAlbums(openAlbumList()); });
    registerVerb("openAlbum", [](const json& request) { openAlbum(request.at("title")); });
    registerVerb("tapAlbum", [](const json& request) { tapAlbum(request.at("title")); });
    registerVerb("openAlbumsScreen", [] { openAlbumsScreen(); });
    registerVerb("pinchAlbum", [](const json& request) { pinchAlbum(request.at("title")); });
    registerVerb("hardPressAlbum", [](const json& request) { hardPressAlbum(request.at("title")); });
    registerVerb("hasInCover", [](const json& request) -> json {
        PUAlbumListCell* cover = coverOnAlbumsScreen(request.at("title"));
        return {{"has", [cover viewWithTag:request.at("tag").get<NSInteger>()] != nil}};
    });
    registerVerb("deleteAlbum", [](const json& request) { tapDeleteAlbum(request.at("title")); });
    registerVerb("hasInAlbumCell",
                 [=](const json& request) -> json { return {{"has", inAlbumCell(request) != nil}}; });
    registerVerb("tapInAlbumCell", [=](const json& request) {
        if (inAlbumCell(request) == nil) throw std::runtime_error("no such view: " + request.dump());
        tap(inAlbumCell(request));
    });
    registerVerb("openMoments", [] { openMoments(); });
    registerVerb("openPhoto", [](const json& request) {
        openPhoto(onScreen<PUPhotosGridViewController>(), request.at("place"));
    });
    registerVerb("selectPhotos", [](const json& request) {
        selectPhotos(onScreen<PUPhotosGridViewController>(), request.at("places"));
    });
}

} // namespace simulator::photos
