// The tabs of the library, the bar with one tab left, and the size of covers that the corners over them tell.
#import "PhotosUICore/PhotosUICore.h"
#include "support/photos_fixture.h"

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

class Tabs : public PhotosTest {
  protected:
    nlohmann::json preferencesShowing(unsigned shown, bool enabled = true) {
        nlohmann::json preferences = {{"enabled", enabled}};
        for (unsigned tab = 0; tab < std::size(settings); ++tab)
            preferences[settings[tab].setting] = (shown & 1U << tab) != 0;
        return preferences;
    }
};

TEST_F(Tabs, are_those_that_the_settings_show) {
    openAlbumList();
    PUTabbedLibraryViewController* library = photos::library();
    PUPhotosAlbumViewController* album = [[[PUPhotosAlbumViewController alloc] init] autorelease];
    [album setAlwaysHideTabBar:YES];
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
        EXPECT_EQ([album pu_wantsTabBarVisible], std::popcount(shown) == 1) << "none is not one";
    }
    for (const unsigned shown : {0U, 1U, 8U, 15U}) {
        reloadPreferences(preferencesShowing(shown, false));
        EXPECT_EQ(modes([library excludedContentModes]), (Modes{0, 7})) << shown;
        EXPECT_FALSE([album pu_wantsTabBarVisible]) << shown;
    }
}

TEST_F(Tabs, every_bar_with_one_item_is_hidden_when_laid_out) {
    change([](Conditions& conditions) { conditions.release = Release::complete; });
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

TEST_F(Tabs, corners_over_a_cover_tell_its_side) {
    constexpr double sideFromScreen = 180;
    const struct {
        double width;
        double side;
    } cases[] = {{99, sideFromScreen}, {100, sideFromScreen}, {100.01, 101}, {119.5, 120},
                 {120, 121},           {120.9, 121},          {260, 261},    {0, sideFromScreen}};
    change([](Conditions& conditions) { conditions.screen.width = 414; });
    PUAlbumListViewController* list = openAlbumList({}, {"Holidays"});
    for (const auto& each : cases) {
        SCOPED_TRACE(each.width);
        reloadPreferences({{"enabled", each.side != 121}});
        [list viewWillAppear:NO];
        PXRoundedCornerOverlayView* corners = [[[PXRoundedCornerOverlayView alloc]
            initWithFrame:CGRectMake(0, 0, each.width, 300)] autorelease];
        [corners layoutSubviews];
        UICollectionView* view = [list mainCollectionView];
        auto cell =
            static_cast<PUAlbumListCell*>([list collectionView:view
                                        cellForItemAtIndexPath:photos::pathOfAlbum(list, "Holidays")]);
        UIView* cover = [[cell albumListCellContentView] viewWithTag:tag::lockOverlay];
        EXPECT_EQ([cover frame], CGRectMake(0, 0, each.side, each.side));
    }
}

} // namespace
} // namespace simulator::test
