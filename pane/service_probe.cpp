#include "service_probe.h"

#include "state/paths.h"
#include "state/save_array.h"

// Weak here alone: the pane is to load, and to tell, where that library is missing.
extern "C" [[gnu::weak]] void rocketbootstrap_distributedmessagingcenter_apply(rollkeeper::id center);

namespace rollkeeper::pane::serviceProbe {

namespace {

bool canAsk() {
    return classNamed<"CPDistributedMessagingCenter">() &&
           &rocketbootstrap_distributedmessagingcenter_apply != nullptr;
}

void removeFile() { NSFileManager::defaultManager().removeItemAtPath(path::probe()); }

} // namespace

NSString ask() {
    if (!canAsk()) return NSString();
    removeFile(); // an answer that came when nobody waited for it any more
    const NSString token = NSUUID::UUID().UUIDString();
    saveArray(NSArray::arrayWithObject(token), path::probe());
    return token;
}

bool isAnswered(NSString token) {
    const Owner<NSMutableArray> written = NSMutableArray::withContentsOfFile(path::probe());
    if (!written->containsObject(token)) return false;
    removeFile();
    return true;
}

} // namespace rollkeeper::pane::serviceProbe
