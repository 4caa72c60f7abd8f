#include "photos/albumlist/content_view_at.h"

#include "platform/core_foundation.h"

namespace rollkeeper::albumList {

PUAlbumListCellContentView contentViewAt(PUAlbumListViewController list, NSIndexPath path, double newerThan) {
    const bool hasPrepared = list.respondsTo<"_preparedAlbumListCellContentViewAtIndexPath:">();
    const bool hasVisible = list.respondsTo<"visibleAlbumListCellContentViewAtIndexPath:">();
    const bool prefersPrepared = kCFCoreFoundationVersionNumber > newerThan;
    if (hasPrepared && (prefersPrepared || !hasVisible)) return list.preparedContentView(path);
    if (hasVisible) return list.visibleContentView(path);
    return PUAlbumListCellContentView();
}

} // namespace rollkeeper::albumList
