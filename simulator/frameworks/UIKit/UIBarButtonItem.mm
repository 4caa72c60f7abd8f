#import "UIKit/UIBarButtonItem.h"

#import "ObjectiveC/MainThreadOnly.h"
#import "UIKit/UIImage.h"
#import "UIKit/UIView.h"
#import "UIKit/internal/MainThread.h"
#import "UIKit/internal/Ownership.h"

#include <map>

using simulator::mainThreadOnly;
using simulator::Retained;

namespace simulator {

struct BarItemState {
    Retained<NSString*> title;
    Retained<UIImage*> image;
    NSInteger tag = 0;
    bool enabled = true;
};

} // namespace simulator

namespace {

// What the user reads, or hears, on the system's own buttons.
NSString* titleOf(UIBarButtonSystemItem item) {
    static const std::map<UIBarButtonSystemItem, NSString*> titles = {
        {UIBarButtonSystemItemDone, @"Done"},    {UIBarButtonSystemItemCancel, @"Cancel"},
        {UIBarButtonSystemItemEdit, @"Edit"},    {UIBarButtonSystemItemSave, @"Save"},
        {UIBarButtonSystemItemAdd, @"Add"},      {UIBarButtonSystemItemFlexibleSpace, nil},
        {UIBarButtonSystemItemAction, @"Share"}, {UIBarButtonSystemItemTrash, @"Delete"},
    };
    const auto title = titles.find(item);
    return title == titles.end() ? nil : title->second;
}

} // namespace

@implementation UIBarItem

+ (BOOL)isMainThreadOnly {
    return YES;
}

- (instancetype)init {
    mainThreadOnly(self, _cmd);
    self = [super init];
    _barItemState = new simulator::BarItemState;
    return self;
}

- (void)dealloc {
    delete _barItemState;
    [super dealloc];
}

- (NSString*)title {
    mainThreadOnly(self, _cmd);
    return _barItemState->title.autoreleased();
}

- (void)setTitle:(NSString*)title {
    mainThreadOnly(self, _cmd);
    _barItemState->title = Retained<NSString*>::copyOf(title);
}

- (UIImage*)image {
    mainThreadOnly(self, _cmd);
    return _barItemState->image.autoreleased();
}

- (void)setImage:(UIImage*)image {
    mainThreadOnly(self, _cmd);
    _barItemState->image = image;
}

- (NSInteger)tag {
    mainThreadOnly(self, _cmd);
    return _barItemState->tag;
}

- (void)setTag:(NSInteger)tag {
    mainThreadOnly(self, _cmd);
    _barItemState->tag = tag;
}

- (BOOL)isEnabled {
    mainThreadOnly(self, _cmd);
    return _barItemState->enabled ? YES : NO;
}

- (void)setEnabled:(BOOL)enabled {
    mainThreadOnly(self, _cmd);
    _barItemState->enabled = enabled;
}

@end

@implementation UIBarButtonItem

@synthesize style = _style;
@synthesize target = _target;
@synthesize action = _action;

- (instancetype)initWithTitle:(NSString*)title
                        style:(UIBarButtonItemStyle)style
                       target:(id)target
                       action:(SEL)action {
    self = [self init];
    [self setTitle:title];
    _style = style;
    _target = target;
    _action = action;
    return self;
}

- (instancetype)initWithImage:(UIImage*)image
                        style:(UIBarButtonItemStyle)style
                       target:(id)target
                       action:(SEL)action {
    self = [self initWithTitle:nil style:style target:target action:action];
    [self setImage:image];
    return self;
}

- (instancetype)initWithBarButtonSystemItem:(UIBarButtonSystemItem)systemItem
                                     target:(id)target
                                     action:(SEL)action {
    return [self initWithTitle:titleOf(systemItem)
                         style:UIBarButtonItemStylePlain
                        target:target
                        action:action];
}

- (instancetype)initWithCustomView:(UIView*)customView {
    self = [self init];
    _customView = [customView retain];
    return self;
}

- (void)dealloc {
    [_customView release];
    [super dealloc];
}

- (UIView*)customView {
    mainThreadOnly(self, _cmd);
    return _customView;
}

- (void)setCustomView:(UIView*)view {
    mainThreadOnly(self, _cmd);
    [view retain];
    [_customView release];
    _customView = view;
}

@end

@implementation UITabBarItem

- (instancetype)initWithTitle:(NSString*)title image:(UIImage*)image tag:(NSInteger)tag {
    self = [self init];
    [self setTitle:title];
    [self setImage:image];
    [self setTag:tag];
    return self;
}

@end
