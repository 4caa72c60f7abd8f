#include "device/json_objects.h"

#include "device/strings.h"

#include <nlohmann/json.hpp>

#include <cstring>
#include <stdexcept>
#include <string>

namespace simulator {

using nlohmann::json;

id objectFromJson(const json& value) {
    if (value.is_string()) {
        if (NSString* text = simulator::string(value.get<std::string>())) return text;
        throw std::invalid_argument("a text is no UTF-8");
    }
    if (value.is_boolean()) return [NSNumber numberWithBool:value.get<bool>() ? YES : NO];
    if (value.is_number_integer()) return [NSNumber numberWithLongLong:value.get<long long>()];
    if (value.is_number_float()) return [NSNumber numberWithDouble:value.get<double>()];
    if (value.is_array()) {
        NSMutableArray* array = [NSMutableArray array];
        for (const json& element : value)
            [array addObject:objectFromJson(element)];
        return array;
    }
    if (value.is_object()) {
        NSMutableDictionary* dictionary = [NSMutableDictionary dictionary];
        for (const auto& [key, element] : value.items())
            [dictionary setObject:objectFromJson(element) forKey:objectFromJson(key)];
        return dictionary;
    }
    throw std::invalid_argument("a property list cannot hold " + value.dump());
}

json jsonFromObject(id value) {
    if (value == nil) return nullptr;
    if ([value isKindOfClass:[NSString class]]) return [value UTF8String];
    if ([value isKindOfClass:[NSNumber class]]) {
        if (value == [NSNumber numberWithBool:YES] || value == [NSNumber numberWithBool:NO])
            return static_cast<bool>([value boolValue]);
        const bool isReal = std::strchr("df", *[value objCType]) != nullptr;
        return isReal ? json([value doubleValue]) : json([value longLongValue]);
    }
    if ([value isKindOfClass:[NSArray class]]) {
        json array = json::array();
        for (id element in static_cast<NSArray*>(value))
            array.push_back(jsonFromObject(element));
        return array;
    }
    if ([value isKindOfClass:[NSDictionary class]]) {
        json object = json::object();
        for (NSString* key in static_cast<NSDictionary*>(value))
            object[[key UTF8String]] = jsonFromObject([value objectForKey:key]);
        return object;
    }
    throw std::invalid_argument(std::string("JSON cannot hold a ") +
                                [[[value class] description] UTF8String]);
}

} // namespace simulator
