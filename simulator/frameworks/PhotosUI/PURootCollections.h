#pragma once

#import "Photos/Photos.h"

/// What the top of the photo library lists, in the library's own lists and in the system's photo pickers: the
/// stock albums, then the user's albums and folders. Any thread.
NSArray* PURootCollections();
