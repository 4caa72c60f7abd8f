#include "hosts/applications/common/launch.h"

namespace simulator {

UIWindow* showRootViewController(UIViewController* controller) {
    UIWindow* window = [[UIWindow alloc] initWithFrame:[[UIScreen mainScreen] bounds]];
    [window setRootViewController:controller];
    [window makeKeyAndVisible];
    return window;
}

UIBarButtonItem* barButton(NSString* title, id target, SEL action) {
    return [[[UIBarButtonItem alloc] initWithTitle:title
                                             style:UIBarButtonItemStylePlain
                                            target:target
                                            action:action] autorelease];
}

} // namespace simulator
