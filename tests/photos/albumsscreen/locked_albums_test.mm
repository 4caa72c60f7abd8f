// Locked albums on the Albums screen of iOS 12: what is asked before one opens, by whichever way, and what
// its cover wears.
#include "support/photos_fixture.h"
#include "support/replacing.h"

#include <gmock/gmock.h>
#include <objc/runtime.h>

#include <algorithm>
#include <array>
#include <utility>

namespace simulator::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

enum class Way { tap, pinch, hardPress, link };

class AlbumsScreen : public PhotosTest, public testing::WithParamInterface<Release> {
  protected:
    AlbumsScreen() {
        useManualClock();
        change([](Conditions& conditions) { conditions.release = GetParam(); });
    }
    // No album list has been shown yet.
    void open(const json& preferences, std::function<void()> beforeLoading = {}) {
        writePreferences(preferences);
        start(host::photos, std::move(beforeLoading));
        photos::openAlbumsScreen();
    }
    void follow(Way way, const char* title) {
        layOutScreen();
        if (way == Way::tap) photos::tapAlbum(title);
        if (way == Way::pinch) photos::pinchAlbum(title);
        if (way == Way::hardPress) photos::hardPressAlbum(title);
        if (way == Way::link)
            [photos::openAlbumsScreen() navigateToCollection:album(string(title))
                                                    animated:NO
                                                  completion:^(BOOL) {
                                                      ++completions;
                                                  }];
    }
    // The titles of the albums that are open, one above the other.
    Texts openAlbums() {
        Texts titles;
        for (UIViewController* each in [[photos::library() selectedNavigationController] viewControllers])
            if ([each isKindOfClass:[PUPhotosAlbumViewController class]])
                titles.push_back(text([each title]));
        return titles;
    }
    std::string coverOutline(const std::string& title) {
        return outline([photos::coverOnAlbumsScreen(title) viewWithTag:tag::lockOverlay]);
    }

    int completions = 0;
};

TEST_P(AlbumsScreen, asks_as_the_setting_says_before_a_locked_album_opens) {
    using enum BiometricOutcome;
    enum class Result { nothing, password, opened };
    constexpr struct {
        int passOption;
        BiometricOutcome outcome;
        Result result;
    } cases[] = {
        {0, success, Result::opened},        {0, failed, Result::password},
        {0, userCancel, Result::password},   {0, userFallback, Result::password},
        {0, notAvailable, Result::password}, {0, refusedWithoutError, Result::nothing},
        {1, success, Result::password},      {2, failed, Result::opened},
        {-1, notAvailable, Result::opened},
    };
    open({{"passOption", 1}});
    lockAlbums({"Holidays"});
    std::size_t evaluations = 0;
    for (const Way way : {Way::tap, Way::pinch, Way::hardPress, Way::link}) {
        for (const auto& each : cases) {
            SCOPED_TRACE(testing::Message() << static_cast<int>(way) << " " << each.passOption << " "
                                            << static_cast<int>(each.outcome));
            change([&](Conditions& conditions) { conditions.biometricOutcome = each.outcome; });
            reloadPreferences({{"passOption", each.passOption}});
            goBack();
            completions = 0;
            follow(way, "Holidays");
            settle();
            // A hard press shows and opens nothing, and so there is nothing to ask for.
            const Result expected = way == Way::hardPress ? Result::nothing : each.result;
            EXPECT_EQ(isAskedForPassword(), expected == Result::password);
            EXPECT_EQ(openAlbums(), expected == Result::opened ? Texts{"Holidays"} : Texts{});
            EXPECT_EQ(completions, way == Way::link && expected == Result::opened ? 1 : 0);
            if (each.passOption == 0 && each.outcome != notAvailable && way != Way::hardPress) ++evaluations;
            EXPECT_EQ(unlockReasons(), Texts(evaluations, "Holidays needs to be unlocked."));
        }
    }
}

