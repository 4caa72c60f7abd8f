#pragma once

#import "UIKit/UIKit.h"

// A button with a title, as the bars of Photos have them. The target is not retained.
inline UIBarButtonItem* barButton(NSString* title, id target, SEL action) {
    return [[[UIBarButtonItem alloc] initWithTitle:title
                                             style:UIBarButtonItemStylePlain
                                            target:target
                                            action:action] autorelease];
}
