#include "damage.h"

#include "device/clock.h"
#include "device/json_objects.h"
#include "device/strings.h"
#include "hosts/applications/bundle_identifiers.h"
#include "hosts/host.h"
#include "photolibrary/library.h"

#import "AppSupport/AppSupport.h"
#import "CoreFoundation/CoreFoundation.h"
#import "Foundation/PropertyLists.h"
#import "UIKit/ViewTree.h"
#import "hosts/applications/camera/camera_app.h"
#import "hosts/applications/photos/photos_app.h"
#import "hosts/applications/settings/settings_app.h"

#import <objc/runtime.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

// Methods that the library adds.
@interface NSObject (AddedByTheLibrary)
- (void)reloadCameraRollWithMove:(BOOL)move;
- (void)lockAlbum;
- (void)askToMoveAlbum;
- (void)requestPassword:(int)purpose;
- (void)chooseAlbum;
- (id)handleMessageNamed:(NSString*)name withUserInfo:(NSDictionary*)userInfo;
@end

static id selection;
static NSString* handedTitle;
static NSInteger handedType;

// A collection of a class that the platform does not have; an empty one to a fetch of assets.
@interface StrangeCollection : NSObject
@end
@implementation StrangeCollection
- (NSInteger)assetCollectionType {
    return handedType % 5;
}
- (NSInteger)assetCollectionSubtype {
    return 200 + handedType % 19;
}
- (NSString*)title {
    return handedTitle;
}
- (NSArray*)transientIdentifiers {
    return @[];
}
@end

// An album's grid in which anything may be selected.
@interface StrangeGrid : PUPhotosAlbumViewController
@end
@implementation StrangeGrid
- (id)selectedAssets {
    return selection;
}
@end

