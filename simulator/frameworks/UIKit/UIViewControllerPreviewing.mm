#import "UIKit/UIViewControllerPreviewing.h"

#import "UIKit/UIGestureRecognizer.h"
#import "UIKit/internal/RecognizerState.h"

// Waits for hard presses on its view, which is the source view.
@interface PreviewingContext : UIGestureRecognizer <UIViewControllerPreviewing> {
    CGRect _sourceRect;
}
@end

@implementation PreviewingContext

@synthesize sourceRect = _sourceRect;

- (UIView*)sourceView {
    return [self view];
}

- (BOOL)recognizes:(const simulator::Touch&)touch {
    return touch.gesture == simulator::Gesture::hardPress;
}

- (void)perform:(const simulator::Touch&)touch {
    id<UIViewControllerPreviewingDelegate> delegate = [self delegate];
    _sourceRect = [[self view] bounds];
    UIViewController* preview = [delegate previewingContext:self
                                  viewControllerForLocation:[self locationInView:[self view]]];
    if (preview != nil) [delegate previewingContext:self commitViewController:preview];
}

@end

@implementation UIViewController (Previewing)

- (id<UIViewControllerPreviewing>)registerForPreviewingWithDelegate:
                                      (id<UIViewControllerPreviewingDelegate>)delegate
                                                         sourceView:(UIView*)sourceView {
    PreviewingContext* context = [[[PreviewingContext alloc] initWithTarget:nil action:nullptr] autorelease];
    [context setDelegate:delegate];
    [sourceView addGestureRecognizer:context];
    return context;
}

@end
