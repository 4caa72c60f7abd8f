#import "UIKit/UIAlertController.h"

#import "ObjectiveC/MainThreadOnly.h"
#import "UIKit/UIControl.h"
#import "UIKit/UIDevice.h"
#import "UIKit/internal/Containers.h"
#import "UIKit/internal/Ownership.h"

@interface UIAlertAction (Handler)
- (void)runHandler;
@end

@implementation UIAlertAction

@synthesize title = _title, style = _style, enabled = _enabled;

+ (BOOL)isMainThreadOnly {
    return YES;
}

+ (instancetype)actionWithTitle:(NSString*)title
                          style:(UIAlertActionStyle)style
                        handler:(void (^)(UIAlertAction* action))handler {
    UIAlertAction* action = [[[self alloc] init] autorelease];
    action->_title = [title copy];
    action->_style = style;
    action->_enabled = YES;
    action->_handler = Block_copy(handler);
    return action;
}

- (void)dealloc {
    [_title release];
    if (_handler) Block_release(_handler);
    [super dealloc];
}

- (void)runHandler {
    if (_handler) _handler(self);
}

@end

@implementation UIAlertController

@synthesize preferredStyle = _preferredStyle, message = _message;

+ (instancetype)alertControllerWithTitle:(NSString*)title
                                 message:(NSString*)message
                          preferredStyle:(UIAlertControllerStyle)style {
    UIAlertController* alert = [[[self alloc] init] autorelease];
    alert->_preferredStyle = style;
    alert->_message = [message copy];
    alert->_actions = [[NSMutableArray alloc] init];
    alert->_textFields = [[NSMutableArray alloc] init];
    [alert setTitle:title];
    [alert setModalPresentationStyle:[alert isShownAsPopover] ? UIModalPresentationPopover
                                                              : UIModalPresentationCustom];
    return alert;
}

- (void)dealloc {
    [_message release];
    [_actions release];
    [_textFields release];
    [super dealloc];
}

- (NSArray*)actions {
    return [[_actions copy] autorelease];
}

- (NSArray*)textFields {
    return [_textFields count] > 0 ? [[_textFields copy] autorelease] : nil;
}

- (void)addAction:(UIAlertAction*)action {
    if (action == nil)
        [NSException raise:NSInvalidArgumentException format:@"an alert cannot have nil as an action"];
    for (UIAlertAction* each in _actions)
        if ([each style] == UIAlertActionStyleCancel && [action style] == UIAlertActionStyleCancel)
            [NSException raise:NSInternalInconsistencyException
                        format:@"UIAlertController can only have one action with a style of "
                               @"UIAlertActionStyleCancel"];
    [_actions addObject:action];
}

- (void)addTextFieldWithConfigurationHandler:(void (^)(UITextField* field))handler {
    if (_preferredStyle != UIAlertControllerStyleAlert)
        [NSException raise:NSInternalInconsistencyException
                    format:@"Text fields can only be added to an alert controller of style "
                           @"UIAlertControllerStyleAlert"];
    UITextField* field = [[[UITextField alloc] initWithFrame:CGRectMake(0, 0, 238, 24)] autorelease];
    [_textFields addObject:field];
    if (handler) handler(field);
}

- (BOOL)isShownAsPopover {
    return _preferredStyle == UIAlertControllerStyleActionSheet && simulator::isPad();
}

@end

@implementation UIAlertController (Input)

- (void)tapAction:(UIAlertAction*)action {
    const simulator::Retained<UIAlertAction*> alive(action);
    [[self presentingViewController] dismissViewControllerAnimated:NO completion:nil];
    [action runHandler];
}

@end
