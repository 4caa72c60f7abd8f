// The methods of PUAlbumListViewController, Photos' grid of albums, that are replaced and added. Main thread.
#pragma once

#include "platform/photos_ui.h"

namespace rollkeeper::albumList {

// Presentation: thumbnails, lock overlays, subtitles, cell buttons (presentation.cpp).
void viewWillAppear(PUAlbumListViewController self, SEL command, bool animated);
void viewDidLayoutSubviews(PUAlbumListViewController self, SEL command);
UIView cellForItem(PUAlbumListViewController self, SEL command, UIView collectionView, NSIndexPath path);
void reloadContentView(PUAlbumListViewController self, SEL command);

// Selection and unlocking (selection.cpp, unlock.cpp).
void didSelectItem(PUAlbumListViewController self, SEL command, NSIndexPath path);
void unlockAlbum(PUAlbumListViewController self, SEL command, int purpose, NSString title);
void requestPassword(PUAlbumListViewController self, SEL command, int purpose);
void unlockAuthorised(PUAlbumListViewController self, SEL command, int purpose);

// Gestures and picked photos (gestures.cpp, picked_photos.cpp).
void handleHiddenPress(PUAlbumListViewController self, SEL command, UIGestureRecognizer recognizer);
void handleLongPress(PUAlbumListViewController self, SEL command, UIGestureRecognizer recognizer);
void reloadCameraRoll(PUAlbumListViewController self, SEL command, bool move);

// Editing and deleting (editing.cpp).
void performDeleteAction(PUAlbumListViewController self, SEL command, PUAlbumListCellContentView contentView,
                         NSObject sender);
void setEditing(PUAlbumListViewController self, SEL command, bool editing, bool animated);

// Answers that follow the settings (visibility.cpp).
bool showPeople(PUAlbumListViewController self, SEL command);
bool showPlaces(PUAlbumListViewController self, SEL command);
NSString titleForCollection(PUAlbumListViewController self, SEL command, PHCollection collection);
NSString subtitleForCollection(PUAlbumListViewController self, SEL command, PHCollection collection);
bool disallowsSearch(PUAlbumListViewController self, SEL command);
bool alwaysHideTabBar(PUAlbumListViewController self, SEL command);
bool wantsTabBarVisible(PUAlbumListViewController self, SEL command);
NSIndexPath indexPathForFirstEditableAlbum(PUAlbumListViewController self, SEL command);
void viewWillTransition(PUAlbumListViewController self, SEL command, CGSize size, NSObject coordinator);

} // namespace rollkeeper::albumList
