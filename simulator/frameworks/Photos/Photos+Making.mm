#import "Photos/Photos+Making.h"

namespace simulator {

Identifiers identifiersOf(id<NSFastEnumeration> objects) {
    Identifiers identifiers;
    for (id object in objects) {
        if (![object isKindOfClass:[PHObject class]])
            raise(NSInvalidArgumentException,
                  [NSString stringWithFormat:@"%@ is no object of a photo library", object]);
        identifiers.push_back(text([object localIdentifier]));
    }
    return identifiers;
}

std::optional<std::string> titleOf(NSString* title) {
    if (title == nil) return std::nullopt;
    return text(title);
}

AssetFilter filterOf(PHFetchOptions* options) {
    AssetFilter filter{.includeHidden = options.includeHiddenAssets == YES};
    for (NSSortDescriptor* descriptor in options.sortDescriptors) {
        if (![[descriptor key] isEqual:@"creationDate"])
            raise(NSInvalidArgumentException, @"Unsupported sort descriptor in fetch options");
        filter.order = [descriptor ascending] ? AssetOrder::oldestFirst : AssetOrder::newestFirst;
    }
    return filter;
}

PHFetchResult* resultOf(const Assets& assets, PHFetchOptions* options) {
    endUnlessFetchingIsSafe();
    NSMutableArray* objects = [NSMutableArray arrayWithCapacity:assets.size()];
    for (const Asset& record : assets) {
        PHAsset* asset = [[PHAsset alloc] initWithAsset:record];
        [objects addObject:asset];
        [asset release];
    }
    if (options.predicate != nil) [objects filterUsingPredicate:options.predicate];
    return [PHFetchResult resultWithObjects:objects];
}

PHFetchResult* resultOf(const Collections& collections, PHFetchOptions* options) {
    endUnlessFetchingIsSafe();
    if ([options.sortDescriptors count] > 0)
        raise(NSInvalidArgumentException, @"Unsupported sort descriptor in fetch options");
    NSMutableArray* objects = [NSMutableArray arrayWithCapacity:collections.size()];
    for (const Collection& record : collections)
        [objects addObject:[PHCollection collectionWithRecord:record]];
    if (options.predicate != nil) [objects filterUsingPredicate:options.predicate];
    return [PHFetchResult resultWithObjects:objects];
}

void raise(NSString* exception, NSString* reason) {
    @throw [NSException exceptionWithName:exception reason:reason userInfo:nil];
}

} // namespace simulator
