// The smart albums of the system: collections whose members follow from a rule.
#pragma once

#include "device/releases.h"
#include "photolibrary/records.h"

namespace simulator {

struct SmartAlbum {
    std::int64_t subtype;
    const char* title;
    const char* rule; ///< an SQL condition over the table of assets
    Release since;    ///< the first release that has it
    /// Whether the album takes part in the usual rules that leave out hidden assets and those in the trash;
    /// its own rule says it all otherwise.
    bool leavesOutHidden = true;
    bool leavesOutTrashed = true;
};

/// Those that the device's release has, in the order in which fetches return them.
Collections smartAlbums();
/// Throws std::out_of_range for a subtype that the system does not know.
const SmartAlbum& smartAlbumOfSubtype(std::int64_t subtype);

} // namespace simulator
