/// What a user does in Photos. Main thread; the running application must be Photos. Whatever is not on the
/// screen as the action needs it throws std::exception saying so.
#pragma once

#import "PhotosUI/PhotosUI.h"

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

/// What Photos shares with the older applications that show photos.
@interface PLPhotosApplication : UIApplication
- (void)applicationDidEnterBackground:(UIApplication*)application;
@end

/// The application object of Photos: the tabbed library in a window.
@interface PhotosApplication : PLPhotosApplication {
    PUTabbedLibraryViewController* _tabbedLibraryViewController;
}
@property (nonatomic, readonly) PUTabbedLibraryViewController* _tabbedLibraryViewController;
@end

namespace simulator::photos {

PhotosApplication* application();
PUTabbedLibraryViewController* library();

/// Taps a tab; a tab that is not there throws.
void selectTab(PUContentMode mode);

/// The whole library's album list, reloaded and laid out: the first screen of the Albums tab or, from iOS 12
/// on, what "See All" opens there.
PUAlbumListViewController* openAlbumList();

/// The first screen of the Albums tab from iOS 12 on, its albums read anew.
PUAlbumsGadgetViewController* openAlbumsScreen();

/// The first album of that title in the row of the Albums screen, in sight.
PUAlbumListCell* coverOnAlbumsScreen(const std::string& title);

/// The album list on the screen: a folder's, the one that picks an album, or the whole library's.
PUAlbumListViewController* albumList();

/// What a list shows: [{"title": "Holidays", "subtitle": "12", "editCapabilities": 7}].
nlohmann::json describeAlbums(PUAlbumListViewController* list);

/// Where the first album of that title is in the list.
NSIndexPath* pathOfAlbum(PUAlbumListViewController* list, const std::string& title);

/// The cell of the album, after scrolling to it.
PUAlbumListCell* albumCell(PUAlbumListViewController* list, const std::string& title);

/// Taps the album in the list on the screen or, on the Albums screen, in the row or a table.
void tapAlbum(const std::string& title);

/// Two fingers move apart over the album's cover in the row of the Albums screen.
void pinchAlbum(const std::string& title);

/// Presses there as hard as it goes.
void hardPressAlbum(const std::string& title);

/// Opens the album from the top of the Albums tab and gives the screen with its photos.
PUPhotosAlbumViewController* openAlbum(const std::string& title);

/// Taps Edit or Done in the album list on the screen, unless it is in that mode already.
void setEditing(bool editing);

/// Taps the album's delete button in edit mode; the question remains to be answered.
void tapDeleteAlbum(const std::string& title);

/// The grid of moments in the Photos tab.
PUZoomableGridViewController* openMoments();

/// Taps Select and then the photos, by their places in the grid.
void selectPhotos(PUPhotosGridViewController* grid, const std::vector<std::size_t>& places);

/// Taps Add To in the grid or one-up view on the screen and gives the list in which the user chooses the
/// album.
PUAlbumListViewController* addSelectionToAlbum();

/// Taps a photo outside selection mode and gives the screen with it.
PUOneUpViewController* openPhoto(PUPhotosGridViewController* grid, std::size_t place);

/// "albums" lists the whole library's albums; "openAlbum", "tapAlbum", "pinchAlbum", "hardPressAlbum",
/// "deleteAlbum" {"title"}, "openAlbumsScreen", "hasInCover" {"title", "tag"} on it, "hasInAlbumCell" and
/// "tapInAlbumCell" {"title", "tag"}, "openMoments", and "selectPhotos" {"places"} in the grid on the screen.
void addVerbs();

} // namespace simulator::photos
