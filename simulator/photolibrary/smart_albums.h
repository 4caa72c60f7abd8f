// The smart albums of the system: collections whose members follow from a rule.
#pragma once

#include "device/releases.h"
#include "photolibrary/records.h"

#include <span>
#include <string_view>

namespace simulator {

struct SmartAlbum {
    std::int64_t subtype;
    const char* title;
    const char* rule; ///< an SQL condition over the table of assets
    int since;        ///< the first iOS release that has it, 1002 for 10.2
    /// Whether the album takes part in the usual rules that leave out hidden assets and those in the trash;
    /// its own rule says it all otherwise.
    bool leavesOutHidden = true;
    bool leavesOutTrashed = true;

    bool existsIn(Release release) const;
};

/// In the order in which fetches return them.
std::span<const SmartAlbum> smartAlbums();
/// nullptr for a subtype that the system does not know.
const SmartAlbum* smartAlbumOfSubtype(std::int64_t subtype);
const SmartAlbum* smartAlbumWithIdentifier(std::string_view identifier);
Collection collectionOf(const SmartAlbum& album);

} // namespace simulator
