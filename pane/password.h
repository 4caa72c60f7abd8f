// The password that opens locked albums: a file that holds nothing but the password, as UTF-8.
#pragma once

#include "platform/foundation.h"

namespace rollkeeper::pane::password {

enum class Outcome { done, wrongOldPassword, repeatedDifferently, empty, notWritten };

// As the library sees it: a file that cannot be read is no password.
bool isSet();

// Sets the first password, or a new one in place of `old`, which is not looked at while there is none.
Outcome set(NSString old, NSString fresh, NSString repeated);
Outcome remove(NSString old);

} // namespace rollkeeper::pane::password