TEST_P(AlbumsScreen, opens_for_the_right_password_alone) {
    const Texts wrong = {"Incorrect password"};
    const struct {
        std::optional<std::string> stored;
        const char* typed;
        Texts banners;
    } cases[] = {
        {"secret", "secret", {}},
        {"secret", "Secret", wrong},
        {"secret\n", "secret", wrong},
        {std::nullopt, "secret", {"No password set"}},
        {"", "", {}},
    };
    open({{"passOption", 1}});
    lockAlbums({"Holidays", "Videos"});
    for (const Way way : {Way::tap, Way::pinch, Way::link}) {
        for (const auto& each : cases) {
            SCOPED_TRACE(testing::Message()
                         << static_cast<int>(way) << " " << each.stored.value_or("(none)"));
            goBack();
            for (UIView* banner : banners())
                [banner removeFromSuperview];
            setPassword(each.stored);
            follow(way, "Holidays");
            EXPECT_EQ(shownAlert(), (Texts{"alert", "Unlock album", "Enter password to unlock album.",
                                           "[Password*]", "OK", "Cancel (cancel)"}));
            answerPassword(each.typed);
            EXPECT_EQ(bannerTexts(), each.banners);
            EXPECT_EQ(openAlbums(), each.banners.empty() ? Texts{"Holidays"} : Texts{});
        }
    }
}

TEST_P(AlbumsScreen, knows_smart_albums_by_title_and_by_label) {
    open({{"passOption", 2}});
    const struct {
        const char* locked;
        const char* touched;
        bool isAsked;
    } cases[] = {
        {"Videos", "Videos", true},        {"Favourites", "Favorites", true},
        {"Favorites", "Favorites", true},  {"Favourites", "Selfies", false},
        {"Selfies", "Selfies", true},      {"Videos", "Screenshots", false},
        {"Favourites", "Holidays", false},
    };
    library().addAlbum("Favourites");
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << each.locked << " and " << each.touched);
        lockAlbums({each.locked});
        reloadPreferences({{"passOption", 1}});
        photos::openAlbumsScreen();
        follow(Way::tap, each.touched);
        EXPECT_EQ(isAskedForPassword(), each.isAsked);
        EXPECT_EQ(openAlbums(), each.isAsked ? Texts{} : Texts{each.touched});
        goBack();
        reloadPreferences({{"passOption", 2}});
        follow(Way::tap, each.touched);
        EXPECT_EQ(openAlbums(), Texts{each.touched});
        goBack();
    }
}

// Only the last album that was asked for opens, and what has taken its place is asked for itself.
TEST_P(AlbumsScreen, opens_what_was_authorised) {
    open({{"passOption", 0}});
    lockAlbums({"Holidays", "Work"});
    follow(Way::tap, "Holidays");
    follow(Way::link, "Work");
    settle();
    EXPECT_THAT(openAlbums(), ElementsAre("Work"));

    goBack();
    follow(Way::tap, "Holidays");
    follow(Way::link, "Pets");
    settle();
    EXPECT_THAT(openAlbums(), ElementsAre("Pets"));

    goBack();
    PUHorizontalAlbumListGadget* row = [photos::openAlbumsScreen() albumRow];
    follow(Way::tap, "Holidays");
    NSMutableArray* albums = [[[row albums] mutableCopy] autorelease];
    NSArray* titles = [albums valueForKey:@"localizedTitle"];
    [albums exchangeObjectAtIndex:[titles indexOfObject:@"Holidays"]
                withObjectAtIndex:[titles indexOfObject:@"Work"]];
    [row setAlbums:albums];
    layOutScreen();
    settle();
    settle();
    EXPECT_EQ(unlockReasons().back(), "Work needs to be unlocked.");
    EXPECT_THAT(openAlbums(), ElementsAre("Work"));
}

TEST_P(AlbumsScreen, is_gone_back_to_from_a_locked_album_in_the_background) {
    open({{"passOption", 2}});
    lockAlbums({"Holidays"});
    for (const Way way : {Way::tap, Way::pinch, Way::link}) {
        for (const char* title : {"Holidays", "Family"}) {
            goBack();
            follow(way, title);
            EXPECT_THAT(openAlbums(), ElementsAre(title));
            [photos::application() enterBackground];
            [photos::application() enterForeground];
            EXPECT_EQ(openAlbums(), title == std::string("Holidays") ? Texts{} : Texts{title});
        }
    }
}

#pragma mark What reaches Photos

Texts calls;

