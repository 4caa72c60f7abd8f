#import "UIKit/UIAlertController.h"

#import "ObjectiveC/MainThreadOnly.h"
#import "UIKit/UIDevice.h"
#import "UIKit/UITextField.h"
#import "UIKit/internal/ControllerState.h"
#import "UIKit/internal/MainThread.h"
#import "UIKit/internal/Ownership.h"

#include <vector>

using simulator::mainThreadOnly;
using simulator::Retained;

namespace simulator {

struct AlertState {
    UIAlertControllerStyle style = UIAlertControllerStyleAlert;
    Retained<NSString*> message;
    std::vector<Retained<UIAlertAction*>> actions;
    std::vector<Retained<UITextField*>> fields;
};

} // namespace simulator

@interface UIAlertAction (Handler)
- (void)runHandler;
@end

@implementation UIAlertAction

@synthesize title = _title;
@synthesize style = _style;
@synthesize enabled = _enabled;

+ (BOOL)isMainThreadOnly {
    return YES;
}

+ (instancetype)actionWithTitle:(NSString*)title
                          style:(UIAlertActionStyle)style
                        handler:(void (^)(UIAlertAction* action))handler {
    mainThreadOnly(self, _cmd);
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

- (id)copyWithZone:(NSZone*)zone {
    UIAlertAction* copy = [[UIAlertAction actionWithTitle:_title style:_style handler:_handler] retain];
    copy->_enabled = _enabled;
    return copy;
}

- (void)runHandler {
    if (_handler) _handler(self);
}

@end

@implementation UIAlertController

+ (instancetype)alertControllerWithTitle:(NSString*)title
                                 message:(NSString*)message
                          preferredStyle:(UIAlertControllerStyle)style {
    mainThreadOnly(self, _cmd);
    UIAlertController* alert = [[[self alloc] init] autorelease];
    alert->_alertState->style = style;
    [alert setTitle:title];
    [alert setMessage:message];
    const bool isPad = [[UIDevice currentDevice] userInterfaceIdiom] == UIUserInterfaceIdiomPad;
    const bool isPopover = style == UIAlertControllerStyleActionSheet && isPad;
    [alert setModalPresentationStyle:isPopover ? UIModalPresentationPopover : UIModalPresentationCustom];
    return alert;
}

- (instancetype)init {
    self = [super init];
    _alertState = new simulator::AlertState;
    return self;
}

- (void)dealloc {
    delete _alertState;
    [super dealloc];
}

- (NSString*)message {
    mainThreadOnly(self, _cmd);
    return _alertState->message.autoreleased();
}

- (void)setMessage:(NSString*)message {
    mainThreadOnly(self, _cmd);
    _alertState->message = Retained<NSString*>::copyOf(message);
}

- (UIAlertControllerStyle)preferredStyle {
    mainThreadOnly(self, _cmd);
    return _alertState->style;
}

- (NSArray*)actions {
    mainThreadOnly(self, _cmd);
    NSMutableArray* actions = [NSMutableArray array];
    for (const auto& action : _alertState->actions)
        [actions addObject:action.get()];
    return actions;
}

- (NSArray*)textFields {
    mainThreadOnly(self, _cmd);
    if (_alertState->fields.empty()) return nil;
    NSMutableArray* fields = [NSMutableArray array];
    for (const auto& field : _alertState->fields)
        [fields addObject:field.get()];
    return fields;
}

- (UIAlertAction*)cancelAction {
    for (const auto& action : _alertState->actions)
        if ([action.get() style] == UIAlertActionStyleCancel) return action.get();
    return nil;
}

- (void)addAction:(UIAlertAction*)action {
    mainThreadOnly(self, _cmd);
    if (!action)
        [NSException raise:NSInvalidArgumentException format:@"an alert cannot have nil as an action"];
    if ([action style] == UIAlertActionStyleCancel && [self cancelAction])
        [NSException
             raise:NSInternalInconsistencyException
            format:@"UIAlertController can only have one action with a style of UIAlertActionStyleCancel"];
    _alertState->actions.push_back(action);
}

- (void)addTextFieldWithConfigurationHandler:(void (^)(UITextField* field))handler {
    mainThreadOnly(self, _cmd);
    if (_alertState->style != UIAlertControllerStyleAlert)
        [NSException raise:NSInternalInconsistencyException
                    format:@"Text fields can only be added to an alert controller of style "
                           @"UIAlertControllerStyleAlert"];
    UITextField* field = [[[UITextField alloc] initWithFrame:CGRectMake(0, 0, 238, 24)] autorelease];
    _alertState->fields.push_back(field);
    if (handler) handler(field);
}

- (void)viewDidLoad {
    [super viewDidLoad];
    for (const auto& field : _alertState->fields)
        [[self view] addSubview:field.get()];
}

// An alert lies on top of its presenter, and only a sheet can point at something.
- (BOOL)coversPresenter {
    return NO;
}

- (BOOL)isShownAsPopover {
    const bool isPad = [[UIDevice currentDevice] userInterfaceIdiom] == UIUserInterfaceIdiomPad;
    return _alertState->style == UIAlertControllerStyleActionSheet && isPad ? YES : NO;
}

@end

@implementation UIAlertController (Input)

- (void)tapAction:(UIAlertAction*)action {
    mainThreadOnly(self, _cmd);
    if (![[self actions] containsObject:action] || ![action isEnabled])
        [NSException raise:NSInvalidArgumentException
                    format:@"the alert offers no such action: %@", [action title]];
    const Retained<UIAlertAction*> alive(action);
    for (UITextField* field in [self textFields])
        [field resignFirstResponder];
    [[self presentingViewController] dismissViewControllerAnimated:NO completion:nil];
    [action runHandler];
}

@end