namespace reliability {

void expect(bool holds, const std::string& what) {
    if (holds) return;
    std::fprintf(stderr, "%s\n", what.c_str());
    std::fflush(stderr);
    _exit(1);
}

namespace {

using nlohmann::json;
using simulator::Device;
using simulator::frontAlert;
using simulator::objectFromJson;
using simulator::string;
namespace host = simulator::bundle;
namespace photos = simulator::photos;

using Feed = std::function<void(Damage& damage)>;

constexpr const char* preferences = "/var/mobile/Library/Preferences/com.nrv.rollkeeperprefs.plist";
constexpr const char* lockedAlbums = "/var/mobile/Library/rollkeeper/lockedAlbums.plist";
constexpr const char* lockedPaths = "/var/mobile/Library/rollkeeper/lockedAlbumsPaths.plist";
constexpr const char* password = "/var/mobile/Library/rollkeeper/settings.tct";
constexpr const char* cameraAlbum = "/var/mobile/Library/rollkeeper/album.tct";

const json someTitles = {"Holidays", "Videos", "Family"};
const json somePreferences = {{"enabled", true},    {"showPeople", false},     {"removeSearch", true},
                              {"skipDelete", true}, {"showTabShared", false},  {"layoutFontSize", 18},
                              {"passOption", 1},    {"lockedAlbumPreview", 2}, {"albumNameFamily", false}};

template <class Function> void replaceStock(const char* className, SEL selector, Function* function) {
    const Class owner = objc_getClass(className);
    class_replaceMethod(owner, selector, reinterpret_cast<IMP>(function),
                        method_getTypeEncoding(class_getInstanceMethod(owner, selector)));
}

// What the library asked SpringBoard to write since it was last emptied.
NSMutableArray* requests() {
    static NSMutableArray* all = [[NSMutableArray alloc] init];
    return all;
}

BOOL takeRequest(id, SEL, NSString* name, NSDictionary* request) {
    expect([name isEqual:@"savearray"], "a strange message was sent");
    [requests() addObject:request];
    return YES;
}

void expectRequest(NSArray* list, NSString* path) {
    NSDictionary* request = [requests() lastObject];
    expect([requests() count] == 1 && [[request objectForKey:@"path"] isEqual:path],
           "another file is written");
    id array = [request objectForKey:@"array"];
    expect(array == list || [array isEqual:list], "another list is written");
}

// The application lives as long as the process.
void start(
    const Device& device, const std::string& library, const char* bundleIdentifier,
    void (*beforeLoading)() = [] {}) {
    device.changeConditions([](simulator::Conditions& conditions) {
        conditions.release = simulator::Release::ios11_4;
        conditions.manualClock = true;
    });
    new simulator::Host({bundleIdentifier, device.folder(), library, beforeLoading});
    replaceStock("CPDistributedMessagingCenter", @selector(sendMessageName:userInfo:), takeRequest);
    if (bundleIdentifier == host::photos) (void)photos::openAlbumList();
}

NSMutableArray* readList(const char* path) { return [NSMutableArray arrayWithContentsOfFile:@(path)]; }
NSMutableDictionary* readPreferences() {
    return [NSMutableDictionary dictionaryWithContentsOfFile:@(preferences)];
}
bool isNumber(id value) { return [value isKindOfClass:[NSNumber class]]; }

PHAssetCollection* album(NSUInteger place) {
    return [[PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeAlbum
                                                     subtype:PHAssetCollectionSubtypeAny
                                                     options:nil] objectAtIndex:place];
}

PUAlbumListCellContentView* cellOfAlbum() {
    return [photos::albumCell(photos::albumList(), "Holidays") albumListCellContentView];
}

void answerAlerts() {
    for (int open = 0; open < 5 && frontAlert() != nil; ++open)
        simulator::tapAlertAction("Cancel");
    expect(frontAlert() == nil, "an alert stays on the screen");
    simulator::clock().advance(3);
}

// The preference file, read at each notification.
Feed preferenceFile(const Device& device, const std::string& library) {
    start(device, library, host::photos);
    static PUAlbumListViewController* const list = photos::albumList();
    static bool hasArrived;
    const auto notification = reinterpret_cast<CFStringRef>(@"com.nrv.rollkeeperprefs/reloadPrefs");
    CFNotificationCenterRef centre = CFNotificationCenterGetDarwinNotifyCenter();
    CFNotificationCenterAddObserver(
        centre, &hasArrived, [](auto...) { hasArrived = true; }, notification, nullptr, 0);
    const auto observe = [] {
        return @[
            @([list showPeople]), @([list disallowsSearch]),
            [NSArray arrayWithArray:[photos::library() excludedContentModes]]
        ];
    };
    static NSArray* const byDefault = [observe() retain];
    return [=](Damage& damage) {
        device.writeFile(preferences, damage.damagedFile(somePreferences));
        hasArrived = false;
        CFNotificationCenterPostNotification(centre, notification, nullptr, nullptr, true);
        expect(simulator::Host::runUntil([] { return hasArrived; }), "the reload never came");
        NSDictionary* readable = readPreferences();
        expect(readable != nil || [observe() isEqual:byDefault], "settings are not those by default");
        id enabled = [readable objectForKey:@"enabled"];
        id people = [readable objectForKey:@"showPeople"];
        if (isNumber(enabled) && isNumber(people))
            expect([list showPeople] == ([people boolValue] || ![enabled boolValue]),
                   "a setting was not taken");
    };
}

// The list of locked albums, as every application reads it.
Feed lockedList(const Device& device, const std::string& library) {
    const auto store = simulator::PhotoLibrary::open(device);
    store->setHidden(store->assets().front().identifier, true);
    start(device, library, host::plain);
    static PHAssetCollection* const holidays = [album(0) retain];
    static PHCollectionList* const everything =
        [[PHCollectionList transientCollectionListWithCollections:@[ holidays, album(1) ] title:nil] retain];
    return [=](Damage& damage) {
        device.writeFile(lockedAlbums, damage.damagedFile(someTitles));
        const NSUInteger shown = [readList(lockedAlbums) containsObject:@"Holidays"] ? 2 : 3;
        expect([[PHAsset fetchAssetsInAssetCollection:holidays options:nil] count] == shown,
               "moved photos are shown or hidden against the list");
        if (damage.oneIn(4)) expect([[everything collections] count] == 4, "a picker lists other albums");
    };
}

// The two files that the album list reads when it appears.
Feed albumList(const Device& device, const std::string& library) {
    start(device, library, host::photos);
    return [=](Damage& damage) {
        device.writeFile(lockedAlbums, damage.damagedFile(someTitles));
        device.writeFile(lockedPaths, damage.damagedFile({{"Holidays", "/a/path"}}));
        [requests() removeAllObjects];
        [photos::albumList() viewWillAppear:NO];
        expect([requests() count] == 0, "a list that is there would be replaced");
        if (damage.oneIn(8)) (void)photos::openAlbumList();
    };
}

// The password, asked for at a locked album's cell.
Feed passwordFile(const Device& device, const std::string& library) {
    start(device, library, host::photos);
    static PUAlbumListCellContentView* const cell = [cellOfAlbum() retain];
    return [=](Damage& damage) {
        device.writeFile(password, damage.damagedBytes(damage.oneIn(2) ? "s\xC3\xA9"
                                                                         "cret \xF0\x9F\x8C\xB4"
                                                                       : "1234"));
        NSString* stored = [NSString stringWithContentsOfFile:@(password)
                                                     encoding:NSUTF8StringEncoding
                                                        error:nullptr];
        NSString* typed = stored != nil && damage.oneIn(2) ? stored : string(damage.text());
        constexpr int move = 1;
        [cell requestPassword:move];
        [[[frontAlert() textFields] firstObject] setText:typed];
        simulator::tapAlertAction("OK");
        expect((frontAlert() != nil) == (stored == nil || [stored isEqual:typed]),
               "a password was taken or refused wrongly");
        answerAlerts();
    };
}

// The message to SpringBoard. Whoever sends it may name any file; here one of the device.
Feed message(const Device& device, const std::string& library) {
    start(device, library, host::springBoard);
    return [=](Damage& damage) {
        if (damage.oneIn(50)) device.remove(lockedAlbums);
        const json whole = {{"id", "com.example"}, {"array", someTitles}, {"path", lockedAlbums}};
        id request = nil;
        if (damage.oneIn(2)) {
            request = objectFromJson(damage.damaged(whole));
        } else {
            NSData* xml = simulator::propertyListAsXml(objectFromJson(whole));
            const std::string bytes =
                damage.damagedBytes({static_cast<const char*>([xml bytes]), [xml length]});
            request = simulator::propertyListIn([NSData dataWithBytes:bytes.data() length:bytes.size()]);
        }
        const bool isRequest = [request isKindOfClass:[NSDictionary class]];
        id path = isRequest ? [request objectForKey:@"path"] : nil;
        const bool isForIt = [path isEqual:@(lockedAlbums)];
        if ([path isKindOfClass:[NSString class]] && !isForIt) {
            request = [NSMutableDictionary dictionaryWithDictionary:request];
            [request setObject:[@(lockedAlbums) stringByAppendingString:@"/below"] forKey:@"path"];
        }
        NSArray* before = readList(lockedAlbums);
        [[UIApplication sharedApplication] handleMessageNamed:@"savearray" withUserInfo:request];
        NSArray* after = readList(lockedAlbums);
        id sent = isForIt ? [request objectForKey:@"array"] : nil;
        const bool isOld = after == before || [after isEqual:before];
        const bool isList = [sent isKindOfClass:[NSArray class]];
        expect(isOld || (isForIt && (!isList || [after count] == [sent count])),
               "the file is neither old nor new");
    };
}

// Titles and kinds of collections, of a list that is asked for them and of fetches.
Feed titles(const Device& device, const std::string& library) {
    device.writePropertyList(lockedAlbums, {"Holidays", "", "Videos"});
    device.writePropertyList(preferences, {{"albumNameHolidays", false}});
    start(device, library, host::plain);
    return [](Damage& damage) {
        handedTitle = damage.oneIn(8) ? nil : string(damage.text());
        handedType = static_cast<NSInteger>(damage.below(1000));
        id strange = [[[StrangeCollection alloc] init] autorelease];
        [PHAsset fetchAssetsInAssetCollection:strange options:nil];
        [PHAsset fetchKeyAssetsInAssetCollection:strange options:nil];
        NSArray* listed = [[PHCollectionList transientCollectionListWithCollections:@[ strange ]
                                                                              title:nil] collections];
        expect([listed count] <= 5, "a list has grown by more than the copies of four albums");
    };
}

// Titles of cells, and the list that is saved when they are locked.
Feed cells(const Device& device, const std::string& library) {
    device.writePropertyList(preferences, {{"passOption", 2}});
    start(device, library, host::photos);
    static PUAlbumListCellContentView* const cell = [cellOfAlbum() retain];
    return [=](Damage& damage) {
        NSString* title = damage.oneIn(10) ? nil : string(damage.text());
        device.writePropertyList(
            lockedAlbums, {"Holidays", damage.oneIn(2) ? simulator::text(title) : "-", damage.value()});
        [cell setTitle:title];
        NSMutableArray* list = readList(lockedAlbums);
        if ([list containsObject:[cell title]])
            [list removeObject:[cell title]];
        else if ([[cell title] length] > 0)
            [list addObject:[cell title]];
        [requests() removeAllObjects];
        [cell lockAlbum];
        if ([requests() count] > 0) expectRequest(list, @(lockedAlbums));
        [cell askToMoveAlbum];
        answerAlerts();
    };
}

// Titles of albums that the Camera lets choose from, and the file that is saved.
Feed cameraTitles(const Device& device, const std::string& library) {
    start(device, library, host::camera, [] {
        replaceStock(
            "PHCollection", @selector(localizedTitle), +[](id, SEL) -> NSString* { return handedTitle; });
    });
    static CAMBottomBar* const bar = [simulator::camera::viewfinder() bottomBar];
    [bar layoutSubviews];
    return [](Damage& damage) {
        handedTitle = damage.oneIn(10) ? nil : string(damage.text());
        [requests() removeAllObjects];
        [bar chooseAlbum];
        UIAlertController* chooser = frontAlert();
        [chooser tapAction:[[chooser actions] objectAtIndex:handedTitle == nil ? 0 : 1]];
        expectRequest(@[ handedTitle == nil ? @"Camera Roll" : handedTitle ],
                      [@"/private" stringByAppendingString:@(cameraAlbum)]);
    };
}

// The Camera's album, read as the application starts: a process for each input.
Feed cameraAlbumFile(const Device& device, const std::string& library) {
    device.writePropertyList(preferences, {{"rememberDefault", true}});
    return [=](Damage& damage) {
        device.writeFile(cameraAlbum, damage.damagedFile({damage.oneIn(2) ? "Family" : "Pets"}));
        const pid_t child = fork();
        if (child == 0) {
            start(device, library, host::camera);
            NSString* stored = [readList(cameraAlbum) firstObject];
            if (![@[ @"Holidays", @"Family", @"Work", @"Pets" ] containsObject:stored])
                stored = @"Camera Roll";
            UIView* bar = [simulator::camera::viewfinder() bottomBar];
            [bar layoutSubviews];
            NSString* label = [static_cast<UILabel*>([bar viewWithTag:78]) text];
            expect([label isEqual:stored], "the Camera starts with another album");
            _exit(0);
        }
        int status = -1;
        expect(waitpid(child, &status, 0) == child && status == 0, "the Camera did not start as it must");
    };
}

// What controllers say is selected, and what of it is handed on.
void expectPhotos(id, SEL, NSArray* assets) {
    expect(assets == nil || [assets isKindOfClass:[NSArray class]], "something else than an array is hidden");
    for (id each in assets)
        expect([each isKindOfClass:[PHAsset class]], "something else than a photo is hidden");
}

Feed selections(const Device& device, const std::string& library) {
    start(device, library, host::photos, [] {
        replaceStock("PUAssetHidingHelper", @selector(setAssets:), expectPhotos);
        replaceStock(
            "PUAssetHidingHelper", @selector(applyHiddenState:completionHandler:), +[](id, SEL, BOOL, id) {});
        for (SEL each : { @selector(_removeSelectedAssetsWithCompletion:), @selector(_removeButtonPressed:) })
            replaceStock("PUPhotosGridViewController", each, +[](id, SEL, id) {});
        replaceStock("PHPhotoLibrary", @selector(performChanges:completionHandler:), +[](id, SEL, id, id) {});
    });
    static PUAlbumListViewController* const list = photos::albumList();
    return [](Damage& damage) {
        StrangeGrid* grid = [[[StrangeGrid alloc] init] autorelease];
        [grid setAssetCollection:damage.oneIn(3) ? nil : album(1)
            fetchResultContainingAssetCollection:nil
                                 filterPredicate:nil
                            existingFetchResults:nil];
        NSMutableArray* members = [NSMutableArray arrayWithObject:[NSNull null]];
        [members addObjectsFromArray:[[PHAsset fetchAssetsInAssetCollection:album(damage.below(4))
                                                                    options:nil] fetchedObjects]];
        [members insertObject:objectFromJson(damage.value()) atIndex:damage.below([members count])];
        id const kinds[] = {nil, members, [NSSet setWithArray:members],
                            [NSOrderedSet orderedSetWithArray:members]};
        selection = damage.oneOf(kinds);
        [list reloadCameraRollWithMove:YES];
        [grid _removeSelectedAssetsWithCompletion:nil];
        [grid _removeButtonPressed:nil];
        selection = nil;
    };
}

// The preference file under the settings pane, whose page shows every row's value and stores one.
Feed pane(const Device& device, const std::string& library) {
    start(device, library, host::settings);
    simulator::settings::openEntry("Rollkeeper");
    return [=](Damage& damage) {
        device.writeFile(preferences, damage.damagedFile(somePreferences));
        [simulator::settings::pane() reloadSpecifiers];
        NSMutableDictionary* before = readPreferences();
        simulator::settings::setControl("Enabled", damage.oneIn(2));
        NSDictionary* after = readPreferences();
        expect(isNumber([after objectForKey:@"enabled"]), "the setting was not stored");
        const NSUInteger added = [before objectForKey:@"enabled"] == nil ? 1 : 0;
        expect(before == nil || [before count] + added == [after count], "storing one setting lost another");
    };
}

} // namespace

const Subject subjects[] = {
    {"preferences", 308, preferenceFile},
    {"locked-list", 250, lockedList},
    {"album-list", 40, albumList},
    {"password", 100, passwordFile},
    {"message", 150, message, true},
    {"titles", 60, titles},
    {"cells", 30, cells},
    {"camera-titles", 20, cameraTitles},
    {"camera-album", 2, cameraAlbumFile},
    {"selections", 30, selections},
    {"pane", 10, pane},
};

} // namespace reliability
