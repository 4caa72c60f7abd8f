#include "frameworks/Hooking/InstallationLog.h"

namespace simulator {
namespace {

[[clang::no_destroy]] constinit std::vector<Installation> log;
thread_local bool libraryIsLoading = false;

} // namespace

const std::vector<Installation>& installationLog() { return log; }
void logInstallation(Installation installation) { log.push_back(std::move(installation)); }

void beginLoggingAddedMethods() { libraryIsLoading = true; }
void endLoggingAddedMethods() { libraryIsLoading = false; }
bool isLoggingAddedMethods() { return libraryIsLoading; }

void logAddedMethod(Class cls, SEL selector, IMP implementation, const char* types, bool added) {
    if (!libraryIsLoading) return;
    logInstallation({Installation::Kind::added, class_getName(cls), class_isMetaClass(cls) ? '+' : '-',
                     sel_getName(selector), types == nullptr ? "" : types,
                     reinterpret_cast<const void*>(implementation), nullptr, added});
}

} // namespace simulator
