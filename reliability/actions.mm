#include "actions.h"

#include "device/clock.h"
#include "device/json_objects.h"

#import "AppSupport/AppSupport.h"
#import "hosts/applications/camera/camera_app.h"

#include <stdexcept>

using namespace simulator;

namespace reliability {
namespace {

void editAlbums(World& world) {
    photos::openAlbumList();
    photos::setEditing(true);
    world.reload();
}

void press(World& world, const char* title, NSInteger tag) {
    UIView* button = world.button(title, tag);
    if (button == nil) throw std::runtime_error("there is no such button");
    tap(button);
}
void pressLock(World& world) { press(world, "Holidays", test::tag::lockButton); }

void answerPassword() {
    typeText(0, "secret");
    tapAlertAction("OK");
}

void moveAlbum(World& world, const char* direction) {
    press(world, "Holidays", test::tag::moveButton);
    tapAlertAction(direction);
}

void deleteHolidays(World& world) {
    photos::tapDeleteAlbum("Holidays");
    tapAlertAction("Delete Album");
    world.settle();
    photos::setEditing(false);
}

void removeFirstOfHolidays(World&) {
    photos::selectPhotos(onScreen<PUPhotosGridViewController>(), {0});
    tapBarButton("Delete");
    tapAlertAction("Remove from Album");
}

void pick(World&) {
    photos::selectPhotos(photos::openMoments(), {8});
    photos::addSelectionToAlbum();
}
void putIntoPets(const char* choice) {
    photos::tapAlbum("Pets");
    tapAlertAction(choice);
}

void capture(World& world) {
    camera::takePhoto();
    world.calmDown();
}
void chooseNewAlbum(World&) {
    tap([[camera::viewfinder() bottomBar] viewWithTag:77]);
    tapAlertAction("- Create new album -");
    typeText(0, "New");
    tapAlertAction("OK");
}

void share(World& world) {
    UISaveToCameraRollActivity* activity = [[[UISaveToCameraRollActivity alloc] init] autorelease];
    [activity prepareWithActivityItems:@[ [UIImage imageWithPixelSize:CGSizeMake(8, 6) seed:1] ]];
    [activity performActivity];
    world.settle();
    tapAlertAction("Pets");
}

Texts listed() {
    NSMutableArray* albums = [NSMutableArray array];
    for (NSNumber* type in @[ @1, @2 ])
        for (PHAssetCollection* each in [PHAssetCollection
                 fetchAssetCollectionsWithType:static_cast<PHAssetCollectionType>([type integerValue])
                                       subtype:PHAssetCollectionSubtypeAny
                                       options:nil])
            [albums addObject:each];
    Texts titles;
    for (PHCollection* each in [[PHCollectionList transientCollectionListWithCollections:albums
                                                                                   title:nil] collections])
        titles.push_back(text([each localizedTitle]));
    return titles;
}
void list(World&) { (void)listed(); }
bool listsAlbums(World&) { return !listed().empty(); }

void reloadSettings(World& world) { world.reloadPreferences({{"removeSearch", true}}); }
bool searchIsRemoved(World&) { return [photos::albumList() disallowsSearch] == YES; }

void sendList(World&) {
    CPDistributedMessagingCenter* centre = [CPDistributedMessagingCenter centerNamed:@"com.nrv.rollkeeper"];
    NSDictionary* request =
        @{@"id" : @"com.example",
          @"array" : @[ @"Holidays" ],
          @"path" : string(test::file::lockedAlbums)};
    [centre sendMessageName:@"savearray" userInfo:request];
}

const json byFinger = {{"passOption", 0}};
const json byPassword = {{"passOption", 1}};
const json withoutQuestion = {{"passOption", 2}};
const json movesShared = {{"saveActivityEnabled", true}, {"saveActivityMove", true}};
const json capturesIntoPets = {{"rememberDefault", true}, {"pickerMovePhotos", true}};

bool isLocked(World& world) { return world.isLocked("Holidays"); }
bool isUnlocked(World& world) { return !world.isLocked("Holidays"); }
bool hasOpened(World& world) { return world.hasOpenedAlbum(); }

} // namespace

// clang-format off
const std::vector<Action>& actions() {
    static const auto& all = *new std::vector<Action>{
        {.name = "lock by the button", .application = bundle::photos, .prepare = editAlbums, .perform = pressLock, .isDone = isLocked},
        {.name = "lock by a long press", .application = bundle::photos,
         .perform = [](World&) { longPress(photos::albumCell(photos::albumList(), "Holidays"), 1); }, .isDone = isLocked},
        {.name = "unlock by Touch ID", .application = bundle::photos, .preferences = byFinger, .locked = {"Holidays"},
         .prepare = editAlbums, .perform = pressLock, .isDone = isUnlocked},
        {.name = "unlock by password", .application = bundle::photos, .preferences = byPassword, .locked = {"Holidays"},
         .prepare = editAlbums, .perform = [](World& world) { pressLock(world); answerPassword(); }, .isDone = isUnlocked},
        {.name = "unlock without a question", .application = bundle::photos, .preferences = withoutQuestion, .locked = {"Holidays"},
         .prepare = editAlbums, .perform = pressLock, .isDone = isUnlocked},
        {.name = "open by Touch ID", .application = bundle::photos, .preferences = byFinger, .locked = {"Holidays"},
         .perform = [](World&) { photos::tapAlbum("Holidays"); }, .isDone = hasOpened},
        {.name = "move out", .application = bundle::photos, .prepare = editAlbums,
         .perform = [](World& world) { moveAlbum(world, "Move out of camera roll"); },
         .isDone = [](World& world) { return world.hiddenNumbers() == Numbers{0, 1, 2}; }},
        {.name = "copy back", .application = bundle::photos, .hidden = {0, 1, 2}, .prepare = editAlbums,
         .perform = [](World& world) { moveAlbum(world, "Copy to camera roll"); },
         .isDone = [](World& world) { return world.hiddenNumbers().empty(); }},
        {.name = "return all", .application = bundle::photos, .hidden = {0, 3, 6},
         .perform = [](World&) { tapBarButton("Reset"); tapAlertAction("Return all"); },
         .isDone = [](World& world) { return world.hiddenNumbers().empty(); }},
        {.name = "delete with orphans", .application = bundle::photos, .hidden = {0, 1, 2}, .prepare = editAlbums, .perform = deleteHolidays,
         .isDone = [](World& world) { return !world.library().albumTitled("Holidays") && world.hiddenNumbers().size() <= 1; }, // photo 2 is in another album, too
         .deletedAlbum = "Holidays"},
        {.name = "remove from an album", .application = bundle::photos, .hidden = {0, 1, 2},
         .prepare = [](World&) { photos::openAlbum("Holidays"); }, .perform = removeFirstOfHolidays,
         .isDone = [](World& world) { return world.numbersIn("Holidays").size() < 3; }},
        {.name = "pick by move", .application = bundle::photos, .prepare = pick, .perform = [](World&) { putIntoPets("Move"); },
         .isDone = [](World& world) { return world.numbersIn("Pets") == Numbers{8} && world.hiddenNumbers() == Numbers{8}; }},
        {.name = "pick by copy", .application = bundle::photos, .prepare = pick, .perform = [](World&) { putIntoPets("Copy"); },
         .isDone = [](World& world) { return world.numbersIn("Pets") == Numbers{8}; }},
        {.name = "reload the settings", .application = bundle::photos, .perform = reloadSettings, .isDone = searchIsRemoved},
        {.name = "list albums in Photos", .application = bundle::photos, .locked = {"Holidays"}, .perform = list, .isDone = listsAlbums},
        {.name = "list albums in Settings", .application = bundle::settings, .locked = {"Holidays"}, .perform = list, .isDone = listsAlbums},
        {.name = "list albums elsewhere", .application = bundle::plain, .locked = {"Holidays"}, .perform = list, .isDone = listsAlbums},
        {.name = "capture into an album", .application = bundle::camera, .preferences = capturesIntoPets, .perform = capture,
         .isDone = [](World& world) { return world.newestIsMovedTo("Pets"); }, .mayHideWithoutAdding = true},
        {.name = "capture into a new album", .application = bundle::camera, .preferences = capturesIntoPets,
         .perform = [](World& world) { chooseNewAlbum(world); capture(world); },
         .isDone = [](World& world) { return world.newestIsMovedTo("New"); }, .mayHideWithoutAdding = true},
        {.name = "share into an album", .application = bundle::plain, .preferences = movesShared, .perform = share,
         .isDone = [](World& world) { return world.newestIsMovedTo("Pets"); }, .mayHideWithoutAdding = true},
        {.name = "write a file", .application = bundle::springBoard, .perform = sendList, .isDone = isLocked},
        // Without anything to perform: what is tried is the load itself.
        {.name = "load in Photos", .application = bundle::photos},       {.name = "load in Camera", .application = bundle::camera},
        {.name = "load in SpringBoard", .application = bundle::springBoard}, {.name = "load in Settings", .application = bundle::settings},
        {.name = "load in Messenger", .application = bundle::messenger}, {.name = "load in WhatsApp", .application = bundle::whatsApp},
        {.name = "load in imgur", .application = bundle::imgur},         {.name = "load elsewhere", .application = bundle::plain},
    };
    return all;
}
// clang-format on

} // namespace reliability
