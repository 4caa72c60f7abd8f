#import "Photos/Photos.h"

@implementation PHFetchOptions

@synthesize predicate = _predicate;
@synthesize sortDescriptors = _sortDescriptors;
@synthesize includeHiddenAssets = _includeHiddenAssets;

- (void)dealloc {
    [_predicate release];
    [_sortDescriptors release];
    [super dealloc];
}

@end
