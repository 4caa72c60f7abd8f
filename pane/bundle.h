// The pane's own folder, and its texts.
#pragma once

#include "platform/foundation.h"

namespace rollkeeper::pane {

// The framework would look in the application's folder, because it knows no folder of classes that are made
// at run time.
NSBundle bundle();

// The path of a file of the pane.
NSString fileInBundle(NSString name);

// The name of the property list of the pane's first page; its rows name those of the others.
NSString firstPage();

// The text of a key in the user's language; a key without a text is returned as it is.
NSString text(NSString key);

} // namespace rollkeeper::pane
