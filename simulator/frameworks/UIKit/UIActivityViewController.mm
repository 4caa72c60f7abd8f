#import "UIKit/UIActivityViewController.h"

#import "UIKit/internal/ActivityCompletion.h"
#import "UIKit/internal/ControllerState.h"
#import "UIKit/internal/MainThread.h"

using simulator::mainThreadOnly;

@implementation UIActivityViewController

- (instancetype)initWithActivityItems:(NSArray*)items applicationActivities:(NSArray*)activities {
    self = [super init];
    _activityItems = [items copy];
    UIActivity* save = [[[UISaveToCameraRollActivity alloc] init] autorelease];
    _activities = [[[NSArray arrayWithObject:save] arrayByAddingObjectsFromArray:activities] copy];
    [self setModalPresentationStyle:UIModalPresentationPopover]; // adapts to a sheet on a phone
    return self;
}

- (void)dealloc {
    for (UIActivity* activity in _activities)
        [activity setFinishHandler:nil];
    [_activityItems release];
    [_activities release];
    if (_completion) Block_release(_completion);
    [super dealloc];
}

- (void (^)(NSString*, BOOL, NSArray*, NSError*))completionWithItemsHandler {
    mainThreadOnly(self, _cmd);
    return _completion;
}

- (void)setCompletionWithItemsHandler:(void (^)(NSString*, BOOL, NSArray*, NSError*))handler {
    mainThreadOnly(self, _cmd);
    if (_completion) Block_release(_completion);
    _completion = Block_copy(handler);
}

- (BOOL)coversPresenter {
    return NO;
}

@end

@implementation UIActivityViewController (Input)

- (NSArray*)offeredActivities {
    mainThreadOnly(self, _cmd);
    NSMutableArray* offered = [NSMutableArray array];
    for (UIActivity* activity in _activities) {
        if (![activity canPerformWithActivityItems:_activityItems]) continue;
        [activity prepareWithActivityItems:_activityItems];
        [offered addObject:activity];
    }
    return offered;
}

- (BOOL)chooseActivityWithTitle:(NSString*)title {
    mainThreadOnly(self, _cmd);
    for (UIActivity* activity in [self offeredActivities]) {
        if (![[activity activityTitle] isEqualToString:title]) continue;
        [self perform:activity];
        return YES;
    }
    return NO;
}

- (void)perform:(UIActivity*)activity {
    const simulator::Retained<UIViewController*> alive(self);
    const simulator::Retained<UIActivity*> chosen(activity);
    [activity setFinishHandler:^(BOOL completed) {
        [static_cast<UIActivityViewController*>(alive.get()) finished:chosen.get() completed:completed];
    }];
    // The sheet makes way first, so that the activity may present something of its own.
    [self dismissViewControllerAnimated:YES
                             completion:^{
                                 [chosen.get() performActivity];
                             }];
}

- (void)finished:(UIActivity*)activity completed:(BOOL)completed {
    const simulator::Retained<UIActivity*> aliveActivity(activity);
    const simulator::Retained<UIViewController*> alive(self);
    [activity setFinishHandler:nil]; // it holds this sheet and the activity
    if (_completion) _completion([activity activityType], completed, nil, nil);
}

@end
