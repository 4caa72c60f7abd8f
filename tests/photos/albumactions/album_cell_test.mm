// The cell of an album: its fonts, its buttons, locking without question, and moving all photos.
#include "support/photos_fixture.h"

#include "device/clock.h"

#include <gmock/gmock.h>

@interface ContentWithDeleteButton : PUAlbumListCellContentView
@end

@implementation ContentWithDeleteButton

- (UIButton*)_deleteButton {
    return [[[UIButton alloc] init] autorelease];
}

@end

@interface ContentTitledByNumber : PUAlbumListCellContentView
@end

@implementation ContentTitledByNumber

- (NSString*)title {
    return static_cast<id>(@42);
}

@end

namespace simulator::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AlbumCell : public PhotosTest {
  protected:
    AlbumCell() {
        useManualClock();
        useTallScreen();
    }
    void openInEditMode(const json& preferences = {}, const Texts& locked = {}) {
        openAlbumList(preferences, locked);
        photos::setEditing(true);
        reload();
    }
};

#pragma mark Appearance

TEST_F(AlbumCell, capabilities_of_plain_stock_albums_become_five) {
    openAlbumList();
    layOutScreen();
    EXPECT_EQ([contentView("Camera Roll") editCapabilities], 5U);
    EXPECT_EQ([contentView("Videos") editCapabilities], 5U);
    EXPECT_EQ([contentView("Holidays") editCapabilities], 7U);
    const auto expectCapabilities = [](Class contentClass, NSUInteger before, NSUInteger after) {
        PUAlbumListCellContentView* content =
            [[[contentClass alloc] initWithFrame:CGRectMake(0, 0, 100, 130)] autorelease];
        [content setEditCapabilities:before];
        [content layoutSubviews];
        EXPECT_EQ([content editCapabilities], after);
    };
    for (const NSUInteger each : {0U, 1U, 2U, 3U, 4U, 6U, 7U}) {
        const bool isPlain = each == 0 || each == 4;
        expectCapabilities([PUAlbumListCellContentView class], each, isPlain ? 5 : each);
        expectCapabilities([ContentWithDeleteButton class], each, each);
    }
}

TEST_F(AlbumCell, fonts_follow_the_settings) {
    constexpr double stockTitle = 15;
    constexpr double stockSubtitle = 12;
    const struct {
        json preferences;
        double title;
        double subtitle;
    } cases[] = {
        {json::object(), 14, 14},
        {{{"layoutFontSize", 15}}, stockTitle, stockSubtitle},
        {{{"layoutFontSize", 9}}, 9, 9},
        {{{"layoutShowTitle", false}}, 0, 14},
        {{{"layoutShowSubtitle", false}}, 14, 0},
        {{{"layoutFontSize", 15}, {"layoutShowTitle", false}}, 0, stockSubtitle},
        {{{"layoutFontSize", 15}, {"layoutShowSubtitle", false}}, stockTitle, 0},
        {{{"enabled", false}, {"layoutFontSize", 20}}, 20, 20},
    };
    openAlbumList();
    PUAlbumListCellContentView* content = contentView("Holidays");
    for (const auto& each : cases) {
        SCOPED_TRACE(each.preferences.dump());
        reloadPreferences(each.preferences);
        [[content _titleTextField] setFont:[UIFont systemFontOfSize:stockTitle]];
        [[content _subtitleLabel] setFont:[UIFont systemFontOfSize:stockSubtitle]];
        [content setNeedsLayout];
        [content layoutIfNeeded];
        EXPECT_EQ([[[content _titleTextField] font] pointSize], each.title);
        EXPECT_EQ([[[content _subtitleLabel] font] pointSize], each.subtitle);
    }
}

TEST_F(AlbumCell, buttons_take_one_tap_and_are_made_once) {
    openInEditMode();
    for (const NSInteger tag : {tag::moveButton, tag::lockButton}) {
        UIView* made = button("Holidays", tag);
        EXPECT_TRUE([made isKindOfClass:[UIImageView class]]);
        EXPECT_TRUE([made isUserInteractionEnabled]);
        ASSERT_EQ([[made gestureRecognizers] count], 1U);
        auto taps = static_cast<UITapGestureRecognizer*>([[made gestureRecognizers] firstObject]);
        EXPECT_EQ([taps numberOfTapsRequired], 1U);
        EXPECT_TRUE([taps delegate] == contentView("Holidays"));
        [contentView("Holidays") createButtons];
        EXPECT_TRUE(button("Holidays", tag) == made);
    }
}

