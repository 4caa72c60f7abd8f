#include "password.h"

#include "state/paths.h"

namespace rollkeeper::pane::password {

namespace {

NSString stored() { return NSString::stringWithContentsOfFile(path::password(), NSStringEncoding::utf8); }

bool isRight(NSString old) {
    const NSString present = stored();
    return !present || present.isEqualToString(old);
}

// SpringBoard makes the folder only when it has loaded the library.
void createFolder() { NSFileManager::defaultManager().createDirectoryAtPath(path::stateFolder()); }

} // namespace

bool isSet() { return static_cast<bool>(stored()); }

Outcome set(NSString old, NSString fresh, NSString repeated) {
    if (!isRight(old)) return Outcome::wrongOldPassword;
    if (fresh.length() == 0) return Outcome::empty;
    if (!fresh.isEqualToString(repeated)) return Outcome::repeatedDifferently;
    createFolder();
    const bool written = fresh.writeToFile(path::password(), true, NSStringEncoding::utf8);
    return written ? Outcome::done : Outcome::notWritten;
}

Outcome remove(NSString old) {
    if (!isRight(old)) return Outcome::wrongOldPassword;
    const bool removed = NSFileManager::defaultManager().removeItemAtPath(path::password());
    return removed ? Outcome::done : Outcome::notWritten;
}

} // namespace rollkeeper::pane::password
