#include "device/device.h"

#import <Foundation/Foundation.h>

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace simulator {
namespace {

using nlohmann::json;

NSString* toString(const std::string& text) {
    NSString* made = [[[NSString alloc] initWithBytes:text.data()
                                               length:text.size()
                                             encoding:NSUTF8StringEncoding] autorelease];
    if (made == nil) throw std::invalid_argument("a text is no UTF-8");
    return made;
}

id toPropertyList(const json& value) {
    if (value.is_string()) return toString(value.get<std::string>());
    if (value.is_boolean()) return [NSNumber numberWithBool:value.get<bool>() ? YES : NO];
    if (value.is_number_integer()) return [NSNumber numberWithLongLong:value.get<long long>()];
    if (value.is_number_float()) return [NSNumber numberWithDouble:value.get<double>()];
    if (value.is_array()) {
        NSMutableArray* array = [NSMutableArray array];
        for (const json& element : value)
            [array addObject:toPropertyList(element)];
        return array;
    }
    if (value.is_object()) {
        NSMutableDictionary* dictionary = [NSMutableDictionary dictionary];
        for (const auto& [key, element] : value.items())
            [dictionary setObject:toPropertyList(element) forKey:toString(key)];
        return dictionary;
    }
    throw std::invalid_argument("a property list cannot hold " + value.dump());
}

json toJsonValue(id value) {
    if ([value isKindOfClass:[NSString class]]) return [value UTF8String];
    if ([value isKindOfClass:[NSNumber class]]) {
        const char type = *[value objCType];
        if (value == [NSNumber numberWithBool:YES] || value == [NSNumber numberWithBool:NO])
            return static_cast<bool>([value boolValue]);
        return type == 'd' || type == 'f' ? json([value doubleValue]) : json([value longLongValue]);
    }
    if ([value isKindOfClass:[NSArray class]]) {
        json array = json::array();
        for (id element in static_cast<NSArray*>(value))
            array.push_back(toJsonValue(element));
        return array;
    }
    if ([value isKindOfClass:[NSDictionary class]]) {
        json object = json::object();
        for (NSString* key in static_cast<NSDictionary*>(value))
            object[[key UTF8String]] = toJsonValue([value objectForKey:key]);
        return object;
    }
    throw std::invalid_argument(std::string("JSON cannot hold a ") +
                                [[[value class] description] UTF8String]);
}

// Never half a file: others may read at any time.
void writeAtomically(const std::filesystem::path& file, std::string_view bytes) {
    std::filesystem::create_directories(file.parent_path());
    const std::filesystem::path draft = file.string() + ".new";
    {
        std::ofstream stream(draft, std::ios::binary);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!stream.flush()) throw std::runtime_error("cannot write " + file.string());
    }
    std::filesystem::rename(draft, file);
}

std::string contentsOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error("cannot read " + file.string());
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

Device Device::create(const std::filesystem::path& folder) {
    Device device(std::filesystem::absolute(folder).lexically_normal());
    for (const char* path : {"var/mobile/Library/Preferences", "var/mobile/Media", "var/tmp", "private",
                             "Library", "System/Library", "Applications"})
        std::filesystem::create_directories(device.root() / path);
    std::filesystem::create_directories(device.runFolder());
    if (!std::filesystem::exists(device.root() / "private/var"))
        std::filesystem::create_directory_symlink("../var", device.root() / "private/var");
    if (!std::filesystem::exists(device.conditionsFile())) device.setConditions({});
    return device;
}

Device Device::open(const std::filesystem::path& folder) {
    Device device(std::filesystem::absolute(folder).lexically_normal());
    if (!std::filesystem::exists(device.conditionsFile()))
        throw std::invalid_argument(folder.string() + " is no device");
    return device;
}

std::filesystem::path Device::onDesk(std::string_view devicePath) const {
    return root() / std::filesystem::path(devicePath).relative_path();
}

Conditions Device::conditions() const {
    return conditionsFromJson(json::parse(contentsOf(conditionsFile())));
}

void Device::setConditions(const Conditions& conditions) const {
    writeAtomically(conditionsFile(), toJson(conditions).dump(2) + "\n");
}

void Device::changeConditions(const std::function<void(Conditions&)>& change) const {
    Conditions conditions = this->conditions();
    change(conditions);
    setConditions(conditions);
}

void Device::writePropertyList(std::string_view devicePath, const json& value) const {
    @autoreleasepool {
        NSString* problem = nil;
        NSData* data = [NSPropertyListSerialization dataFromPropertyList:toPropertyList(value)
                                                                  format:NSPropertyListXMLFormat_v1_0
                                                        errorDescription:&problem];
        if (data == nil) throw std::invalid_argument([problem UTF8String]);
        writeFile(devicePath, {static_cast<const char*>([data bytes]), [data length]});
    }
}

json Device::readPropertyList(std::string_view devicePath) const {
    const std::string bytes = readFile(devicePath);
    @autoreleasepool {
        NSPropertyListFormat format{};
        NSString* problem = nil;
        id value = [NSPropertyListSerialization propertyListFromData:[NSData dataWithBytes:bytes.data()
                                                                                    length:bytes.size()]
                                                    mutabilityOption:NSPropertyListImmutable
                                                              format:&format
                                                    errorDescription:&problem];
        if (value == nil) throw std::invalid_argument(std::string(devicePath) + " is no property list");
        return toJsonValue(value);
    }
}

void Device::writeFile(std::string_view devicePath, std::string_view bytes) const {
    writeAtomically(onDesk(devicePath), bytes);
}

std::string Device::readFile(std::string_view devicePath) const { return contentsOf(onDesk(devicePath)); }
bool Device::exists(std::string_view devicePath) const { return std::filesystem::exists(onDesk(devicePath)); }
void Device::remove(std::string_view devicePath) const { std::filesystem::remove_all(onDesk(devicePath)); }

} // namespace simulator
