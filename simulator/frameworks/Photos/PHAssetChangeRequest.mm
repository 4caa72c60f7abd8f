#import "Photos/Photos+Making.h"

#import "UIKit/UIKit.h"

using simulator::Asset;
using simulator::Change;
using simulator::identifiersOf;

@implementation PHAssetChangeRequest

+ (instancetype)creationRequestForAsset:(Asset)asset picture:(std::optional<std::string>)png {
    asset.created = [NSDate timeIntervalSinceReferenceDate];
    return [self requestForIdentifier:simulator::string(
                                          [self currentChange].addAsset(std::move(asset), std::move(png)))];
}

+ (instancetype)creationRequestForAssetFromImage:(UIImage*)image {
    NSData* png = UIImagePNGRepresentation(image);
    if (png == nil) simulator::raise(NSInvalidArgumentException, @"no image to store");
    return
        [self creationRequestForAsset:{.width = static_cast<std::int64_t>(image.size.width * image.scale),
                                       .height = static_cast<std::int64_t>(image.size.height * image.scale)}
                              picture:std::string(static_cast<const char*>([png bytes]), [png length])];
}

+ (instancetype)creationRequestForAssetFromVideoAtFileURL:(NSURL*)file {
    if (file == nil) return nil;
    return [self
        creationRequestForAsset:{.mediaType = simulator::MediaType::video, .width = 1920, .height = 1080}
                        picture:std::nullopt];
}

+ (instancetype)changeRequestForAsset:(PHAsset*)asset {
    return [self requestForIdentifier:[asset localIdentifier]];
}

+ (void)deleteAssets:(id<NSFastEnumeration>)assets {
    Change& change = [self currentChange];
    for (std::string& identifier : identifiersOf(assets))
        change.add(Change::DeleteAsset{std::move(identifier)});
}

+ (void)undeleteAssets:(id<NSFastEnumeration>)assets {
    Change& change = [self currentChange];
    for (std::string& identifier : identifiersOf(assets))
        change.add(Change::EditAsset{.asset = std::move(identifier), .trashed = false});
}

- (void)setHidden:(BOOL)hidden {
    [self change].add(Change::EditAsset{.asset = [self identifier], .hidden = hidden == YES});
}

@end
