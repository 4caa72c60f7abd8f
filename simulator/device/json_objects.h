// JSON as Foundation's objects and back: how tests, tools and the control socket speak of property lists.
#pragma once

#import <Foundation/Foundation.h>

#include <nlohmann/json_fwd.hpp>

namespace simulator {

// Autoreleased. Throws std::invalid_argument for null, which has no counterpart, and for text that is no
// UTF-8.
id objectFromJson(const nlohmann::json& value);

// Null for nil. Throws std::invalid_argument for dates, data and what is no property list.
nlohmann::json jsonFromObject(id value);

} // namespace simulator
