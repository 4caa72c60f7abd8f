// The frame around the screens: the bar's extra button and its sheets, returning all photos, the sharing
// screen, and leaving for the background.
#import "PhotosUI/ScreenHelpers.h"
#include "support/hiding_log.h"
#include "support/photos_fixture.h"
#include "support/replacing.h"

#include "device/clock.h"

#include <objc/runtime.h>

#include <algorithm>
#include <map>
#include <utility>

@interface PUNavigationController (Added)
- (void)syncAlbums;
@end

@interface PhotosApplication (Added)
- (void)returnToMainView;
@end

namespace simulator::test {
namespace {

Texts titlesOf(NSArray* items) {
    Texts titles;
    for (UIBarButtonItem* item in items)
        titles.push_back(text([item title]));
    return titles;
}

// "1", "2" and so on.
NSArray* itemsNumbering(int count) {
    NSMutableArray* items = [NSMutableArray array];
    for (int number = 1; number <= count; ++number)
        [items addObject:barButton(string(std::to_string(number)), nil, nullptr)];
    return items;
}

class Navigation : public PhotosTest {
  protected:
    PUNavigationController* navigation() {
        return static_cast<PUNavigationController*>([photos::library() selectedNavigationController]);
    }
};

#pragma mark The bar's button

TEST_F(Navigation, bar_gains_its_button_at_each_reading_while_it_has_fewer_than_two) {
    // The sharing screen gains none.
    const std::pair<const char*, const char*> screens[] = {{"PUAlbumListViewController", "Reset"},
                                                           {"PUPhotosAlbumViewController", "Move"},
                                                           {"PUZoomableGridViewController", "Move"},
                                                           {"PUOneUpViewController", "Move"},
                                                           {"UIViewController", "Move"},
                                                           {"PUPhotosSharingViewController", nullptr}};
    openAlbumList();
    for (const bool enabled : {true, false}) {
        reloadPreferences({{"enabled", enabled}});
        for (const auto& [screen, added] : screens) {
            UIViewController* root = [[[NSClassFromString(string(screen)) alloc] init] autorelease];
            PUNavigationController* navigation =
                [[[PUNavigationController alloc] initWithRootViewController:root] autorelease];
            for (const int count : {-1, 0, 1, 2, 3}) {
                SCOPED_TRACE(testing::Message() << screen << " with " << count);
                [[root navigationItem] setLeftBarButtonItems:count < 0 ? nil : itemsNumbering(count)];
                Texts expected = titlesOf([[root navigationItem] leftBarButtonItems]);
                for (int reading = 0; reading < 3; ++reading) {
                    if (added && expected.size() < 2) expected.emplace_back(added);
                    EXPECT_TRUE([[navigation navigationBar] topItem] == [root navigationItem]);
                    EXPECT_EQ(titlesOf([[root navigationItem] leftBarButtonItems]), expected);
                }
                if (added) continue;
                [root viewDidLayoutSubviews]; // after the stock work keeps the first only
                EXPECT_LT([[[[root view] subviews] firstObject] bounds].size.height, 600);
                EXPECT_EQ(titlesOf([[root navigationItem] leftBarButtonItems]),
                          count < 1 ? Texts() : Texts{"1"});
            }
        }
    }
}

TEST_F(Navigation, button_sends_the_controller_its_message) {
    openAlbumList();
    [[photos::albumList() navigationItem] setLeftBarButtonItems:nil];
    [navigation() _setCurrentToolbarViewController:nil];
    [navigation() navigationBar];
    UIBarButtonItem* button = [[photos::albumList() navigationItem] leftBarButtonItem];
    EXPECT_EQ(text([button title]), "Move") << "no screen is no list";
    EXPECT_EQ([button style], UIBarButtonItemStylePlain);
    EXPECT_TRUE([button target] == navigation() && sel_isEqual([button action], @selector(syncAlbums)));
    [navigation() syncAlbums];
    EXPECT_TRUE(frontAlert() == nil);
    [[[[PUNavigationController alloc] init] autorelease] navigationBar]; // no item
}

#pragma mark The button's sheets

TEST_F(Navigation, button_asks_what_suits_the_screen) {
    const char* explanation = "Reset photo albums by returning all photos to the camera roll? Photos will "
                              "remain in folders but also appear in the camera roll.";
    openAlbumList({{"passOption", 2}}, {"Holidays"});
    keepHidingLog(library());
    tapBarButton("Reset");
    EXPECT_EQ(shownAlert(),
              (Texts{"sheet", "Move Album Photos", explanation, "Return all", "Cancel (cancel)"}));
    EXPECT_EQ(takeHidingLog(), Texts{"present"});
    tapAlertAction("Cancel");

    const std::map<std::string, Texts> choices = {
        {"Cancel", {"present"}},
        {"Copy to camera roll", {"present", "show 1 and tell"}},
        {"Move out of camera roll", {"present", "hide 0 1 2 and tell"}}};
    photos::openAlbum("Holidays");
    reloadPreferences({{"passOption", 1}}); // it is open: nothing more is asked
    for (const auto& [choice, expected] : choices) {
        library().setHidden(identifier(1), choice != "Move out of camera roll");
        tapBarButton("Move");
        EXPECT_EQ(shownAlert(), (Texts{"sheet", "Move Album Photos",
                                       "Copy photos back into the camera roll or move them out?",
                                       "Copy to camera roll", "Move out of camera roll", "Cancel (cancel)"}));
        tapAlertAction(choice);
        EXPECT_EQ(takeHidingLog(), expected);
    }
    photos::openMoments();
    tapBarButton("Move");
    EXPECT_TRUE(frontAlert() == nil);
}

TEST_F(Navigation, sheets_point_at_the_screen_on_a_pad) {
    change([](Conditions& conditions) { conditions.idiom = Idiom::pad; });
    for (UIViewController* screen = openAlbumList(); screen != nil;
         screen = hasOpenedAlbum() ? nil : photos::openAlbum("Family")) {
        [navigation() syncAlbums];
        EXPECT_TRUE(anchor() == [screen view]);
        tapAlertAction("Cancel");
    }
}

#pragma mark Returning all

TEST_F(Navigation, all_photos_return_but_those_of_locked_and_switched_off_albums) {
    const auto on = [](json holidays, json family, json work) {
        return json{{"albumNameHolidays", holidays}, {"albumNameFamily", family}, {"albumNameWork", work}};
    };
    // 2 is in "Holidays" and "Family", 8 in an album without a title, 9 in none.
    const struct {
        const char* name;
        Numbers hidden;
        Texts locked;
        json preferences;
        const char* asked; // null: there is nothing to return
        Numbers hiddenAfter;
    } cases[] = {
        {"all", {0, 2, 6, 8, 9}, {}, on(true, true, true), "show 0 2 2 6 8 and tell", {9}},
        {"nothing hidden", {9}, {}, on(true, true, true), nullptr, {9}},
        {"locked", {0, 2, 6}, {"Holidays"}, on(true, true, true), "show 2 6 and tell", {0}},
        {"switched off", {0, 2, 3}, {}, on(true, false, true), "show 0 2 and tell", {3}},
        {"both", {0, 2, 6}, {"Holidays"}, on(true, false, "NO"), nullptr, {0, 2, 6}},
        {"locked without title", {8}, {""}, on(true, true, true), "show 8 and tell", {}},
        {"library switched off", {0}, {}, {{"enabled", false}}, "show 0 and tell", {}},
    };
    useManualClock();
    library().addAlbum(std::nullopt, {identifier(8)});
    openAlbumList();
    keepHidingLog(library());
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        hideOnly(each.hidden);
        lockAlbums(each.locked);
        reloadPreferences(each.preferences);
        tapBarButton("Reset");
        EXPECT_EQ(takeHidingLog(), Texts{"present"});
        tapAlertAction("Return all");
        EXPECT_EQ(takeHidingLog(), each.asked ? Texts{each.asked} : Texts());
        settle();
        EXPECT_EQ(bannerTexts(), each.asked ? Texts({"Returning all albums", "Finished moving"})
                                            : Texts{"No photos to return."});
        EXPECT_EQ(hiddenNumbers(), each.hiddenAfter);
        EXPECT_EQ(lockedAlbums(), each.locked);
        for (int step = 0; step < 4; ++step)
            clock().advance(1);
        EXPECT_EQ(bannerTexts(), Texts());
    }
}

#pragma mark Leaving for the background

// Whether an album was open, at each call.
std::vector<bool> stockCalls;
void stockDidEnterBackground(id, SEL, id) {
    stockCalls.push_back([[[photos::library() selectedNavigationController] viewControllers] count] > 1);
}

TEST_F(Navigation, background_closes_an_album_as_the_settings_say) {
    void (*unused)(id, SEL, id);
    replaceMethod("PLPhotosApplication", @selector(applicationDidEnterBackground:), &stockDidEnterBackground,
                  &unused);
    openAlbumList({}, {"Holidays"});
    for (unsigned row = 0; row < 16; ++row) {
        SCOPED_TRACE(row);
        const bool isLocked = row & 1, enabled = row & 2, always = row & 4, ifLocked = row & 8;
        reloadPreferences({{"enabled", enabled},
                           {"passOption", 2},
                           {"returnToMainDefault", always},
                           {"returnToMainLocked", ifLocked}});
        const bool returns = always || (ifLocked && isLocked);
        photos::openAlbum(isLocked ? "Holidays" : "Family");
        [photos::application() enterBackground];
        [photos::application() enterForeground];
        const bool staysOpen = !(returns && enabled);
        EXPECT_EQ(std::exchange(stockCalls, {}), std::vector{staysOpen}) << "the stock method comes last";
        goBack();
        // A locked album counts until the next is chosen, here for one that is opened otherwise.
        [navigation() pushViewController:[[[PUPhotosAlbumViewController alloc] init] autorelease]
                                animated:NO];
        [photos::application() returnToMainView];
        EXPECT_EQ(hasOpenedAlbum(), !returns);
        goBack();
    }
    Ivar library = class_getInstanceVariable([PhotosApplication class], "_tabbedLibraryViewController");
    reloadPreferences({{"returnToMainDefault", true}});
    object_setIvar(photos::application(), library, nil);
    [photos::application() returnToMainView];
}

class NavigationOnReleases : public Navigation, public testing::WithParamInterface<Release> {};

TEST_P(NavigationOnReleases, does_what_the_release_allows) {
    const Release release = GetParam();
    SCOPED_TRACE(releaseName(release));
    change([&](Conditions& conditions) { conditions.release = release; });
    writePreferences({{"showTabShared", false}, {"returnToMainDefault", true}});
    start(host::photos);
    EXPECT_EQ([photos::library() navigationControllerForContentMode:1] == nil, release >= Release::ios9_3);
    UIViewController* root = [navigation() topViewController];
    UIViewController* list = release > Release::ios7_1 ? photos::openAlbumList() : root;
    [[list navigationItem] setLeftBarButtonItems:nil];
    [navigation() navigationBar];
    EXPECT_EQ(titlesOf([[list navigationItem] leftBarButtonItems]),
              Texts{release >= Release::ios9_3 ? "Reset" : "Move"});
    [navigation() syncAlbums];
    EXPECT_EQ(alertTitle(), release >= Release::ios9_3 ? "Move Album Photos" : "");
    if (frontAlert()) tapAlertAction("Cancel");
    if (release > Release::ios7_1) {
        hide({0});
        PUPhotosAlbumViewController* album = photos::openAlbum("Holidays");
        photos::selectPhotos(album, {0});
        [album _removeSelectedAssetsWithCompletion:nil];
        [album _removeButtonPressed:nil];
        EXPECT_TRUE([album initiallyScrolledToBottom]);
        settle();
        EXPECT_EQ(numbersIn("Holidays").size(), 2U);
        // Earlier there is nothing to show it with.
        EXPECT_EQ(hiddenNumbers(), release < Release::ios9_3 ? Numbers{0} : Numbers{});
    }
    [photos::application() enterBackground];
    EXPECT_TRUE([navigation() topViewController] == root);
}

INSTANTIATE_TEST_SUITE_P(All, NavigationOnReleases, testing::ValuesIn(allReleases));

} // namespace
} // namespace simulator::test
