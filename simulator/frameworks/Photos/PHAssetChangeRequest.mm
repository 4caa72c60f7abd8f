#import "Photos/PHChangeRequest+Making.h"

#import "UIKit/UIKit.h"

#include <functional>

using simulator::Asset;
using simulator::Change;

@implementation PHAssetChangeRequest

- (instancetype)initWithAssetIdentifier:(NSString*)identifier {
    self = [super initInsideChangeBlock];
    if (self) _assetIdentifier = [identifier copy];
    return self;
}

+ (instancetype)creationRequestForAsset:(Asset)asset picture:(std::string)png {
    asset.created = [NSDate timeIntervalSinceReferenceDate];
    NSString* identifier =
        simulator::stringOf([self currentChange].addAsset(std::move(asset), std::move(png)));
    PHAssetChangeRequest* request = [[[self alloc] initWithAssetIdentifier:identifier] autorelease];
    request->_placeholder = [[PHObjectPlaceholder alloc] initWithLocalIdentifier:identifier];
    return request;
}

+ (instancetype)creationRequestForAssetFromImage:(UIImage*)image {
    NSData* png = UIImagePNGRepresentation(image);
    if (!png)
        @throw [NSException exceptionWithName:NSInvalidArgumentException
                                       reason:@"no image to store"
                                     userInfo:nil];
    Asset asset;
    asset.width = static_cast<std::int64_t>(image.size.width * image.scale);
    asset.height = static_cast<std::int64_t>(image.size.height * image.scale);
    std::string bytes(static_cast<const char*>([png bytes]), [png length]);
    return [self creationRequestForAsset:std::move(asset) picture:std::move(bytes)];
}

+ (instancetype)creationRequestForAssetFromVideoAtFileURL:(NSURL*)file {
    [self currentChange];
    if (!file) return nil;
    Asset asset;
    asset.mediaType = simulator::MediaType::video;
    asset.width = 1920;
    asset.height = 1080;
    return [self creationRequestForAsset:std::move(asset) picture:{}];
}

+ (instancetype)changeRequestForAsset:(PHAsset*)asset {
    [self currentChange];
    if (!asset) return nil;
    return [[[self alloc] initWithAssetIdentifier:[asset localIdentifier]] autorelease];
}

+ (void)deleteAssets:(id<NSFastEnumeration>)assets {
    Change& change = [self currentChange];
    for (std::string& identifier : simulator::identifiersOfObjects(assets))
        change.add(Change::DeleteAsset{std::move(identifier)});
}

+ (void)undeleteAssets:(id<NSFastEnumeration>)assets {
    Change& change = [self currentChange];
    for (std::string& identifier : simulator::identifiersOfObjects(assets))
        change.add(Change::EditAsset{.asset = std::move(identifier), .trashed = false});
}

- (void)dealloc {
    [_assetIdentifier release];
    [_placeholder release];
    [super dealloc];
}

- (PHObjectPlaceholder*)placeholderForCreatedAsset {
    [self change];
    return _placeholder;
}

- (void)setHidden:(BOOL)hidden {
    [self change].add(
        Change::EditAsset{.asset = simulator::textOf(_assetIdentifier), .hidden = hidden == YES});
}

- (void)setFavorite:(BOOL)favorite {
    [self change].add(
        Change::EditAsset{.asset = simulator::textOf(_assetIdentifier), .favorite = favorite == YES});
}

- (void)setCreationDate:(NSDate*)date {
    [self change].add(Change::EditAsset{.asset = simulator::textOf(_assetIdentifier),
                                        .created = [date timeIntervalSinceReferenceDate]});
}

@end
