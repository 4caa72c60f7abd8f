// The stand-ins have the methods that the device's classes have, with the device's types.
#import <Foundation/Foundation.h>

#include "device/releases.h"

#include <gmock/gmock.h>
#include <objc/runtime.h>

#include <algorithm>
#include <cstring>
#include <span>
#include <string>

namespace simulator::test {
namespace {

// Two spellings of GNUstep differ from the device's without a difference in how values travel: BOOL, and the
// qualifiers of a declaration. Offsets say where Linux puts arguments on its stack.
std::string asOnTheDevice(const char* linuxEncoding) {
    std::string encoding;
    int depth = 0; // inside the braces of a struct names and lengths stay
    for (const char* c = linuxEncoding; *c != '\0'; ++c) {
        if (*c == '{') ++depth;
        if (*c == '}') --depth;
        if (depth == 0 && std::strchr("0123456789+-Vrn", *c) != nullptr) continue;
        encoding += depth == 0 && *c == 'C' ? 'B' : *c;
    }
    return encoding;
}

std::string withoutQualifiers(std::string encoding) {
    std::erase_if(encoding, [](char c) { return c == 'V' || c == 'r'; });
    return encoding;
}

Method methodOf(const SignatureRow& row) {
    Class cls = objc_getClass(row.className.c_str());
    const SEL selector = sel_registerName(row.selector.c_str());
    return row.kind == '+' ? class_getClassMethod(cls, selector) : class_getInstanceMethod(cls, selector);
}

bool hasItsOwn(Class cls, SEL selector) {
    unsigned count = 0;
    Method* methods = class_copyMethodList(cls, &count);
    const bool found = std::any_of(methods, methods + count,
                                   [&](Method each) { return sel_isEqual(method_getName(each), selector); });
    free(static_cast<void*>(methods));
    return found;
}

struct Exception {
    const char* className;
    const char* selector;
};

bool isAmong(std::span<const Exception> exceptions, const SignatureRow& row) {
    return std::ranges::any_of(exceptions, [&](const Exception& each) {
        return row.className == each.className && row.selector == each.selector;
    });
}

// Where the stand-ins differ on purpose.
const Exception differing[] = {
    // No release has it, so that a loaded library may add it.
    {"SpringBoard", "handleMessageNamed:withUserInfo:"},
    // Predicates ask for the value `hidden`, which finds the getter isHidden as on the device.
    {"PHAsset", "hidden"},
    // String encodings are 32 bits wide in GNUstep's Foundation; they travel in a register all the same.
    {"NSString", "stringWithContentsOfFile:encoding:error:"},
    {"NSString", "writeToFile:atomically:encoding:error:"},
};

// Inherited in the first releases only; later the class has its own, as here.
const Exception laterOwn[] = {
    {"PUTabbedLibraryViewController", "selectedNavigationController"},
};

class Signatures : public testing::Test {
  protected:
    Signatures() { setCurrentRelease(Release::complete); }
};

TEST_F(Signatures, methods_have_the_types_of_the_device) {
    int compared = 0;
    for (const SignatureRow& row : signatureTable()) {
        if (row.kind == 'c' || objc_getClass(row.className.c_str()) == Nil || isAmong(differing, row))
            continue;
        const std::string name = row.kind + ("[" + row.className) + " " + row.selector + "]";
        const Method method = methodOf(row);
        ++compared;
        if (method == nullptr) {
            ADD_FAILURE() << name << " is missing";
            continue;
        }
        EXPECT_EQ(asOnTheDevice(method_getTypeEncoding(method)), withoutQualifiers(row.encoding)) << name;
    }
    EXPECT_GT(compared, 250);
}

// A replacement of an inherited method must become an override on the class alone: the hosts' classes have to
// give it the occasion.
TEST_F(Signatures, inherited_methods_are_inherited) {
    int inherited = 0;
    for (const SignatureRow& row : signatureTable()) {
        Class cls = objc_getClass(row.className.c_str());
        const bool host = row.className.starts_with("PU") || row.className.starts_with("PX") ||
                          row.className == "PhotosApplication" || row.className == "UITabBar";
        if (cls == Nil || !host || row.inheritedFrom.empty() || isAmong(laterOwn, row)) continue;
        ++inherited;
        EXPECT_FALSE(hasItsOwn(cls, sel_registerName(row.selector.c_str())))
            << row.className << " " << row.selector;
    }
    EXPECT_GT(inherited, 10);
}

TEST_F(Signatures, superclasses_are_those_of_the_device) {
    const struct {
        const char* name;
        std::vector<const char*> chain;
    } chains[] = {
        {"PhotosApplication", {"PLPhotosApplication", "UIApplication"}},
        {"SpringBoard", {"FBSystemApp", "UIApplication"}},
        {"PUPhotosAlbumViewController", {"PUPhotosGridViewController", "UICollectionViewController"}},
        {"PUZoomableGridViewController", {"PUPhotosGridViewController", "UICollectionViewController"}},
        {"PUAlbumListViewController", {"UIViewController"}},
        {"PUTabbedLibraryViewController", {"UITabBarController"}},
        {"PUNavigationController", {"UINavigationController"}},
        {"PUAlbumListCell", {"UICollectionViewCell"}},
        {"PUAlbumListCellContentView", {"UIView"}},
        {"PUStackView", {"UIView"}},
        {"PUImageTileViewController", {"PUTileViewController", "PUTileController"}},
        {"PUVideoTileViewController", {"PUTileViewController", "PUTileController"}},
        {"PUAssetHidingHelper", {"NSObject"}},
        {"PXUIButton", {"UIButton"}},
        {"PXRoundedCornerOverlayView", {"UIImageView"}},
        {"CAMImageWell", {"UIButton"}},
        {"PSRootController", {"UINavigationController"}},
    };
    for (const auto& each : chains) {
        Class cls = objc_getClass(each.name);
        for (const char* superclass : each.chain) {
            cls = class_getSuperclass(cls);
            EXPECT_STREQ(class_getName(cls), superclass) << each.name;
        }
    }
}

} // namespace
} // namespace simulator::test
