#include "frameworks/Foundation/PropertyLists.h"

#include "frameworks/ObjectiveC/Replacement.h"

#include <cstring>
#include <initializer_list>
#include <string>

namespace simulator {
namespace {

bool isLeaf(id value) {
    for (Class leaf : {[NSString class], [NSNumber class], [NSDate class], [NSData class]})
        if ([value isKindOfClass:leaf]) return true;
    return false;
}

const char* entityFor(char letter) {
    switch (letter) {
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '&':
        return "&amp;";
    default:
        return nullptr;
    }
}

std::string escaped(NSString* text) {
    NSData* bytes = [text dataUsingEncoding:NSUTF8StringEncoding];
    std::string result;
    for (const char letter : std::string_view(static_cast<const char*>([bytes bytes]), [bytes length]))
        if (const char* entity = entityFor(letter))
            result += entity;
        else
            result += letter;
    return result;
}

std::string element(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">\n";
}

std::string numberElement(NSNumber* number) {
    if (number == [NSNumber numberWithBool:YES]) return "<true/>\n";
    if (number == [NSNumber numberWithBool:NO]) return "<false/>\n";
    const bool isReal = std::strchr("df", *[number objCType]) != nullptr;
    return element(isReal ? "real" : "integer", escaped([number stringValue]));
}

std::string leafElement(id value) {
    if ([value isKindOfClass:[NSString class]]) return element("string", escaped(value));
    if ([value isKindOfClass:[NSNumber class]]) return numberElement(value);
    if ([value isKindOfClass:[NSData class]])
        return element("data", escaped([value base64EncodedStringWithOptions:0]));
    NSString* date = [value descriptionWithCalendarFormat:@"%Y-%m-%dT%H:%M:%SZ"
                                                 timeZone:[NSTimeZone timeZoneWithName:@"UTC"]
                                                   locale:nil];
    return element("date", escaped(date));
}

std::string elementFor(id value, const std::string& indent) {
    const std::string inner = indent + "\t";
    if ([value isKindOfClass:[NSArray class]]) {
        std::string text = indent + "<array>\n";
        for (id each in static_cast<NSArray*>(value))
            text += elementFor(each, inner);
        return text + indent + "</array>\n";
    }
    if ([value isKindOfClass:[NSDictionary class]]) {
        std::string text = indent + "<dict>\n";
        for (NSString* key in [[value allKeys] sortedArrayUsingSelector:@selector(compare:)])
            text += inner + element("key", escaped(key)) + elementFor([value objectForKey:key], inner);
        return text + indent + "</dict>\n";
    }
    return indent + leafElement(value);
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
    NSData* bytes = [NSData dataWithContentsOfFile:path];
    if ([bytes length] < 8 || std::memcmp([bytes bytes], "bplist00", 8) != 0) return nil;
    @try {
        return [NSPropertyListSerialization propertyListWithData:bytes
                                                         options:0
                                                          format:nullptr
                                                           error:nullptr];
    } @catch (NSException*) {
        return nil; // GNUstep raises where the device answers with an error
    }
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

bool isPropertyList(id value) {
    if ([value isKindOfClass:[NSArray class]]) {
        for (id each in static_cast<NSArray*>(value))
            if (!isPropertyList(each)) return false;
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

NSData* propertyListAsXml(id value) {
    if (!isPropertyList(value)) return nil;
    const std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                             "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                             "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                             "<plist version=\"1.0\">\n" +
                             elementFor(value, "") + "</plist>\n";
    return [NSData dataWithBytes:text.data() length:text.size()];
}

} // namespace simulator
