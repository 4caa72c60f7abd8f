#import "filtering/literal_collections.h"

#import "filtering/stock_smart_albums.h"

namespace simulator::test {
namespace {

class LiteralAlgorithm {
  public:
    LiteralAlgorithm(NSArray* previous, const LiteralWorld& world)
        : m_world(world), m_isPhotos([world.bundleIdentifier isEqualToString:@"com.apple.mobileslideshow"]),
          m_isSettings([world.bundleIdentifier isEqualToString:@"com.apple.Preferences"]),
          m_result([[previous mutableCopy] autorelease]), m_handled([NSMutableArray array]) {}

    NSArray* result() const { return m_result; }

    void visit(id collection) {
        if ([collection respondsToSelector:@selector(isTrashBin)] && [collection isTrashBin] &&
            !isOn(@"showDeleted"))
            [m_result removeObject:collection];
        if (![collection respondsToSelector:@selector(assetCollectionSubtype)] ||
            ![collection respondsToSelector:@selector(assetCollectionType)])
            return;
        const NSInteger type = [collection assetCollectionType];
        if (type == 2) visitSmartAlbum(collection);
        if (type == 1 && m_world.coreFoundationVersion >= 1443.0) visitAlbum(collection);
    }

  private:
    bool isOn(NSString* key) const {
        NSNumber* value = [m_world.settings objectForKey:key];
        return value ? [value boolValue] : ![key isEqualToString:@"showHidden"];
    }
    bool isLocked(NSString* title) const {
        NSArray* locked = [[[NSArray alloc]
            initWithContentsOfFile:@"/var/mobile/Library/rollkeeper/lockedAlbums.plist"] autorelease];
        return title && [locked containsObject:title];
    }
    bool isVisible(NSString* title) const {
        if (!title) return true;
        NSNumber* entry = [m_world.visibility objectForKey:[@"albumName" stringByAppendingString:title]];
        return !entry || [entry boolValue];
    }

    void visitSmartAlbum(PHAssetCollection* collection) {
        const NSInteger subtype = [collection assetCollectionSubtype];
        bool isKept = subtype != hiddenPhotosSubtype || (m_isPhotos && isOn(@"showHidden"));
        for (const StockSmartAlbum& each : stockSmartAlbums)
            if (each.subtype == subtype) isKept = isOn(each.key) && (m_isPhotos || !isLocked(each.label));
        if (!isKept) [m_result removeObject:collection];
    }

    void visitAlbum(PHAssetCollection* collection) {
        if (!m_isPhotos)
            for (PHAssetCollection* album in
                 [PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeAlbum
                                                          subtype:PHAssetCollectionSubtypeAlbumRegular
                                                          options:nil])
                swap(album);
        if (![collection respondsToSelector:@selector(title)]) return;
        NSString* title = [collection title];
        const bool isSecret = isOn(@"hideLockedFromApps") && isLocked(title) && !m_isPhotos;
        if (isSecret || !isVisible(title)) [m_result removeObject:collection];
    }

    void swap(PHAssetCollection* album) {
        PHFetchOptions* options = [[[PHFetchOptions alloc] init] autorelease];
        [options setIncludeHiddenAssets:YES];
        NSMutableArray* assets = [NSMutableArray array];
        for (PHAsset* asset in [PHAsset fetchAssetsInAssetCollection:album options:options])
            [assets addObject:asset];
        NSString* title = [album title];
        PHAssetCollection* copy = [PHAssetCollection transientAssetCollectionWithAssets:assets title:title];
        id handled = title ? title : [NSNull null]; // all albums without a title count as one title
        if (![m_handled containsObject:handled] && isVisible(title)) {
            [m_handled addObject:handled];
            if (!m_isSettings) [m_result insertObject:copy atIndex:0];
        }
        if ([m_result containsObject:album] && !m_isSettings) [m_result removeObject:album];
    }

    const LiteralWorld& m_world;
    bool m_isPhotos;
    bool m_isSettings;
    NSMutableArray* m_result;
    NSMutableArray* m_handled;
};

} // namespace

NSArray* literalCollections(NSArray* (^previous)(), const LiteralWorld& world) {
    NSNumber* enabled = [world.settings objectForKey:@"enabled"];
    if (enabled && ![enabled boolValue]) return previous();
    LiteralAlgorithm algorithm(previous(), world);
    for (id collection in previous())
        algorithm.visit(collection);
    return algorithm.result();
}

} // namespace simulator::test
