// Bundles as they lie on the device: flat folders, whose executable the device's loader loads. The main one
// is that of the host.
#include "device/exceptions.h"
#include "device/process.h"
#include "device/releases.h"
#include "device/root.h"
#include "device/strings.h"
#include "frameworks/ObjectiveC/Replacement.h"
#include "loader/loader.h"

#import <Foundation/Foundation.h>

namespace simulator {
namespace {

NSString* (*originalBundleIdentifier)(id, SEL);
BOOL (*originalLoad)(id, SEL);
Class (*originalPrincipalClass)(id, SEL);
id (*originalInformation)(id, SEL, NSString*);

NSString* bundleIdentifier(id self, SEL command) {
    const std::string host = hostBundleIdentifier();
    if (self != [NSBundle mainBundle] || host.empty()) return originalBundleIdentifier(self, command);
    return simulator::string(host);
}

NSString* fileIn(NSBundle* bundle, NSString* name) {
    return [[bundle bundlePath] stringByAppendingPathComponent:name];
}

// What this machine's own bundles have elsewhere.
NSDictionary* flatInformation(NSBundle* bundle) {
    return bundle == [NSBundle mainBundle]
               ? nil
               : [NSDictionary dictionaryWithContentsOfFile:fileIn(bundle, @"Info.plist")];
}

BOOL loadExecutable(NSString* path) {
    static NSMutableSet* loaded = [[NSMutableSet alloc] init];
    if ([loaded containsObject:path]) return YES;
    if (const auto problem =
            standardExceptionOf([&] { loadLibrary(linuxPath([path fileSystemRepresentation])); })) {
        NSLog(@"%s", problem->c_str());
        return NO;
    }
    [loaded addObject:path];
    return YES;
}

// The host's own are known as the names of keys alone: any text will do as the description.
id information(id self, SEL command, NSString* key) {
    if (self == [NSBundle mainBundle] && hostDescribesUsage(text(key))) return @"To keep your pictures.";
    return originalInformation(self, command, key);
}

BOOL load(id self, SEL command) {
    NSString* path = [self bundlePath];
    if ([path hasPrefix:@"/System/Library/Frameworks/"]) {
        addLoadedFramework(text([[path lastPathComponent] stringByDeletingPathExtension]));
        return YES;
    }
    NSString* executable = [flatInformation(self) objectForKey:@"CFBundleExecutable"];
    return executable ? loadExecutable(fileIn(self, executable)) : originalLoad(self, command);
}

Class principalClass(id self, SEL command) {
    NSString* name = [flatInformation(self) objectForKey:@"NSPrincipalClass"];
    if (name == nil) return originalPrincipalClass(self, command);
    return [self load] ? NSClassFromString(name) : Nil;
}

__attribute__((constructor)) void loadBundlesAsTheDeviceDoes() {
    originalBundleIdentifier = replaceMethod("NSBundle", '-', "bundleIdentifier", bundleIdentifier);
    originalLoad = replaceMethod("NSBundle", '-', "load", load);
    originalInformation = replaceMethod("NSBundle", '-', "objectForInfoDictionaryKey:", information);
    originalPrincipalClass = replaceMethod("NSBundle", '-', "principalClass", principalClass);
}

} // namespace
} // namespace simulator
