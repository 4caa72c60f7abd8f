// Where C++ exceptions end: Objective-C++ code on Linux cannot catch them, plain C++ can.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace simulator {

/// Runs `work`; returns what a std::exception that left it says.
std::optional<std::string> failureOf(const std::function<void()>& work);

} // namespace simulator
