#include "frameworks/Hooking/InstallationLog.h"

#include "frameworks/Hooking/AddedMethods.h"

namespace simulator {
namespace {

std::vector<Installation>& log() {
    static auto* shared = new std::vector<Installation>;
    return *shared;
}

thread_local bool libraryIsLoading = false;

} // namespace

const std::vector<Installation>& installationLog() { return log(); }
void clearInstallationLog() { log().clear(); }
void logInstallation(Installation installation) { log().push_back(std::move(installation)); }

void beginLoggingAddedMethods() { libraryIsLoading = true; }
void endLoggingAddedMethods() { libraryIsLoading = false; }

void logAddedMethod(Class cls, SEL selector, IMP implementation, const char* types, bool added) {
    if (!libraryIsLoading) return;
    logInstallation({Installation::Kind::added, class_getName(cls), class_isMetaClass(cls) ? '+' : '-',
                     sel_getName(selector), types == nullptr ? "" : types,
                     reinterpret_cast<const void*>(implementation), nullptr, added});
}

} // namespace simulator
