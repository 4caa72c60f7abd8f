// Where GNUstep's Foundation differs from the device's.
#import <Foundation/Foundation.h>
#include <objc/runtime.h>

#include "device/process.h"

namespace {

using BundleIdentifier = NSString* (*)(id, SEL);
BundleIdentifier originalBundleIdentifier;

NSString* bundleIdentifier(id self, SEL command) {
    const std::string host = simulator::hostBundleIdentifier();
    if (self != [NSBundle mainBundle] || host.empty()) return originalBundleIdentifier(self, command);
    return [NSString stringWithUTF8String:host.c_str()];
}

template <class Function> Function replace(Class cls, SEL selector, Function replacement) {
    Method method = class_getInstanceMethod(cls, selector);
    return reinterpret_cast<Function>(method_setImplementation(method, reinterpret_cast<IMP>(replacement)));
}

__attribute__((constructor)) void behaveAsOnTheDevice() {
    @autoreleasepool {
        originalBundleIdentifier = replace([NSBundle class], @selector(bundleIdentifier), bundleIdentifier);
        // The device writes property lists as XML, not in the old style.
        [[NSUserDefaults standardUserDefaults]
            registerDefaults:[NSDictionary dictionaryWithObject:@"YES" forKey:@"GSMacOSXCompatible"]];
    }
}

} // namespace
