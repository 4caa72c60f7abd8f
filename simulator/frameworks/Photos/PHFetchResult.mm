#import "Photos/Photos+Making.h"

#include <algorithm>
#include <limits>
#include <map>
#include <numeric>

using simulator::Asset;
using simulator::Assets;
using simulator::Collection;
using simulator::Collections;
using simulator::FetchedObjects;

namespace simulator {

FetchedObjects::~FetchedObjects() {
    for (const id object : m_objects)
        [object release];
}

id FetchedObjects::at(std::size_t index) {
    const std::lock_guard lock(m_mutex);
    if (m_objects.empty()) m_objects.resize(m_count);
    if (!m_objects[index]) m_objects[index] = m_make(index);
    return m_objects[index];
}

} // namespace simulator

namespace {

using SortValue = double (*)(const Asset&);

// Assets are sorted as records, not through key-value coding: a library has a hundred thousand of them.
const std::map<std::string, SortValue> assetSortKeys = {
    {"creationDate",
     [](const Asset& asset) { return asset.created.value_or(-std::numeric_limits<double>::infinity()); }},
    {"mediaType", [](const Asset& asset) { return static_cast<double>(asset.mediaType); }},
    {"mediaSubtypes", [](const Asset& asset) { return static_cast<double>(asset.mediaSubtypes); }},
    {"duration", [](const Asset& asset) { return asset.duration; }},
    {"pixelWidth", [](const Asset& asset) { return static_cast<double>(asset.width); }},
    {"pixelHeight", [](const Asset& asset) { return static_cast<double>(asset.height); }},
    {"favorite", [](const Asset& asset) { return asset.favorite ? 1.0 : 0.0; }},
    {"isFavorite", [](const Asset& asset) { return asset.favorite ? 1.0 : 0.0; }},
    {"hidden", [](const Asset& asset) { return asset.hidden ? 1.0 : 0.0; }},
    {"isHidden", [](const Asset& asset) { return asset.hidden ? 1.0 : 0.0; }},
};

constexpr std::string_view collectionSortKeys[] = {"title", "localizedTitle", "startDate", "endDate",
                                                   "estimatedAssetCount"};

[[noreturn]] void raiseUnsupportedSort(NSSortDescriptor* descriptor) {
    NSString* reason =
        [NSString stringWithFormat:@"Unsupported sort descriptor in fetch options: (%@)", [descriptor key]];
    @throw [NSException exceptionWithName:NSInvalidArgumentException reason:reason userInfo:nil];
}

struct AssetOrder {
    SortValue value;
    bool ascending;
};

std::vector<AssetOrder> assetOrders(NSArray* descriptors) {
    std::vector<AssetOrder> orders;
    for (NSSortDescriptor* descriptor in descriptors) {
        const auto key = assetSortKeys.find(simulator::textOf([descriptor key]));
        if (key == assetSortKeys.end()) raiseUnsupportedSort(descriptor);
        orders.push_back({key->second, [descriptor ascending] == YES});
    }
    return orders;
}

/// Items that compare as equal keep their order. `compare` returns a negative number, 0 or a positive one.
template <class Item, class Compare>
std::vector<Item> sorted(std::vector<Item> items, const Compare& compare) {
    std::vector<std::size_t> order(items.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::sort(order, [&](std::size_t left, std::size_t right) {
        const auto result = compare(items[left], items[right]);
        return result == 0 ? left < right : result < 0;
    });
    std::vector<Item> result;
    result.reserve(items.size());
    for (const std::size_t index : order)
        result.push_back(std::move(items[index]));
    return result;
}

Assets sortedAssets(Assets assets, NSArray* descriptors) {
    const std::vector<AssetOrder> orders = assetOrders(descriptors);
    if (orders.empty()) return assets;
    return sorted(std::move(assets), [&](const Asset& left, const Asset& right) {
        for (const AssetOrder& order : orders) {
            const double l = order.value(left);
            const double r = order.value(right);
            if (l != r) return (l < r) == order.ascending ? -1 : 1;
        }
        return 0;
    });
}

void keepMatching(Assets& assets, NSPredicate* predicate) {
    if (!predicate) return;
    std::erase_if(assets, [&](const Asset& record) {
        @autoreleasepool {
            PHAsset* asset = [[[PHAsset alloc] initWithAsset:record] autorelease];
            return ![predicate evaluateWithObject:asset];
        }
    });
}

/// Without a value comes before every value.
NSComparisonResult compare(id left, id right, NSSortDescriptor* descriptor) {
    const bool hasLeft = [left valueForKey:[descriptor key]] != nil;
    const bool hasRight = [right valueForKey:[descriptor key]] != nil;
    if (hasLeft && hasRight) return [descriptor compareObject:left toObject:right];
    if (hasLeft == hasRight) return NSOrderedSame;
    return hasLeft == ([descriptor ascending] == YES) ? NSOrderedDescending : NSOrderedAscending;
}

NSArray* sortedCollections(NSArray* collections, NSArray* descriptors) {
    if ([descriptors count] == 0) return collections;
    for (NSSortDescriptor* descriptor in descriptors)
        if (!std::ranges::count(collectionSortKeys, simulator::textOf([descriptor key])))
            raiseUnsupportedSort(descriptor);
    std::vector<id> objects;
    for (id collection in collections)
        objects.push_back(collection);
    objects = sorted(std::move(objects), [&](id left, id right) {
        for (NSSortDescriptor* descriptor in descriptors) {
            const NSComparisonResult result = compare(left, right, descriptor);
            if (result != NSOrderedSame) return result;
        }
        return NSOrderedSame;
    });
    return [NSArray arrayWithObjects:objects.data() count:objects.size()];
}

std::size_t limited(std::size_t count, PHFetchOptions* options) {
    return options.fetchLimit == 0 ? count : std::min<std::size_t>(count, options.fetchLimit);
}

[[noreturn]] void raiseOutOfRange(NSUInteger index, NSUInteger count) {
    NSString* reason =
        [NSString stringWithFormat:@"index %lu beyond the %lu objects of a fetch result",
                                   static_cast<unsigned long>(index), static_cast<unsigned long>(count)];
    @throw [NSException exceptionWithName:NSRangeException reason:reason userInfo:nil];
}

} // namespace

@implementation PHFetchResult

- (instancetype)initWithCount:(std::size_t)count make:(FetchedObjects::Make)make {
    self = [super init];
    if (self) _objects = new FetchedObjects(count, std::move(make));
    return self;
}

+ (PHFetchResult*)resultWithAssets:(Assets)assets options:(PHFetchOptions*)options {
    keepMatching(assets, options.predicate);
    assets = sortedAssets(std::move(assets), options.sortDescriptors);
    const std::size_t count = limited(assets.size(), options);
    const auto records = std::make_shared<const Assets>(std::move(assets));
    return [[[self alloc] initWithCount:count
                                   make:[records](std::size_t index) {
                                       return [[PHAsset alloc] initWithAsset:(*records)[index]];
                                   }] autorelease];
}

+ (PHFetchResult*)resultWithCollections:(const Collections&)collections options:(PHFetchOptions*)options {
    PHFetchResult* result = nil;
    @autoreleasepool {
        NSMutableArray* made = [NSMutableArray arrayWithCapacity:collections.size()];
        for (const Collection& record : collections)
            [made addObject:[PHCollection collectionWithRecord:record]];
        NSArray* objects = made;
        if (options.predicate) objects = [objects filteredArrayUsingPredicate:options.predicate];
        objects = sortedCollections(objects, options.sortDescriptors);
        const std::shared_ptr<void> owned([objects retain],
                                          [](void* array) { [static_cast<id>(array) release]; });
        result =
            [[self alloc] initWithCount:limited([objects count], options)
                                   make:[owned](std::size_t index) {
                                       return [[static_cast<id>(owned.get()) objectAtIndex:index] retain];
                                   }];
    }
    return [result autorelease];
}

- (void)dealloc {
    delete _objects;
    [super dealloc];
}

- (id)copyWithZone:(NSZone*)zone {
    (void)zone;
    return [self retain];
}

- (NSUInteger)count {
    return _objects->count();
}

- (id)firstObject {
    return _objects->count() == 0 ? nil : _objects->at(0);
}

- (id)lastObject {
    return _objects->count() == 0 ? nil : _objects->at(_objects->count() - 1);
}

- (id)objectAtIndex:(NSUInteger)index {
    if (index >= _objects->count()) raiseOutOfRange(index, _objects->count());
    return _objects->at(index);
}

- (id)objectAtIndexedSubscript:(NSUInteger)index {
    return [self objectAtIndex:index];
}

- (NSArray*)objectsAtIndexes:(NSIndexSet*)indexes {
    NSMutableArray* objects = [NSMutableArray arrayWithCapacity:[indexes count]];
    for (NSUInteger index = [indexes firstIndex]; index != NSNotFound;
         index = [indexes indexGreaterThanIndex:index])
        [objects addObject:[self objectAtIndex:index]];
    return objects;
}

- (BOOL)containsObject:(id)object {
    return [self indexOfObject:object] == NSNotFound ? NO : YES;
}

- (NSUInteger)indexOfObject:(id)object {
    for (std::size_t index = 0; index < _objects->count(); ++index)
        if ([_objects->at(index) isEqual:object]) return index;
    return NSNotFound;
}

- (void)enumerateObjectsUsingBlock:(void (^)(id object, NSUInteger index, BOOL* stop))block {
    BOOL stop = NO;
    for (std::size_t index = 0; index < _objects->count() && !stop; ++index)
        block(_objects->at(index), index, &stop);
}

- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id*)buffer
                                    count:(NSUInteger)capacity {
    static unsigned long neverMutated = 0;
    const std::size_t start = state->state;
    const std::size_t size = std::min<std::size_t>(capacity, _objects->count() - start);
    for (std::size_t offset = 0; offset < size; ++offset)
        buffer[offset] = _objects->at(start + offset);
    state->itemsPtr = buffer;
    state->mutationsPtr = &neverMutated;
    state->state = start + size;
    return size;
}

- (NSUInteger)countOfAssetsWithMediaType:(PHAssetMediaType)mediaType {
    NSUInteger count = 0;
    for (std::size_t index = 0; index < _objects->count(); ++index)
        count += [_objects->at(index) mediaType] == mediaType ? 1 : 0;
    return count;
}

- (NSArray*)fetchedObjects {
    NSMutableArray* objects = [NSMutableArray arrayWithCapacity:_objects->count()];
    for (std::size_t index = 0; index < _objects->count(); ++index)
        [objects addObject:_objects->at(index)];
    return objects;
}

- (NSSet*)fetchedObjectIDsSet {
    NSMutableSet* identifiers = [NSMutableSet setWithCapacity:_objects->count()];
    for (std::size_t index = 0; index < _objects->count(); ++index)
        [identifiers addObject:[_objects->at(index) objectID]];
    return identifiers;
}

@end
