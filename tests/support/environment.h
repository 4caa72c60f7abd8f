#pragma once

#include <string>

/// Where a test finds what it loads and starts, as the build says.
namespace simulator::test {

/// "sanitize", "release", "tsan" or "arm64".
std::string configuration();
/// The library under test: an ELF shared object, or the phone's Mach-O file in the arm64 configuration.
std::string libraryFile();
/// The program that runs one host application as a process of its own.
std::string hostProgram();
/// The command that must precede a program of this build to run it, with its arguments, separated by blanks;
/// empty when programs run as they are.
std::string emulator();
/// The tree of files that the package installs.
std::string deviceFiles();
/// The folder tests/data.
std::string dataDirectory();

} // namespace simulator::test
