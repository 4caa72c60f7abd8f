#import "Photos/Photos+Making.h"

@implementation PHObject

- (instancetype)initWithLocalIdentifier:(NSString*)identifier {
    self = [super init];
    if (self) _localIdentifier = [identifier copy];
    return self;
}

- (void)dealloc {
    [_localIdentifier release];
    [super dealloc];
}

- (NSString*)localIdentifier {
    return _localIdentifier;
}

- (id)objectID {
    return _localIdentifier;
}

- (id)copyWithZone:(NSZone*)zone {
    (void)zone;
    return [self retain];
}

- (BOOL)isEqual:(id)other {
    if (other == self) return YES;
    if (![other isKindOfClass:[self class]]) return NO;
    return [_localIdentifier isEqualToString:[other localIdentifier]];
}

- (NSUInteger)hash {
    return [_localIdentifier hash];
}

- (NSString*)description {
    return [NSString stringWithFormat:@"<%@: %p> %@", [self class], self, _localIdentifier];
}

@end

@implementation PHObjectPlaceholder
@end