std::string described(id object) {
    if ([object isKindOfClass:[PHCollection class]]) return " " + text([object localizedTitle]);
    if ([object isKindOfClass:[NSString class]]) return " " + text(object);
    if ([object isKindOfClass:[NSIndexPath class]]) return " " + std::to_string([object item]);
    return object == nil ? " nil" : " object";
}
std::string described(BOOL flag) { return flag ? " yes" : " no"; }
std::string described(const void* block) { return block == nullptr ? " nil" : " block"; }
std::string described(CGPoint) { return " point"; }
std::string described(CGRect* rect) { return rect == nullptr ? " null" : " rect"; }

template <int row, typename Function> struct Noted;

template <int row, typename Result, typename... Arguments>
struct Noted<row, Result (*)(id, SEL, Arguments...)> {
    static inline Result (*original)(id, SEL, Arguments...) = nullptr;

    static Result replacement(id self, SEL command, Arguments... arguments) {
        calls.push_back((sel_getName(command) + ... + described(arguments)));
        return original(self, command, arguments...);
    }
    static void install(const char* className, const char* name) {
        const SEL selector = sel_registerName(name);
        if (class_getInstanceMethod(objc_getClass(className), selector) == nullptr) return;
        replaceMethod(className, selector, &replacement, &original);
    }
};

using Selecting = void (*)(id, SEL, id, id);
using Answering = BOOL (*)(id, SEL, id);
using Navigating = void (*)(id, SEL, id, BOOL, const void*);
using Opening = id (*)(id, SEL, id, BOOL);
using Previewing = id (*)(id, SEL, CGPoint, id, CGRect*);
using Configuring = void (*)(id, SEL, id, id, id, BOOL, BOOL, BOOL);

void noteCalls() {
    constexpr const char* row = "PUHorizontalAlbumListGadget";
    constexpr const char* navigate = "navigateToCollection:animated:completion:";
    Noted<0, Selecting>::install(row, "collectionView:didSelectItemAtIndexPath:");
    Noted<1, Answering>::install(row, "_canUseStackedAlbumTransitionToNavigationToCollection:");
    Noted<2, Navigating>::install(row, navigate);
    Noted<3, Opening>::install(row, "navigateToAssetCollection:animated:");
    Noted<4, Navigating>::install("PUAlbumsGadgetViewController", navigate);
    Noted<5, Navigating>::install("PXNavigationListGadget", navigate);
    Noted<6, Previewing>::install("PXHorizontalCollectionGadget",
                                  "previewViewControllerAtLocation:fromSourceView:outSourceRect:");
    Noted<7, Configuring>::install(
        "PUAlbumListCellContentViewHelper",
        "configureAlbumListCellContentView:forCollection:title:animated:enabled:editing:");
}

TEST_P(AlbumsScreen, leaves_photos_alone_while_switched_off_and_for_albums_without_a_lock) {
    open({{"passOption", 1}}, noteCalls);
    const auto callsOfEveryWay = [&] {
        calls.clear();
        for (const Way way : {Way::tap, Way::pinch, Way::hardPress, Way::link}) {
            photos::openAlbumsScreen();
            follow(way, "Holidays");
            const bool hasPreviews = GetParam() > Release::ios12_0;
            EXPECT_EQ(openAlbums().size(), way == Way::hardPress && !hasPreviews ? 0U : 1U);
            EXPECT_TRUE(frontAlert() == nil);
        }
        photos::openAlbumsScreen();
        follow(Way::tap, "Videos");
        return calls;
    };
    callsOfEveryWay(); // leaves the row scrolled to where it will stay
    const Texts unlocked = callsOfEveryWay();
    lockAlbums({"Family"});
    EXPECT_EQ(callsOfEveryWay(), unlocked);
    lockAlbums({"Holidays", "Videos"});
    reloadPreferences({{"enabled", false}, {"passOption", 1}});
    EXPECT_EQ(callsOfEveryWay(), unlocked);
    photos::openAlbumsScreen();
    EXPECT_EQ(coverOutline("Holidays"), "none");

    // And of a locked album nothing reaches it but what asks whether it may.
    reloadPreferences({{"passOption", 1}});
    photos::openAlbumsScreen();
    for (const Way way : {Way::tap, Way::pinch}) {
        calls.clear();
        follow(way, "Holidays");
        EXPECT_THAT(calls, IsEmpty());
        goBack();
    }
}

#pragma mark Covers

