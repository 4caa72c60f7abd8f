// What several screens do in the same way: buttons, pictures, questions and changes. Main thread.
#pragma once

#import "Photos/Photos.h"
#import "UIKit/UIKit.h"

namespace simulator {

/// A button with a title, as bars have them. The target is not retained.
UIBarButtonItem* barButton(NSString* title, id target, SEL action);

/// A button with a symbol, whose title is read out only. The target is not retained.
UIBarButtonItem* symbolButton(const char* outline, NSString* title, id target, SEL action);

/// The picture of an asset for a view of that size in points, read at once; nil for nil.
UIImage* pictureOf(PHAsset* asset, CGSize size, PHImageContentMode mode = PHImageContentModeAspectFill);

/// Asks with a sheet of one action and Cancel, which points at the view where sheets do.
void confirm(UIViewController* presenter, UIView* source, NSString* title, NSString* message,
             NSString* action, void (^perform)(void));

/// Changes the library and tells the end of it on the main thread; `done` may be nil.
void changeLibrary(void (^changes)(void), void (^done)(BOOL success));

/// What the top of the photo library lists, in the library's own lists and in photo pickers (PHCollection):
/// the stock albums, then the user's albums and folders.
NSArray* rootCollections();

} // namespace simulator
