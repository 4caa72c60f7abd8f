#import "hosts/applications/springboard/SpringBoard.h"

#include "hosts/applications/common/launch.h"

@implementation FBSystemApp
@end

@implementation SpringBoard

- (void)dealloc {
    [_window release];
    [super dealloc];
}

- (void)applicationDidFinishLaunching:(UIApplication*)application {
    UIViewController* homeScreen = [[[UIViewController alloc] init] autorelease];
    [homeScreen setTitle:@"Home"];
    _window = simulator::showRootViewController(homeScreen);
}

@end