TEST_F(AlbumCell, delete_button_is_shown_on_the_users_albums_only) {
    openInEditMode();
    UIButton* ofUser = [contentView("Holidays") _deleteButton];
    EXPECT_FALSE([ofUser isHidden]);
    [ofUser setHidden:YES];
    [contentView("Holidays") createButtons];
    EXPECT_FALSE([ofUser isHidden]);
    [ofUser layoutSubviews];
    EXPECT_FALSE([ofUser isHidden]) << "as the last thing before it is drawn";
    EXPECT_EQ([button("Holidays", tag::lockButton) frame], CGRectMake(0, 70, 22, 22));

    UIButton* ofStockAlbum = [contentView("Camera Roll") _deleteButton];
    [button("Camera Roll", tag::lockButton) setFrame:CGRectZero];
    [ofStockAlbum layoutSubviews];
    EXPECT_TRUE([ofStockAlbum isHidden]);
    EXPECT_EQ([button("Camera Roll", tag::lockButton) frame], CGRectMake(0, 10, 22, 22));

    for (const bool enabled : {true, false}) {
        reloadPreferences({{"enabled", enabled}});
        [contentView("Holidays") setEditCapabilities:2];
        EXPECT_EQ([contentView("Holidays") showsDeleteButtonWhenEditing], enabled);
    }
}

#pragma mark Locking

TEST_F(AlbumCell, lock_button_locks_without_question) {
    openInEditMode({{"passOption", 1}}, {"Family"});
    recordRequests();
    for (const char* title : {"Holidays", "Camera Roll"}) {
        library().addAlbum(std::string("after ") + title);
        const std::size_t ticks = hapticTicks();
        tapButton(title, tag::lockButton);
        EXPECT_THAT(takeSavedLists(), ElementsAre(json{"Family", title}));
        EXPECT_EQ(hapticTicks(), ticks + 1);
        EXPECT_TRUE(lists(std::string("after ") + title)) << "the list was not reloaded";
        layOutScreen();
    }
    device().remove(file::lockedAlbums);
    tapButton("Holidays", tag::lockButton);
    EXPECT_THAT(takeSavedLists(), ElementsAre(json())) << "without a list the request holds none";
}

#pragma mark Moving

constexpr const char* copyBack = "Copy to camera roll";
constexpr const char* moveOut = "Move out of camera roll";

TEST_F(AlbumCell, on_a_screen_that_is_no_album_list_is_locked_by_its_title) {
    openAlbumList({}, {"Family"});
    recordRequests();
    UIViewController* screen = [[[UIViewController alloc] init] autorelease];
    showRootViewController(screen);
    for (Class contentClass in @[ [PUAlbumListCellContentView class], [ContentTitledByNumber class] ]) {
        PUAlbumListCellContentView* content = [[[contentClass alloc] init] autorelease];
        [content setTitle:@"Holidays"];
        [[screen view] addSubview:content];
        [content lockAlbum];
    }
    EXPECT_EQ(takeSavedLists(), (std::vector<json>{{"Family", "Holidays"}}));
}

TEST_F(AlbumCell, move_sheet_offers_both_directions) {
    openInEditMode();
    tapButton("Holidays", tag::moveButton);
    EXPECT_EQ(shownAlert(),
              (Texts{"sheet", "Move Album", "Copy album photos back to the camera roll or move them out?",
                     copyBack, moveOut, "Cancel (cancel)"}));
    tapAlertAction("Cancel");
    settle();
    EXPECT_THAT(bannerTexts(), IsEmpty());
    EXPECT_THAT(hiddenNumbers(), IsEmpty());
}

TEST_F(AlbumCell, move_sheet_points_at_the_cell_on_a_pad) {
    change([](Conditions& conditions) { conditions.idiom = Idiom::pad; });
    openInEditMode();
    tapButton("Holidays", tag::moveButton);
    auto content = static_cast<PUAlbumListCellContentView*>(anchor());
    ASSERT_TRUE([content isKindOfClass:[PUAlbumListCellContentView class]]);
    EXPECT_EQ(text([content title]), "Holidays");
}

