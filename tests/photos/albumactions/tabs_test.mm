// The tabs of the library, and the bar with one tab left.
#include "support/photos_fixture.h"

#include <objc/runtime.h>

#include <bit>

namespace simulator::test {
namespace {

using Modes = std::vector<int>;

// In the order of the exclusions.
constexpr struct {
    const char* setting;
    int mode;
} settings[] = {{"showTabMoments", 0}, {"showTabMemories", 9}, {"showTabShared", 1}, {"showTabAlbums", 2}};

Modes modes(NSArray* numbers) {
    Modes all;
    for (NSNumber* number in numbers)
        all.push_back([number intValue]);
    return all;
}

UITabBar* barWithItems(NSUInteger count) {
    NSMutableArray* items = [NSMutableArray array];
    while ([items count] < count)
        [items addObject:[[[UITabBarItem alloc] initWithTitle:@"Tab" image:nil tag:0] autorelease]];
    UITabBar* bar = [[[UITabBar alloc] initWithFrame:CGRectMake(0, 0, 100, 49)] autorelease];
    [bar setItems:items];
    return bar;
}

BOOL stockAnswer = YES;
BOOL stockWantsTabBar(id, SEL) { return stockAnswer; }

class Tabs : public PhotosTest {
  protected:
    Tabs() {
        change([](Conditions& conditions) { conditions.release = Release::complete; });
    }
    json preferencesShowing(unsigned shown, bool enabled = true) {
        json preferences = {{"enabled", enabled}};
        for (unsigned tab = 0; tab < std::size(settings); ++tab)
            preferences[settings[tab].setting] = (shown & 1U << tab) != 0;
        return preferences;
    }
};

TEST_F(Tabs, are_those_that_the_settings_show) {
    start(host::photos, [] {
        class_replaceMethod([UIViewController class], @selector(pu_wantsTabBarVisible),
                            reinterpret_cast<IMP>(stockWantsTabBar), "C@:");
    });
    PUAlbumListViewController* list = photos::openAlbumList();
    stockAnswer = NO;
    PUTabbedLibraryViewController* library = photos::library();
    PUPhotosAlbumViewController* album = [[[PUPhotosAlbumViewController alloc] init] autorelease];
    [album setAlwaysHideTabBar:YES]; // so that by itself it wants none
    const auto expectOneTab = [&](bool isOne) {
        EXPECT_EQ([album pu_wantsTabBarVisible], isOne);
        EXPECT_EQ([list alwaysHideTabBar], isOne);
        EXPECT_EQ([list pu_wantsTabBarVisible], isOne);
    };
    for (unsigned shown = 0; shown < 16; ++shown) {
        SCOPED_TRACE(shown);
        reloadPreferences(preferencesShowing(shown));
        [library setExcludedContentModes:@[ @0, @7 ]]; // the stock list is not looked at
        Modes excluded;
        Modes tabs;
        for (unsigned tab = 0; tab < std::size(settings); ++tab) {
            const bool isShown = shown & 1U << tab || (shown == 0 && settings[tab].mode == 2);
            (isShown ? tabs : excluded).push_back(settings[tab].mode);
        }
        EXPECT_EQ(modes([library excludedContentModes]), excluded);
        layOutScreen();
        EXPECT_EQ(modes([library displayedContentModes]), tabs);
        if (tabs.size() == 1) EXPECT_TRUE([[library tabBar] isHidden]);
        expectOneTab(std::popcount(shown) == 1); // none is not one
    }
    for (const unsigned shown : {0U, 1U, 8U, 15U}) {
        reloadPreferences(preferencesShowing(shown, false));
        EXPECT_EQ(modes([library excludedContentModes]), (Modes{0, 7})) << shown;
        expectOneTab(false);
    }
}

TEST_F(Tabs, every_bar_with_one_item_is_hidden_when_laid_out) {
    openAlbumList();
    for (const bool enabled : {true, false}) {
        reloadPreferences({{"enabled", enabled}});
        for (const NSUInteger count : {0U, 1U, 2U, 3U}) {
            SCOPED_TRACE(count);
            UITabBar* bar = barWithItems(count);
            EXPECT_FALSE([bar isHidden]);
            EXPECT_EQ([bar hidden], count == 1) << "asked by the name that the complete release alone has";
            [bar layoutSubviews];
            EXPECT_EQ([bar isHidden], count == 1);
            [bar setHidden:YES];
            [bar layoutSubviews];
            EXPECT_TRUE([bar isHidden] && [bar hidden]) << "nobody shows it";
        }
    }
}

} // namespace
} // namespace simulator::test
