#include <exception>
#include <functional>
#include <string>

namespace simulator::test {

std::string errorOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const std::exception& error) {
        return error.what();
    }
    return "";
}

} // namespace simulator::test
