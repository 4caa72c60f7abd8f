// Alerts of the pane, in the user's language.
#pragma once

#include "preferences.h"

namespace rollkeeper::pane {

// Shows a title and a message, both by their keys, until the user taps OK.
void showAlert(UIViewController page, NSString titleKey, NSString messageKey);

} // namespace rollkeeper::pane
