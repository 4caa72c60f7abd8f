// The one way to write a state file: SpringBoard writes it on the sender's behalf.
#pragma once

#include "platform/foundation.h"

namespace rollkeeper {

// Asks SpringBoard to replace the file at the absolute `path` by `array`. Returns at once; nothing comes
// back, and the request is lost when SpringBoard does not serve. Without an array the request is sent and
// writes nothing.
void saveArray(NSArray array, NSString path);

} // namespace rollkeeper
