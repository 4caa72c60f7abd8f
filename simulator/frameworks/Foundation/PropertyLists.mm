#include "frameworks/Foundation/PropertyLists.h"

#include "frameworks/ObjectiveC/Replacement.h"

#include <initializer_list>

namespace simulator {
namespace {

bool isLeaf(id value) {
    for (Class leaf : {[NSString class], [NSNumber class], [NSDate class], [NSData class]})
        if ([value isKindOfClass:leaf]) return true;
    return false;
}

// GNUstep writes the old style, or an empty file when the texts are not plain ASCII; the device writes XML.
BOOL writeToFile(id self, SEL, NSString* path, BOOL atomically) {
    if (!isPropertyList(self)) return NO;
    NSString* problem = nil;
    NSData* data = [NSPropertyListSerialization dataFromPropertyList:self
                                                              format:NSPropertyListXMLFormat_v1_0
                                                    errorDescription:&problem];
    return [data writeToFile:path atomically:atomically];
}

__attribute__((constructor)) void writeAsTheDeviceDoes() {
    replaceMethod("NSArray", '-', "writeToFile:atomically:", writeToFile);
    replaceMethod("NSDictionary", '-', "writeToFile:atomically:", writeToFile);
}

} // namespace

bool isPropertyList(id value) {
    if ([value isKindOfClass:[NSArray class]]) {
        for (id element in static_cast<NSArray*>(value))
            if (!isPropertyList(element)) return false;
        return true;
    }
    if ([value isKindOfClass:[NSDictionary class]]) {
        for (id key in static_cast<NSDictionary*>(value))
            if (![key isKindOfClass:[NSString class]] || !isPropertyList([value objectForKey:key]))
                return false;
        return true;
    }
    return isLeaf(value);
}

} // namespace simulator
