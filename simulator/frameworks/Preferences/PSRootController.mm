#import "Preferences/PSRootController.h"

@implementation PSRootController
@end
