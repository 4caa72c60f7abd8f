#import "PhotosUI/PUAlbumListCellContentViewHelper.h"

#import "PhotosUI/Albums.h"
#include "UIKit/model/Outlines.h"

@implementation PUAlbumListCellContentViewHelper

- (void)configureAlbumListCellContentView:(PUAlbumListCellContentView*)contentView
                            forCollection:(PHCollection*)collection
                                    title:(NSString*)title
                                 animated:(BOOL)animated
                                  enabled:(BOOL)enabled
                                  editing:(BOOL)editing {
    [contentView setTitle:title];
    [contentView setSubtitle:[NSString stringWithFormat:@"%lu", simulator::countIn(collection)]];
    [contentView setEditing:editing];
    [contentView setAlpha:enabled ? 1 : 0.5];
    simulator::showCover(contentView, collection);
}

@end

namespace simulator {

void showCover(PUAlbumListCellContentView* contentView, PHCollection* collection) {
    PUStackView* stack = [contentView stackView];
    [stack setCover:coverOf(collection, [stack bounds].size.width)
           orSymbol:collection == nil ? outline::person : outline::photos];
}

} // namespace simulator
