/// What a user does in Settings. Main thread; the running application must be it. What is not on the screen
/// as an action needs it throws std::runtime_error.
#pragma once

#import "hosts/applications/settings/PreferencesAppController.h"

#include <nlohmann/json.hpp>

#include <string>

namespace simulator::settings {

/// Opens the list of albums for a new wallpaper and lists it, see describePicker().
nlohmann::json listWallpapers();

/// The pane on the screen.
PSListController* pane();

/// Goes back to the list of Settings and taps the row of an installed tool.
void openEntry(const std::string& label);

/// The groups and rows of a pane: [{"group": title, "footer": text}, {"label": "Enabled", "cell":
/// "PSSwitchCell", "key": key, "value": number, text or null}]. Texts that there are not are empty.
nlohmann::json describePane(PSListController* pane);

/// Turns the switch of a row on or off.
void setControl(const std::string& label, bool on);

/// Taps a row: opens its pane, chooses a value in a list of values, or presses a button.
void tapRow(const std::string& label);

/// {"do": "listPicker"}, "openEntry" {"label"}, "setControl" {"label", "value"}, "tapRow" {"label"}.
void addVerbs();

} // namespace simulator::settings
