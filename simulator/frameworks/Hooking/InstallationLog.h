// What a loaded library did to the classes of its host, in order: replacements through the hooking function
// and methods added through the runtime.
#pragma once

#include <objc/runtime.h>

#include <string>
#include <vector>

namespace simulator {

struct Installation {
    enum class Kind { replaced, added };

    Kind kind;
    std::string className; // empty for a nil class
    char methodKind;       // '-' instance method, '+' class method
    std::string selector;
    std::string encoding; // of the method replaced, or given for the method added
    const void* implementation;
    const void* slot; // where the original goes; null for an added method
    bool installed;   // false: class or method missing, or already there when added

    bool operator==(const Installation&) const = default;
};

// The log of this process: everything the hooking function was asked for, and methods added while a library
// loads.
const std::vector<Installation>& installationLog();
void logInstallation(Installation installation);

// Between the two calls methods that the calling thread adds are logged as well.
void beginLoggingAddedMethods();
void endLoggingAddedMethods();
bool isLoggingAddedMethods();
void logAddedMethod(Class cls, SEL selector, IMP implementation, const char* types, bool added);

} // namespace simulator
