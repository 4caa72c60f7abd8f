/// What a user sees in Messenger's two album lists. Main thread; the running application must be it.
#pragma once

#import "hosts/applications/messenger/Messenger.h"

#include <nlohmann/json.hpp>

namespace simulator::messenger {

MessengerApplication* application();

/// The composer's picker: like describePicker(); an album that the data source does not hand out is null.
nlohmann::json listComposer();

/// The montage's rows: [{"title": "Holidays", "preview": identifier or null, "opens": true or false}].
nlohmann::json listMontage();

/// {"do": "listPicker"} answers {"composer": [...], "montage": [...]}.
void addVerbs();

} // namespace simulator::messenger
