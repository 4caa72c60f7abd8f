#pragma once

#import "Photos/Photos.h"
#import "PhotosUI/PUAlbumListCell.h"

/// Fills an album's content view, in lists and on the Albums screen.
@interface PUAlbumListCellContentViewHelper : NSObject
- (void)configureAlbumListCellContentView:(PUAlbumListCellContentView*)contentView
                            forCollection:(PHCollection*)collection
                                    title:(NSString*)title
                                 animated:(BOOL)animated
                                  enabled:(BOOL)enabled
                                  editing:(BOOL)editing;
@end

namespace simulator {

/// In the size that the content view has.
void showCover(PUAlbumListCellContentView* contentView, PHCollection* collection);

} // namespace simulator
