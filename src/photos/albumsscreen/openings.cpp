#include "common/unlocking.h"
#include "objc/global.h"
#include "objc/replacement.h"
#include "photos/albumsscreen/hooks.h"
#include "photos/albumsscreen/locked_titles.h"
#include "settings/settings.h"

namespace rollkeeper::albumsScreen {

namespace {

// The opening that waits for authorisation, as a void() block that carries it out, and the title that is
// asked for. The number, which goes through the unlocking as its purpose, tells it from earlier ones, whose
// answers may still arrive.
constinit MainThreadGlobal<Block> heldOpening;
constinit MainThreadGlobal<NSString> heldTitle;
constinit int heldNumber = 0;

// The title of the album that is being opened after authorisation: one opening leads through several of the
// methods here, and all of them let this album pass, but no other one.
constinit MainThreadGlobal<NSString> authorisedTitle;

// An opening ends the one before, whether that has been answered or not.
void begin() {
    if (!settings::enabled || authorisedTitle) return;
    lockedAlbumOpen = false;
    heldOpening.clear();
}

bool mayOpen(NSString lockedTitle) {
    if (!settings::enabled || !lockedTitle) return true;
    return authorisedTitle && authorisedTitle.get().isEqualToString(lockedTitle);
}

void holdBack(NSObject gadget, NSString title, const Owner<Block>& opening) {
    heldOpening.set(opening.get());
    heldTitle.set(title);
    unlock(UnlockFlow::albumsScreen, gadget, ++heldNumber, title);
}

// The cells' own classes differ; all of them show an album by a content view somewhere inside.
PUAlbumListCellContentView contentViewIn(UIView view) {
    if (const auto contentView = ifKindOf<PUAlbumListCellContentView>(view)) return contentView;
    for (UIView subview : each<UIView>(view.subviews()))
        if (const auto contentView = contentViewIn(subview)) return contentView;
    return PUAlbumListCellContentView();
}

NSString titleAt(UICollectionView collectionView, NSIndexPath path) {
    return contentViewIn(collectionView.cellForItem(path)).title();
}

} // namespace

// Replays come through here once more and read the title anew: what has taken the album's place meanwhile is
// asked for itself.
void didSelectItem(PUHorizontalAlbumListGadget self, SEL command, UICollectionView collectionView,
                   NSIndexPath path) {
    begin();
    const NSString locked = settings::enabled ? ifLocked(titleAt(collectionView, path)) : NSString();
    if (mayOpen(locked)) return original<didSelectItem>(self, command, collectionView, path);
    holdBack(self, locked,
             block<void()>([](PUHorizontalAlbumListGadget gadget, SEL again, UICollectionView shown,
                              NSIndexPath touched) { didSelectItem(gadget, again, shown, touched); },
                           share(self), command, share(collectionView), share(path)));
}

// The stacked transition shows the album's photos while the fingers still move. Without it the album opens in
// another way, through the methods below.
bool canUseStackedTransition(PUHorizontalAlbumListGadget self, SEL command, PHCollection collection) {
    if (settings::enabled && !mayOpen(lockedTitleOf(collection))) return false;
    return original<canUseStackedTransition>(self, command, collection);
}

// The completion goes along with the opening that is held back. It is not called for an album that is not
// opened: its parameters are not known, and what it does, such as going on to a photo, is for an open album.
template <typename Gadget>
void navigateToCollection(Gadget self, SEL command, PHCollection collection, bool animated,
                          Block completion) {
    begin();
    const NSString locked = settings::enabled ? lockedTitleOf(collection) : NSString();
    if (mayOpen(locked))
        return original<navigateToCollection<Gadget>>(self, command, collection, animated, completion);
    holdBack(
        self, locked,
        block<void()>([](Gadget gadget, SEL again, PHCollection asked, bool animates,
                         Block whenDone) { navigateToCollection(gadget, again, asked, animates, whenDone); },
                      share(self), command, share(collection), animated, share(completion)));
}

template void navigateToCollection(PUHorizontalAlbumListGadget, SEL, PHCollection, bool, Block);
template void navigateToCollection(PUAlbumsGadgetViewController, SEL, PHCollection, bool, Block);
template void navigateToCollection(PXNavigationListGadget, SEL, PHCollection, bool, Block);

// The result of an opening that is held back is nil: no screen has been opened.
PUPhotosAlbumViewController navigateToAlbum(PUHorizontalAlbumListGadget self, SEL command,
                                            PHAssetCollection album, bool animated) {
    begin();
    const NSString locked = settings::enabled ? lockedTitleOf(album) : NSString();
    if (mayOpen(locked)) return original<navigateToAlbum>(self, command, album, animated);
    holdBack(self, locked,
             block<void()>([](PUHorizontalAlbumListGadget gadget, SEL again, PHAssetCollection asked,
                              bool animates) { navigateToAlbum(gadget, again, asked, animates); },
                           share(self), command, share(album), animated));
    return PUPhotosAlbumViewController();
}

// Not every gadget is a view controller.
void requestPassword(NSObject self, SEL, int opening) {
    rollkeeper::requestPassword(UnlockFlow::albumsScreen, self, opening,
                                UIApplication::sharedApplication().keyWindow().rootViewController());
}

void unlockAuthorised(NSObject, SEL, int opening) {
    const Owner<Block> authorised = opening == heldNumber ? heldOpening.take() : Owner<Block>();
    if (!authorised) return;
    authorisedTitle.set(heldTitle.get());
    run(authorised);
    authorisedTitle.clear();
    // Unless what took the album's place is being asked for.
    if (opening == heldNumber) lockedAlbumOpen = true;
}

} // namespace rollkeeper::albumsScreen
