#include "device/exceptions.h"

#include <exception>

namespace simulator {

std::optional<std::string> standardExceptionOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const std::exception& error) {
        return error.what();
    }
    return std::nullopt;
}

std::optional<std::string> anyExceptionOf(const std::function<void()>& work) {
    std::optional<std::string> raised;
    const auto thrown = standardExceptionOf([&] { raised = foundationExceptionOf(work); });
    return thrown ? thrown : raised;
}

} // namespace simulator
