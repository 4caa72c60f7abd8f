#import "Photos/Photos+Making.h"

@implementation PHObject

@synthesize localIdentifier = _localIdentifier;

- (instancetype)initWithLocalIdentifier:(NSString*)identifier {
    self = [super init];
    if (self != nil) _localIdentifier = [identifier copy];
    return self;
}

- (void)dealloc {
    [_localIdentifier release];
    [super dealloc];
}

- (BOOL)isEqual:(id)other {
    if (other == self) return YES;
    if (![other isKindOfClass:[self class]]) return NO;
    return [_localIdentifier isEqualToString:[other localIdentifier]];
}

- (NSUInteger)hash {
    return [_localIdentifier hash];
}

@end

@implementation PHObjectPlaceholder
@end
