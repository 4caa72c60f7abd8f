#include "frameworks/Foundation/PropertyLists.h"

#include "device/strings.h"
#include "device/xml.h"
#include "frameworks/ObjectiveC/Replacement.h"

#import <GNUstepBase/NSProcessInfo+GNUstepBase.h>

#include <cstring>

// GNUstep tells of every damaged file, which is no news on the device.
@interface SimulatorQuietFiles : NSObject
@end
@implementation SimulatorQuietFiles
+ (void)load {
    @autoreleasepool {
        [[[NSProcessInfo processInfo] debugSet] addObject:@"NoWarn"];
    }
}
@end

namespace simulator {
namespace {

std::string element(const std::string& name, NSString* content) {
    return "<" + name + ">" + escapedForXml(text(content)) + "</" + name + ">\n";
}

// Empty for what is no property list.
std::string leafElement(id value) {
    if ([value isKindOfClass:[NSString class]]) return element("string", value);
    if (value == [NSNumber numberWithBool:YES]) return "<true/>\n";
    if (value == [NSNumber numberWithBool:NO]) return "<false/>\n";
    if ([value isKindOfClass:[NSNumber class]]) {
        const bool isReal = std::strchr("df", *[value objCType]) != nullptr;
        return element(isReal ? "real" : "integer", [value stringValue]);
    }
    if ([value isKindOfClass:[NSData class]])
        return element("data", [value base64EncodedStringWithOptions:0]);
    if (![value isKindOfClass:[NSDate class]]) return {};
    return element("date", [value descriptionWithCalendarFormat:@"%Y-%m-%dT%H:%M:%SZ"
                                                       timeZone:[NSTimeZone timeZoneWithName:@"UTC"]
                                                         locale:nil]);
}

// False for what is no property list.
bool write(id value, const std::string& indent, std::string& text) {
    const std::string inner = indent + "\t";
    if ([value isKindOfClass:[NSArray class]]) {
        text += indent + "<array>\n";
        for (id each in static_cast<NSArray*>(value))
            if (!write(each, inner, text)) return false;
        text += indent + "</array>\n";
        return true;
    }
    if ([value isKindOfClass:[NSDictionary class]]) {
        text += indent + "<dict>\n";
        for (id key in [[value allKeys] sortedArrayUsingSelector:@selector(compare:)]) {
            if (![key isKindOfClass:[NSString class]]) return false;
            text += inner + element("key", key);
            if (!write([value objectForKey:key], inner, text)) return false;
        }
        text += indent + "</dict>\n";
        return true;
    }
    const std::string leaf = leafElement(value);
    text += indent + leaf;
    return !leaf.empty();
}

BOOL writeToFile(id self, SEL, NSString* path, BOOL atomically) {
    return [propertyListAsXml(self) writeToFile:path atomically:atomically];
}

// GNUstep reads property lists of the binary form only when told to.

using InitWithFile = id (*)(id, SEL, NSString*);
InitWithFile initArrayFromText;
InitWithFile initDictionaryFromText;

// nil for a file that is not of the binary form, or damaged.
id binaryPropertyListIn(NSString* path) {
    NSData* file = [NSData dataWithContentsOfFile:path];
    const bool isBinary = [file length] >= 8 && std::memcmp([file bytes], "bplist00", 8) == 0;
    return isBinary ? propertyListIn(file) : nil;
}

id initArray(id self, SEL command, NSString* path) {
    id value = binaryPropertyListIn(path);
    if ([value isKindOfClass:[NSArray class]]) return [self initWithArray:value];
    return initArrayFromText(self, command, path);
}

id initDictionary(id self, SEL command, NSString* path) {
    id value = binaryPropertyListIn(path);
    if ([value isKindOfClass:[NSDictionary class]]) return [self initWithDictionary:value];
    return initDictionaryFromText(self, command, path);
}

__attribute__((constructor)) void useFilesAsTheDeviceDoes() {
    replaceMethod("NSArray", '-', "writeToFile:atomically:", writeToFile);
    replaceMethod("NSDictionary", '-', "writeToFile:atomically:", writeToFile);
    initArrayFromText = replaceMethod("NSArray", '-', "initWithContentsOfFile:", initArray);
    initDictionaryFromText = replaceMethod("NSDictionary", '-', "initWithContentsOfFile:", initDictionary);
}

} // namespace

NSData* propertyListAsXml(id value) {
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                       "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                       "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\">\n";
    if (!write(value, "", text)) return nil;
    text += "</plist>\n";
    return [NSData dataWithBytes:text.data() length:text.size()];
}

id propertyListIn(NSData* file) {
    @try {
        return [NSPropertyListSerialization propertyListWithData:file options:0 format:nullptr error:nullptr];
    } @catch (NSException*) {
        return nil; // GNUstep raises where the device answers with an error
    }
}

} // namespace simulator
