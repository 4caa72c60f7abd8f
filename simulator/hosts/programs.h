// What a program is told that starts host applications: the files that they are made of.
#pragma once

#include <filesystem>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace simulator {

struct Programs {
    std::filesystem::path host;
    std::filesystem::path library;
    std::filesystem::path deviceFiles; // what the package installs, as a tree
    std::vector<std::string> emulator; // the command that runs the host, empty for none

    // Whether the option was one of these: --host, --library, --device-files, --emulator.
    bool take(const std::string& option, const std::string& value) {
        if (option == "--host") {
            host = std::filesystem::absolute(value);
        } else if (option == "--library") {
            library = std::filesystem::absolute(value);
        } else if (option == "--device-files") {
            deviceFiles = std::filesystem::absolute(value);
        } else if (option == "--emulator") {
            std::istringstream words(value);
            emulator = {std::istream_iterator<std::string>(words), {}};
        } else {
            return false;
        }
        return true;
    }
};

} // namespace simulator
