#include "frameworks/Photos/LibraryErrors.h"

#include <exception>

namespace simulator {

std::optional<std::string> failureOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const std::exception& error) {
        return error.what();
    }
    return std::nullopt;
}

} // namespace simulator
