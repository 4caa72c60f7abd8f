#include "support/hiding_log.h"

#include "support/replacing.h"

#import "PhotosUI/PhotosUI.h"
#import "hosts/applications/common/screen.h"

#include <objc/runtime.h>

#include <algorithm>
#include <utility>

namespace simulator::test {

namespace {

std::vector<std::string> identifiers;
std::vector<std::string> entries;
bool isInsideHelper = false;

void (*originalApply)(id, SEL, BOOL, id);
void (*originalPerform)(id, SEL, id, id);
void (*originalPresent)(id, SEL, id, BOOL, id);

std::string describe(NSArray* assets) {
    if (assets == nil) return " unset";
    if ([assets count] == 0) return " nothing";
    std::string numbers;
    for (PHAsset* asset in assets) {
        const auto found = std::ranges::find(identifiers, text([asset localIdentifier]));
        numbers += " " + std::to_string(found - identifiers.begin());
    }
    return numbers;
}

void logApply(id self, SEL command, BOOL hidden, id completion) {
    const std::string assets = describe([static_cast<PUAssetHidingHelper*>(self) assets]);
    entries.push_back((hidden ? "hide" : "show") + assets + (completion ? " and tell" : ""));
    isInsideHelper = true;
    originalApply(self, command, hidden, completion);
    isInsideHelper = false;
}

void logPerform(id self, SEL command, id changes, id completion) {
    if (!isInsideHelper) entries.emplace_back("change");
    originalPerform(self, command, changes, completion);
}

void logPresent(id self, SEL command, id controller, BOOL animated, id completion) {
    entries.emplace_back("present");
    originalPresent(self, command, controller, animated, completion);
}

} // namespace

void keepHidingLog(PhotoLibrary& library) {
    for (const Asset& asset : library.assets({.includeHidden = true}))
        identifiers.push_back(asset.identifier);
    replaceMethod("PUAssetHidingHelper", @selector(applyHiddenState:completionHandler:), &logApply,
                  &originalApply);
    replaceMethod("PHPhotoLibrary", @selector(performChanges:completionHandler:), &logPerform,
                  &originalPerform);
    for (const char* screen : {"PUPhotosGridViewController", "PUAlbumListViewController"})
        replaceMethod(screen, @selector(presentViewController:animated:completion:), &logPresent,
                      &originalPresent);
}

std::vector<std::string> takeHidingLog() {
    [[PHPhotoLibrary sharedPhotoLibrary]
        performChangesAndWait:^{
        }
                        error:nullptr]; // after all others
    return std::exchange(entries, {});
}

} // namespace simulator::test
