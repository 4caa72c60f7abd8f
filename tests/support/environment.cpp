#include "support/environment.h"

namespace simulator::test {

std::string configuration() { return TEST_CONFIGURATION; }
std::string libraryFile() { return TEST_LIBRARY_FILE; }
std::string hostProgram() { return TEST_HOST_PROGRAM; }
std::string emulator() { return TEST_EMULATOR; }
std::string deviceFiles() { return TEST_DEVICE_FILES; }
std::string dataDirectory() { return TEST_DATA_DIRECTORY; }

} // namespace simulator::test
