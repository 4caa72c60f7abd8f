#import "Photos/Photos+Making.h"

@implementation PHFetchResult

+ (PHFetchResult*)resultWithObjects:(NSArray*)objects {
    PHFetchResult* result = [[[self alloc] init] autorelease];
    result->_objects = [objects copy];
    return result;
}

- (void)dealloc {
    [_objects release];
    [super dealloc];
}

- (NSUInteger)count {
    return [_objects count];
}

- (id)firstObject {
    return [_objects firstObject];
}

- (id)lastObject {
    return [_objects lastObject];
}

- (id)objectAtIndex:(NSUInteger)index {
    return [_objects objectAtIndex:index];
}

- (void)enumerateObjectsUsingBlock:(void (^)(id object, NSUInteger index, BOOL* stop))block {
    [_objects enumerateObjectsUsingBlock:block];
}

- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id*)buffer
                                    count:(NSUInteger)capacity {
    return [_objects countByEnumeratingWithState:state objects:buffer count:capacity];
}

- (NSArray*)fetchedObjects {
    return [[_objects retain] autorelease];
}

- (NSSet*)fetchedObjectIDsSet {
    return [NSSet setWithArray:[_objects valueForKey:@"localIdentifier"]];
}

@end