class AlbumMove : public AlbumCell {
  protected:
    UIActivityIndicatorView* spinner() {
        for (UIView* view in [rootView() subviews])
            if ([view isKindOfClass:[UIActivityIndicatorView class]])
                return static_cast<UIActivityIndicatorView*>(view);
        return nil;
    }
};

TEST_F(AlbumMove, hides_or_shows_the_photos_and_says_so) {
    const Texts nothingToDo = {"No photos to move"};
    const struct {
        const char* name;
        const char* title; // of the cell when the sheet is shown
        const char* choice;
        Numbers hiddenBefore;
        Numbers hiddenAfter;
        Texts banners;
    } cases[] = {
        {"move out", "Holidays", moveOut, {1}, {0, 1, 2}, {"Moving photos", "Finished moving"}},
        {"copy back", "Holidays", copyBack, {0, 1, 5}, {5}, {"Returning photos", "Finished returning"}},
        {"all are out", "Holidays", moveOut, {0, 1, 2}, {0, 1, 2}, nothingToDo},
        {"none is out", "Holidays", copyBack, {5}, {5}, nothingToDo},
        {"empty album", "Pets", moveOut, {}, {}, nothingToDo},
        {"missing album", "Gone", moveOut, {}, {}, nothingToDo},
        {"missing album back", "Gone", copyBack, {0}, {0}, nothingToDo},
    };
    openInEditMode({}, {"Family"});
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        hideOnly(each.hiddenBefore);
        [contentView("Holidays") setTitle:string(each.title)];
        tapButton("Holidays", tag::moveButton);
        tapAlertAction(each.choice);
        settle();
        EXPECT_EQ(bannerTexts(), each.banners);
        EXPECT_EQ([banners().back() frame], CGRectMake(97.5, 970, 180, 45));
        EXPECT_EQ([banners().back() alpha], 1);
        if (each.banners.size() > 1) {
            EXPECT_EQ([banners().front() frame], CGRectMake(97.5, 970, 180, 70));
            EXPECT_EQ([banners().front() alpha], 0) << "the first banner is the one that goes";
        }
        EXPECT_TRUE(spinner() == nil);
        clock().advance(0.31);
        EXPECT_EQ(bannerTexts(), Texts{each.banners.back()});
        clock().advance(0.4);
        clock().advance(1.4);
        EXPECT_THAT(bannerTexts(), IsEmpty());
        EXPECT_EQ(hiddenNumbers(), each.hiddenAfter);
        EXPECT_THAT(numbersIn("Holidays"), ElementsAre(0, 1, 2));
        EXPECT_EQ(lockedAlbums(), Texts{"Family"});
        reload();
    }
}

TEST_F(AlbumMove, spins_while_it_runs) {
    openInEditMode();
    whileLibraryIsBusy([&] {
        tapButton("Holidays", tag::moveButton);
        tapAlertAction(moveOut);
        waitFor([&] { return spinner() != nil; });
        EXPECT_EQ(bannerTexts(), Texts{"Moving photos"});
        EXPECT_EQ([banners().front() alpha], 1);
        EXPECT_TRUE([spinner() isAnimating]);
        EXPECT_EQ([spinner() center].x, 187.5);
        EXPECT_EQ([spinner() center].y, 1018);
        EXPECT_EQ([spinner() activityIndicatorViewStyle], UIActivityIndicatorViewStyleWhite);
        EXPECT_TRUE([spinner() hidesWhenStopped]);
        EXPECT_FALSE([spinner() isOpaque]);
        EXPECT_EQ([[spinner() layer] cornerRadius], 5);
        clock().advance(10);
        EXPECT_EQ(bannerTexts(), Texts{"Moving photos"}) << "the banner did not wait for the end";
    });
    EXPECT_TRUE(spinner() == nil);
}

TEST_F(AlbumMove, that_is_refused_ends_its_banner) {
    openInEditMode();
    change([](Conditions& conditions) { conditions.faults.refuseLibraryChanges = true; });
    tapButton("Holidays", tag::moveButton);
    tapAlertAction(moveOut);
    settle();
    EXPECT_THAT(bannerTexts(), ElementsAre("Moving photos", "Finished moving"));
    clock().advance(0.4);
    EXPECT_THAT(bannerTexts(), ElementsAre("Finished moving"));
    EXPECT_THAT(hiddenNumbers(), IsEmpty());
}

} // namespace
} // namespace simulator::test
