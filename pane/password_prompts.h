// The alerts in which the user types passwords.
#pragma once

#include "preferences.h"

namespace rollkeeper::pane {

enum class PasswordPrompt { set, change, remove };

// Asks for what the change needs (the old password first), carries it out, and says so when it was not.
void promptForPassword(PSListController page, PasswordPrompt prompt);

} // namespace rollkeeper::pane
