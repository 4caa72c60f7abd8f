// The pane's own folder, and its texts.
#pragma once

#include "platform/foundation.h"

namespace rollkeeper::pane {

// The framework would look in the application's folder, because it knows no folder of classes that are made
// at run time.
NSBundle bundle();

// The text of a key in the user's language; a key without a text is returned as it is.
NSString text(NSString key);

} // namespace rollkeeper::pane
