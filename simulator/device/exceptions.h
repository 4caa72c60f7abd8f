// Catching the two kinds of exception. Objective-C++ code on Linux catches Foundation's alone and C++ code
// the standard library's alone, so each kind is caught in a file of its language; both pass through either.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace simulator {

// "NAME: REASON" of the Foundation exception that leaves `work`.
std::optional<std::string> foundationExceptionOf(const std::function<void()>& work);

// The message of the C++ exception that leaves `work`.
std::optional<std::string> standardExceptionOf(const std::function<void()>& work);

// Of either kind.
std::optional<std::string> anyExceptionOf(const std::function<void()>& work);

} // namespace simulator
