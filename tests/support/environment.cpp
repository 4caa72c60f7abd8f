#include "support/environment.h"

#include <cstdlib>

namespace simulator::test {
namespace {

std::string variableOr(const char* name, const char* builtIn) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : builtIn;
}

} // namespace

std::string configuration() { return TEST_CONFIGURATION; }
std::string libraryFile() { return variableOr("TEST_LIBRARY_FILE", TEST_LIBRARY_FILE); }
std::string hostProgram() { return variableOr("TEST_HOST_PROGRAM", TEST_HOST_PROGRAM); }
std::string emulator() { return variableOr("TEST_EMULATOR", TEST_EMULATOR); }
std::string deviceFiles() { return variableOr("TEST_DEVICE_FILES", TEST_DEVICE_FILES); }
std::string dataDirectory() { return variableOr("TEST_DATA_DIRECTORY", TEST_DATA_DIRECTORY); }

} // namespace simulator::test
