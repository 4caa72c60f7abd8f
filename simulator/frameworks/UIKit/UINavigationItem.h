// What a controller shows in the navigation bar: a title and buttons on either side.
#pragma once

#import "UIKit/UIBarButtonItem.h"

@interface UINavigationItem : NSObject {
  @private
    NSString* _title;
    NSArray* _leftBarButtonItems;
    NSArray* _rightBarButtonItems;
    BOOL _leftItemsSupplementBackButton;
}

@property (nonatomic, copy) NSString* title;
// nil when there are none.
@property (nonatomic, copy) NSArray* leftBarButtonItems;
@property (nonatomic, copy) NSArray* rightBarButtonItems;
// Whether the back button stays beside left items; otherwise they take its place.
@property (nonatomic) BOOL leftItemsSupplementBackButton;
// The first of each side; setting it takes the others away.
@property (nonatomic, retain) UIBarButtonItem* leftBarButtonItem;
@property (nonatomic, retain) UIBarButtonItem* rightBarButtonItem;

@end