TEST_P(AlbumsScreen, covers_locked_albums_in_the_size_of_its_covers) {
    constexpr struct {
        double screenWidth;
        const char* whole;
        const char* lock;
    } screens[] = {{375, "0 0 165 165", "57 57 50 50"}, {320, "0 0 140 140", "45 45 50 50"}};
    open({{"lockedAlbumPreview", 0}});
    for (const auto& [width, whole, lock] : screens) {
        change([width = width](Conditions& conditions) { conditions.screen.width = width; });
        [[[UIApplication sharedApplication] keyWindow] setFrame:[[UIScreen mainScreen] bounds]];
        const std::string image = std::string("UIImageView ") + whole;
        const std::string glyph = std::string("UIImageView ") + lock;
        std::string blurred = image, small = image;
        blurred.append(" {UIVisualEffectView ").append(whole).append("; ").append(glyph).append("}");
        small.append(" {").append(glyph).append("}");
        const std::pair<int, std::string> forms[] = {{0, blurred}, {1, image}, {2, small}, {3, "none"}};
        for (const auto& [preview, form] : forms) {
            SCOPED_TRACE(testing::Message() << width << " " << preview);
            reloadPreferences({{"lockedAlbumPreview", preview}});
            lockAlbums({"Holidays"});
            photos::openAlbumsScreen();
            EXPECT_EQ(coverOutline("Holidays"), form);
            EXPECT_EQ(coverOutline("Family"), "none");
            lockAlbums({});
            photos::openAlbumsScreen();
            EXPECT_EQ(coverOutline("Holidays"), "none") << "an unlocked album keeps its overlay";
        }
    }
}

TEST_P(AlbumsScreen, covers_follow_the_album_and_not_the_cell) {
    for (int number = 0; number < 20; ++number)
        library().addAlbum("Album " + std::to_string(number));
    open({{"lockedAlbumPreview", 1}});
    lockAlbums({"Holidays", "Album 7", "Album 8"});
    PUHorizontalAlbumListGadget* row = [photos::openAlbumsScreen() albumRow];
    UICollectionViewCell* first = photos::coverOnAlbumsScreen("Holidays");
    bool isReused = false;
    for (const bool backwards : {false, true}) {
        for (std::size_t step = 0; step < [[row albums] count]; ++step) {
            const std::size_t place = backwards ? [[row albums] count] - 1 - step : step;
            const std::string title = text([[[row albums] objectAtIndex:place] localizedTitle]);
            const bool isLocked = title == "Holidays" || title == "Album 7" || title == "Album 8";
            EXPECT_EQ(coverOutline(title), isLocked ? "UIImageView 0 0 165 165" : "none") << title;
            isReused |= title != "Holidays" && photos::coverOnAlbumsScreen(title) == first;
        }
    }
    EXPECT_TRUE(isReused);
}

// Photos may fill a content view that is laid out only afterwards.
TEST_P(AlbumsScreen, covers_take_the_size_of_a_later_layout) {
    open({{"lockedAlbumPreview", 0}});
    lockAlbums({"Holidays"});
    constexpr std::array forms = {
        "UIImageView 0 0 150 150 {UIVisualEffectView 0 0 150 150; UIImageView 50 50 50 50}",
        "UIImageView 0 0 150 150", "UIImageView 0 0 150 150 {UIImageView 50 50 50 50}"};
    for (int preview = 0; preview < 3; ++preview) {
        reloadPreferences({{"lockedAlbumPreview", preview}});
        auto* content = [[[PUAlbumListCellContentView alloc] initWithFrame:CGRectZero] autorelease];
        auto* helper = [[[PUAlbumListCellContentViewHelper alloc] init] autorelease];
        [helper configureAlbumListCellContentView:content
                                    forCollection:album(@"Holidays")
                                            title:@"Holidays"
                                         animated:NO
                                          enabled:YES
                                          editing:NO];
        [content setFrame:CGRectMake(0, 0, 150, 190)];
        [content layoutIfNeeded];
        EXPECT_EQ(outline([content viewWithTag:tag::lockOverlay]),
                  forms.at(static_cast<std::size_t>(preview)));
    }
}

INSTANTIATE_TEST_SUITE_P(Releases, AlbumsScreen, testing::Values(Release::ios12_0, Release::ios12_4),
                         [](const auto& info) {
                             return info.param == Release::ios12_0 ? "ios_12_0" : "ios_12_4";
                         });

} // namespace
} // namespace simulator::test
