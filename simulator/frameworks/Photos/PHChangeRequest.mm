#import "Photos/PHChangeRequest+Making.h"

#include "Photos/ChangeScope.h"

using simulator::Change;
using simulator::ChangeScope;

namespace {

[[noreturn]] void raiseOutsideChangeBlock() {
    @throw [NSException exceptionWithName:NSInternalInconsistencyException
                                   reason:@"This method can only be called from inside of -[PHPhotoLibrary "
                                          @"performChanges:completionHandler:] or -[PHPhotoLibrary "
                                          @"performChangesAndWait:error:]"
                                 userInfo:nil];
}

} // namespace

namespace simulator {

Identifiers identifiersOfObjects(id<NSFastEnumeration> objects) {
    Identifiers identifiers;
    for (id object in objects) {
        if (![object isKindOfClass:[PHObject class]])
            @throw [NSException
                exceptionWithName:NSInvalidArgumentException
                           reason:[NSString stringWithFormat:@"%@ is no object of a photo library", object]
                         userInfo:nil];
        identifiers.push_back(textOf([object localIdentifier]));
    }
    return identifiers;
}

} // namespace simulator

@implementation PHChangeRequest

+ (Change&)currentChange {
    ChangeScope* scope = ChangeScope::current();
    if (!scope) raiseOutsideChangeBlock();
    return scope->change();
}

- (instancetype)initInsideChangeBlock {
    ChangeScope* scope = ChangeScope::current();
    if (!scope) {
        [self release];
        raiseOutsideChangeBlock();
    }
    self = [super init];
    if (self) _change = scope->number();
    return self;
}

- (Change&)change {
    ChangeScope* scope = ChangeScope::current();
    if (!scope || scope->number() != _change) raiseOutsideChangeBlock();
    return scope->change();
}

@end
