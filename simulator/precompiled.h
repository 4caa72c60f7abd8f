// What nearly every file of the simulator and the tests reads.
#pragma once

#ifdef __OBJC__
#import <Foundation/Foundation.h>
#endif

#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>
