// The two initialisers that the dynamic loader runs, in this order, on the loading thread and before the
// host's own code. They stand in one file so that their order is certain.

#include "capture/selected_album.h"
#include "common/album_cell.h"
#include "common/process_identity.h"
#include "objc/autorelease_pool.h"
#include "platform/core_foundation.h"
#include "settings/loader.h"
#include "settings/settings.h"
#include "startup/flow_layout.h"
#include "startup/install.h"
#include "state/paths.h"

namespace rollkeeper {

namespace {

constexpr CGFloat initialCellFontSize = 15;

void createStateFolder() {
    const NSFileManager files = NSFileManager::defaultManager();
    if (!files.fileExistsAtPath(path::stateFolderFromRoot()))
        files.createDirectoryAtPath(path::stateFolderFromRoot());
}

struct HostGroup {
    NSString (*bundleIdentifier)();
    HookGroup group;
    void (*prepare)(); // before the group's rows; may be null
};

constexpr HostGroup hostGroups[] = {
    {bundle::camera, HookGroup::camera, camera::chooseInitialAlbum},
    {bundle::photos, HookGroup::photos, nullptr},
    {bundle::messenger, HookGroup::messenger, nullptr},
    {bundle::whatsApp, HookGroup::whatsApp, nullptr},
    {bundle::imgur, HookGroup::imgur, nullptr},
    {bundle::springBoard, HookGroup::springBoard, createStateFolder},
};

void installHostGroup() {
    for (const HostGroup& host : hostGroups) {
        if (!isProcess(host.bundleIdentifier())) continue;
        if (host.prepare) host.prepare();
        install(host.group);
        return;
    }
}

// The later replacements of a method stack on those of the host's own group: in WhatsApp and imgur one method
// has two.
void installSharedGroups() {
    if (isProcess(bundle::jolly())) return;
    install(HookGroup::everywhere);
    if (kCFCoreFoundationVersionNumber >= coreFoundationVersion::ios10)
        install(HookGroup::everywhereFromIos10);
}

void installAlbumsScreen() {
    if (isProcess(bundle::photos()) && kCFCoreFoundationVersionNumber >= coreFoundationVersion::ios12)
        install(HookGroup::albumsScreen);
}

[[gnu::constructor]] void initialise() {
    const AutoreleasePool pool;
    settings::load();
    settings::observeReloads();
    registerFlowLayout();
    if (!settings::enabled) return;
    installHostGroup();
    installSharedGroups();
    installAlbumsScreen();
}

[[gnu::constructor]] void initialiseLayoutValues() {
    const AutoreleasePool pool;
    albumCellHeight = albumCellWidth;
    albumCellFont.set(UIFont::systemFontOfSize(initialCellFontSize));
}

} // namespace
} // namespace rollkeeper
