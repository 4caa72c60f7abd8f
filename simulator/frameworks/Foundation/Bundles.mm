// Bundles as they lie on the device: flat folders, whose executable the device's loader loads.
#include "device/exceptions.h"
#include "device/root.h"
#include "frameworks/ObjectiveC/Replacement.h"
#include "loader/loader.h"

#import <Foundation/Foundation.h>

namespace simulator {
namespace {

BOOL (*originalLoad)(id, SEL);
Class (*originalPrincipalClass)(id, SEL);

NSString* fileIn(NSBundle* bundle, NSString* name) {
    return [[bundle bundlePath] stringByAppendingPathComponent:name];
}

// What this machine's own bundles have elsewhere.
NSDictionary* flatInformation(NSBundle* bundle) {
    return bundle == [NSBundle mainBundle]
               ? nil
               : [NSDictionary dictionaryWithContentsOfFile:fileIn(bundle, @"Info.plist")];
}

NSMutableSet* loadedExecutables() {
    static NSMutableSet* paths = [[NSMutableSet alloc] init];
    return paths;
}

BOOL loadExecutable(NSString* path) {
    if ([loadedExecutables() containsObject:path]) return YES;
    if (const auto problem =
            standardExceptionOf([&] { loadLibrary(linuxPath([path fileSystemRepresentation])); })) {
        NSLog(@"%s", problem->c_str());
        return NO;
    }
    [loadedExecutables() addObject:path];
    return YES;
}

BOOL load(id self, SEL command) {
    NSString* executable = [flatInformation(self) objectForKey:@"CFBundleExecutable"];
    return executable ? loadExecutable(fileIn(self, executable)) : originalLoad(self, command);
}

Class principalClass(id self, SEL command) {
    NSString* name = [flatInformation(self) objectForKey:@"NSPrincipalClass"];
    if (name == nil) return originalPrincipalClass(self, command);
    return [self load] ? NSClassFromString(name) : Nil;
}

__attribute__((constructor)) void loadBundlesAsTheDeviceDoes() {
    originalLoad = replaceMethod("NSBundle", '-', "load", load);
    originalPrincipalClass = replaceMethod("NSBundle", '-', "principalClass", principalClass);
}

} // namespace
} // namespace simulator
