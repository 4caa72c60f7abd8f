// Whether SpringBoard writes files for others: proved by having it write a random token into a file beside
// the state files, none of which is touched. Main thread.
#pragma once

#include "platform/foundation.h"

namespace rollkeeper::pane::serviceProbe {

// Asks for a file with a new token, which is the result; nil when this process has no means to ask.
NSString ask();

// Whether the file holds the token by now. Then it is deleted.
bool isAnswered(NSString token);

} // namespace rollkeeper::pane::serviceProbe
