#import "Photos/Photos.h"

@implementation PHFetchOptions

@synthesize predicate = _predicate;
@synthesize sortDescriptors = _sortDescriptors;
@synthesize includeHiddenAssets = _includeHiddenAssets;
@synthesize fetchLimit = _fetchLimit;

- (void)dealloc {
    [_predicate release];
    [_sortDescriptors release];
    [super dealloc];
}

- (id)copyWithZone:(NSZone*)zone {
    PHFetchOptions* copy = [[PHFetchOptions allocWithZone:zone] init];
    copy.predicate = _predicate;
    copy.sortDescriptors = _sortDescriptors;
    copy.includeHiddenAssets = _includeHiddenAssets;
    copy.fetchLimit = _fetchLimit;
    return copy;
}

@end
