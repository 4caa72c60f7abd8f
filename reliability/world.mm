#include "world.h"

#include "device/clock.h"

#import "AppSupport/AppSupport.h"

#include <algorithm>

using namespace simulator;

static NSString* const markName = @"mark";
static bool markHasCome = false;

// Writes as SpringBoard does.
@interface FileWriter : NSObject
@end

@implementation FileWriter

- (id)handle:(NSString*)name withUserInfo:(NSDictionary*)info {
    if ([name isEqualToString:markName])
        markHasCome = true;
    else
        [[info objectForKey:@"array"] writeToFile:[info objectForKey:@"path"] atomically:YES];
    return nil;
}

@end

namespace reliability {
namespace {

constexpr std::size_t samplePhotos = 10;
constexpr Screen smallScreen = {.width = 320, .height = 300}; // few cells: each costs a hundred calls
const struct {
    const char* title;
    Numbers photos;
} sampleAlbums[] = {{"Holidays", {0, 1, 2}}, {"Family", {2, 3, 4, 5}}, {"Work", {6}}, {"Pets", {}}};

CPDistributedMessagingCenter* center() {
    return [CPDistributedMessagingCenter centerNamed:@"com.nrv.rollkeeper"];
}

} // namespace

World::World(const Action& action) : m_action(action) {
    writePreferences(action.preferences);
    device().writeFile(test::file::password, "secret");
    device().writePropertyList(test::file::cameraAlbum, {"Pets"});
    lockAlbums(action.locked);
    useManualClock();
    change([](Conditions& conditions) { conditions.screen = smallScreen; });
    start(action.application);
    if (action.application == std::string(bundle::springBoard)) return;
    static FileWriter* writer = [FileWriter new];
    [center() runServerOnCurrentThread];
    for (NSString* name in @[ @"savearray", markName ])
        [center() registerForMessageName:name target:writer selector:@selector(handle:withUserInfo:)];
}

void World::restoreLibrary() {
    Change change;
    for (const Collection& each : library().collections(CollectionKind::album))
        change.add(Change::DeleteCollection{each.identifier});
    const Assets all = library().assets({.includeHidden = true});
    for (std::size_t number = 0; number < all.size(); ++number) {
        if (number >= samplePhotos) {
            change.add(Change::DeleteAsset{all[number].identifier});
            change.add(Change::DeleteAsset{all[number].identifier});
            continue;
        }
        const bool hides = std::ranges::find(m_action.hidden, number) != m_action.hidden.end();
        change.add(Change::EditAsset{.asset = all[number].identifier, .hidden = hides, .trashed = false});
    }
    for (const auto& [title, photos] : sampleAlbums) {
        Identifiers members;
        for (const std::size_t number : photos)
            members.push_back(all.at(number).identifier);
        change.add(Change::AddMembers{change.addAlbum(title), members});
    }
    library().apply(change);
}

void World::returnToStart() {
    UIViewController* root = [[[UIApplication sharedApplication] keyWindow] rootViewController];
    [root dismissViewControllerAnimated:NO completion:nil];
    for (UIView* banner : banners())
        [banner removeFromSuperview];
    if (m_action.application == std::string(bundle::photos)) {
        for (UINavigationController* each in [photos::library() viewControllers]) {
            [each popToRootViewControllerAnimated:NO];
            [[each topViewController] setEditing:NO animated:NO];
        }
        photos::openAlbumList();
    }
    m_action.prepare(*this);
    settle();
}

void World::reset() {
    restoreLibrary();
    lockAlbums(m_action.locked);
    returnToStart();
}

// The mark comes behind every request. It is refused while the library has not opened the centre, and so were
// they.
void World::waitForFiles() {
    if (m_action.application == std::string(bundle::springBoard)) return Host::spin(0.02);
    markHasCome = ![center() sendMessageName:markName userInfo:nil];
    waitFor([] { return markHasCome; });
}

void World::calmDown() {
    settle();
    simulator::clock().advance(3);
    settle();
    waitForFiles();
}

bool World::isLocked(const std::string& title) {
    const auto titles = lockedAlbums().value_or(Texts());
    return std::ranges::find(titles, title) != titles.end();
}

bool World::newestIsMovedTo(const std::string& title) {
    const std::size_t newest = library().assets({.includeHidden = true}).size() - 1;
    const Numbers held = numbersIn(title), hidden = hiddenNumbers();
    return newest >= samplePhotos && std::ranges::find(held, newest) != held.end() &&
           std::ranges::find(hidden, newest) != hidden.end();
}

std::size_t World::ownersOfScreens() {
    std::size_t owners = [[[UIApplication sharedApplication] keyWindow] retainCount];
    UIViewController* root = [[[UIApplication sharedApplication] keyWindow] rootViewController];
    owners += [root retainCount];
    if (m_action.application != std::string(bundle::photos)) return owners;
    for (UINavigationController* each in [photos::library() viewControllers])
        owners += [each retainCount] + [[[each viewControllers] firstObject] retainCount];
    return owners;
}

std::optional<std::string> World::damage(std::size_t& leftOpen) {
    const Assets all = library().assets({.includeHidden = true});
    if (all.size() < samplePhotos) return "a photo is gone";
    for (const auto& [title, photos] : sampleAlbums) {
        const bool isDeleted =
            m_action.deletedAlbum != nullptr && title == std::string(m_action.deletedAlbum);
        if (!isDeleted && !library().albumTitled(title)) return std::string("the album is gone: ") + title;
    }
    for (const Asset& each : all) {
        if (!each.hidden || !library().albumsContaining(each.identifier).empty()) continue;
        if (!m_action.mayHideWithoutAdding) return "a photo is hidden and in no album";
        ++leftOpen;
    }
    if (device().exists(test::file::lockedAlbums)) {
        const json titles = device().readPropertyList(test::file::lockedAlbums);
        if (!titles.is_array()) return "the list of locked albums is no list";
    }
    if (device().readFile(test::file::password) != "secret") return "the password has changed";
    return std::nullopt;
}

} // namespace reliability
