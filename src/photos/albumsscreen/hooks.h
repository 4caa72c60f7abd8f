// The methods of the Albums screen, the first one of Photos' Albums tab from iOS 12 on, that are replaced and
// added. All of them pass through while the library is switched off. Main thread.
#pragma once

#include "platform/photos_ui.h"

namespace rollkeeper::albumsScreen {

// Opening albums by a tap, a pinch or a link (openings.cpp).
void didSelectItem(PUHorizontalAlbumListGadget self, SEL command, UICollectionView collectionView,
                   NSIndexPath path);
bool canUseStackedTransition(PUHorizontalAlbumListGadget self, SEL command, PHCollection collection);
PUPhotosAlbumViewController navigateToAlbum(PUHorizontalAlbumListGadget self, SEL command,
                                            PHAssetCollection album, bool animated);
// Of PUHorizontalAlbumListGadget, PUAlbumsGadgetViewController and PXNavigationListGadget.
template <typename Gadget>
void navigateToCollection(Gadget self, SEL command, PHCollection collection, bool animated, Block completion);

// Added to the same three.
void requestPassword(NSObject self, SEL command, int opening);
void unlockAuthorised(NSObject self, SEL command, int opening);

// What albums show before they are opened (previews.cpp).
void configureContentView(PUAlbumListCellContentViewHelper self, SEL command,
                          PUAlbumListCellContentView contentView, PHCollection collection, NSString title,
                          bool animated, bool enabled, bool editing);
UIViewController previewController(PXHorizontalCollectionGadget self, SEL command, CGPoint location,
                                   UIView sourceView, CGRect* sourceRect);

} // namespace rollkeeper::albumsScreen
