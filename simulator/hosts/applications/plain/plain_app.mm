#include "hosts/applications/plain/plain_app.h"

#import "UIKit/ViewTree.h"

#include "hosts/applications/common/screen.h"
#include "hosts/applications/pickers.h"
#include "hosts/host.h"
#include "photolibrary/library.h"

#include <stdexcept>

namespace simulator::plain {

namespace {

UINavigationController* navigation() {
    return static_cast<UINavigationController*>(
        [[[UIApplication sharedApplication] keyWindow] rootViewController]);
}

} // namespace

PlainViewController* screen() { return [[navigation() viewControllers] firstObject]; }

UIActivityViewController* share() {
    [navigation() popToRootViewControllerAnimated:NO];
    tapBarButton("Share");
    UIViewController* sheet = [screen() presentedViewController];
    if (![sheet isKindOfClass:[UIActivityViewController class]])
        throw std::runtime_error("the share sheet did not open");
    return static_cast<UIActivityViewController*>(sheet);
}

void saveImage() {
    const std::size_t before = sharedPhotoLibrary().assets({.includeHidden = true}).size();
    if (![share() chooseActivityWithTitle:@"Save Image"])
        throw std::runtime_error("the share sheet does not offer to save the image");
    waitUntil([&] { return sharedPhotoLibrary().assets({.includeHidden = true}).size() > before; },
              "the picture in the photo library");
}

nlohmann::json listPicker() {
    [navigation() popToRootViewControllerAnimated:NO];
    tapBarButton("Pick");
    return pickers::list();
}

void addVerbs() {
    registerVerb("share", [](const nlohmann::json&) {
        share();
        return nlohmann::json::object();
    });
    registerVerb("saveImage", [](const nlohmann::json&) {
        saveImage();
        return nlohmann::json::object();
    });
    registerVerb("listPicker", [](const nlohmann::json&) { return listPicker(); });
}

} // namespace simulator::plain
