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

void scrollTo(UICollectionView* collection, NSIndexPath* path) {
    layOutScreen();
    CGRect frame = [[collection collectionViewLayout] frameForItemAtIndexPath:path];
    CGRect visible = [collection bounds];
    if (CGRectGetMinY(frame) >= CGRectGetMinY(visible) && CGRectGetMaxY(frame) <= CGRectGetMaxY(visible))
        return;
    [collection setContentOffset:CGPointMake(0, frame.origin.y) animated:NO];
    layOutScreen();
}

void tapItem(UICollectionView* collection, NSIndexPath* path) {
    scrollTo(collection, path);
    UICollectionViewCell* cell = [collection cellForItemAtIndexPath:path];
    if (cell == nil) throw std::runtime_error("nothing is shown at place " + std::to_string([path item]));
    if (![tap(cell) isDescendantOfView:cell])
        throw std::runtime_error("something lies over place " + std::to_string([path item]));
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
    selectTab(PUContentModeAlbums);
    [[library() selectedNavigationController] popToRootViewControllerAnimated:NO];
    PUAlbumListViewController* list = albumList();
    [list reloadContentView];
    layOutScreen();
    return list;
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
    PUAlbumListViewController* list = albumList();
    tapItem([list mainCollectionView], pathOfAlbum(list, title));
}

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
    registerVerb("deleteAlbum", [](const json& request) { tapDeleteAlbum(request.at("title")); });
    registerVerb("hasInAlbumCell",
                 [=](const json& request) -> json { return {{"has", inAlbumCell(request) != nil}}; });
    registerVerb("tapInAlbumCell", [=](const json& request) {
        if (inAlbumCell(request) == nil) throw std::runtime_error("no such view: " + request.dump());
        tap(inAlbumCell(request));
    });
    registerVerb("openMoments", [] { openMoments(); });
    registerVerb("selectPhotos", [](const json& request) {
        selectPhotos(onScreen<PUPhotosGridViewController>(), request.at("places"));
    });
}

} // namespace simulator::photos
