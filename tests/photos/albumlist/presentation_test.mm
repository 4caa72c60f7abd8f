// What the album list shows: thumbnails, lock overlays, counts, recognisers and cell buttons.
#import "PhotosUICore/PhotosUICore.h"
#include "support/photos_fixture.h"

#include <gmock/gmock.h>
#include <objc/runtime.h>

// A cell whose stack view is as wide as a test wants until it is laid out.
@interface CellOfWidth : PUAlbumListCell
@end

static CGFloat stackWidth = 0;

@implementation CellOfWidth

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    [[[self albumListCellContentView] stackView] setFrame:CGRectMake(0, 0, stackWidth, stackWidth)];
    return self;
}

@end

namespace simulator::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AlbumListPresentation : public PhotosTest {
  protected:
    Texts titlesWithOverlay() {
        Texts titles;
        for (PUAlbumListCell* cell in [[photos::albumList() mainCollectionView] visibleCells]) {
            PUAlbumListCellContentView* content = [cell albumListCellContentView];
            if ([content viewWithTag:tag::lockOverlay]) titles.push_back(text([content title]));
        }
        return titles;
    }
};

#pragma mark Overlays

void expectDarkBlur(UIView* overlay) {
    auto blur = static_cast<UIVisualEffectView*>([[overlay subviews] firstObject]);
    EXPECT_EQ([static_cast<UIBlurEffect*>([blur effect]) style], UIBlurEffectStyleDark);
    EXPECT_EQ([[blur layer] cornerRadius], 5);
    EXPECT_TRUE([[blur layer] masksToBounds]);
    EXPECT_TRUE([[overlay backgroundColor] isEqual:[UIColor clearColor]]);
}

struct OverlayCase {
    double screenWidth;
    std::string whole; // the frames of the overlay and of the small lock
    std::string lock;
    Release release = Release::ios10_3;
};

class LockOverlay : public AlbumListPresentation, public testing::WithParamInterface<OverlayCase> {};

TEST_P(LockOverlay, has_the_chosen_form) {
    const std::string image = "UIImageView " + GetParam().whole;
    const std::string blur = "UIVisualEffectView " + GetParam().whole;
    const std::string lock = "UIImageView " + GetParam().lock;
    const std::pair<int, std::string> forms[] = {{0, image + " {" + blur + "; " + lock + "}"},
                                                 {1, image},
                                                 {2, image + " {" + lock + "}"},
                                                 {3, "none"},
                                                 {4, "none"},
                                                 {-1, "none"}};
    change([](Conditions& conditions) {
        conditions.screen.width = GetParam().screenWidth;
        conditions.release = GetParam().release;
    });
    openAlbumList();
    for (const auto& [preview, form] : forms) {
        SCOPED_TRACE(preview);
        reloadPreferences({{"lockedAlbumPreview", preview}});
        lockAlbums({"Holidays"});
        reload();
        EXPECT_EQ(outline(overlay("Holidays")), form);
        EXPECT_TRUE(overlay("Family") == nil);
        if (UIView* shown = overlay("Holidays")) {
            EXPECT_TRUE([shown superview] == [contentView("Holidays") stackView]);
            EXPECT_EQ([shown autoresizingMask], 18U);
            EXPECT_TRUE([[shown superview] autoresizesSubviews]);
            if (preview == 0) expectDarkBlur(shown);
        }
        lockAlbums({});
        reload();
        EXPECT_TRUE(overlay("Holidays") == nil) << "an unlocked album keeps its overlay";
    }
}

// Thumbnails of 175 points and more take their side from the corners drawn over them, and a point more.
INSTANTIATE_TEST_SUITE_P(Screens, LockOverlay,
                         testing::Values(OverlayCase{320, "0 0 136 136", "43 43 50 50"},
                                         OverlayCase{375, "0 0 164 164", "57 57 50 50"},
                                         OverlayCase{375, "0 0 164 164", "57 57 50 50", Release::ios12_4},
                                         OverlayCase{390, "0 0 171 171", "60 60 50 50"},
                                         OverlayCase{414, "0 0 181 181", "65 65 50 50"}),
                         [](const auto& info) {
                             const bool isNew = info.param.release >= Release::ios12_0;
                             return "width_" + std::to_string(static_cast<int>(info.param.screenWidth)) +
                                    (isNew ? "_on_12" : "");
                         });

TEST_F(AlbumListPresentation, thumbnail_side_comes_from_screen_corners_and_stack_view) {
    constexpr struct {
        double screenWidth;
        double cornersWidth;
        double stackWidth;
        double side;
    } cases[] = {
        {320, 0, 180, 136},    {375, 0, 180, 164},   {414, 0, 180, 180}, {768, 0, 200, 334},
        {390, 0, 0, 170},      {390, 0, 180, 170},   {390, 0, 175, 170}, {390, 0, 174.9, 174},
        {390, 0, 120, 120},    {390, 0, 120.9, 120}, {414, 99, 0, 180},  {414, 100, 0, 180},
        {414, 100.01, 0, 101}, {414, 119.5, 0, 120}, {414, 120, 0, 121}, {414, 120.9, 0, 121},
        {414, 260, 0, 261},    {414, 260, 120, 120},
    };
    PUAlbumListViewController* list = openAlbumList({}, {"Holidays"});
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message()
                     << each.cornersWidth << " and " << each.stackWidth << " on " << each.screenWidth);
        reloadPreferences({{"enabled", each.side != 121}});
        change([&](Conditions& conditions) { conditions.screen.width = each.screenWidth; });
        layOutScreen();
        NSIndexPath* path = photos::pathOfAlbum(list, "Holidays");
        [list viewWillAppear:NO];
        PXRoundedCornerOverlayView* corners = [[[PXRoundedCornerOverlayView alloc]
            initWithFrame:CGRectMake(0, 0, each.cornersWidth, 300)] autorelease];
        [corners layoutSubviews];
        stackWidth = each.stackWidth;
        UIView* shown = [configure([CellOfWidth class], path) viewWithTag:tag::lockOverlay];
        EXPECT_EQ([shown frame], CGRectMake(0, 0, each.side, each.side));
    }
}

TEST_F(AlbumListPresentation, overlay_is_kept_and_resized_when_previews_are_turned_off) {
    useTallScreen();
    Texts all;
    PUAlbumListViewController* list = openAlbumList();
    for (const auto& row : photos::describeAlbums(list))
        all.push_back(row.at("title"));
    lockAlbums(all);
    reload();
    ASSERT_EQ(titlesWithOverlay().size(), all.size());
    [overlay("Holidays") setFrame:CGRectMake(1, 2, 3, 4)];

    reloadPreferences({{"lockedAlbumPreview", 1}, {"passOption", 2}});
    reload();
    EXPECT_EQ(titlesWithOverlay().size(), all.size());
    EXPECT_EQ(outline(overlay("Holidays")),
              "UIImageView 0 0 164 164 {UIVisualEffectView 0 0 164 164; UIImageView 57 57 50 50}");
}

TEST_F(AlbumListPresentation, what_the_file_lists_is_locked_by_title) {
    useTallScreen();
    library().addAlbum("Holidays");
    openAlbumList({}, {"Holidays"});
    EXPECT_THAT(titlesWithOverlay(), ElementsAre("Holidays", "Holidays")) << "albums of one title together";
    const json strange = {1, {{"title", "Holidays"}}, "Family", {"Pets"}, true};
    device().writePropertyList(file::lockedAlbums, strange);
    reload();
    EXPECT_THAT(titlesWithOverlay(), ElementsAre("Family")) << "what is no title locks nothing";
}

TEST_F(AlbumListPresentation, only_a_missing_list_is_created) {
    const struct {
        const char* name;
        std::optional<std::string> content;
        bool isUnreadable;
        std::vector<json> saved;
    } cases[] = {
        {"missing", std::nullopt, false, {json::array()}},
        {"no property list", "{", false, {}},
        {"unreadable", "{", true, {}},
    };
    device().writePropertyList("/var/mobile/Library/rollkeeper/lockedAlbumsPaths.plist",
                               {{"of", "no use yet"}});
    PUAlbumListViewController* list = openAlbumList({}, {"Holidays"});
    recordRequests();
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        device().remove(file::lockedAlbums);
        if (each.content) device().writeFile(file::lockedAlbums, *each.content);
        setUnreadable(each.isUnreadable ? file::lockedAlbums : nullptr);
        [list viewWillAppear:NO];
        EXPECT_EQ(takeSavedLists(), each.saved);
        EXPECT_THAT(titlesWithOverlay(), IsEmpty());
    }
}

#pragma mark Counts

TEST_F(AlbumListPresentation, count_of_an_editable_album_includes_moved_photos) {
    hide({0, 1});
    library().addAlbum("It's \"here\"", {identifier(3), identifier(4)});
    openAlbumList();
    EXPECT_EQ(text([contentView("Holidays") subtitle]), "3");
    EXPECT_EQ(text([contentView("It's \"here\"") subtitle]), "2");
    EXPECT_EQ(text([contentView("Camera Roll") subtitle]), "8") << "not an album of the user's";

    reloadPreferences({{"layoutShowSubtitle", false}});
    reload();
    EXPECT_EQ(text([contentView("Holidays") subtitle]), "");
    reloadPreferences({{"enabled", false}});
    reload();
    EXPECT_EQ(text([contentView("Holidays") subtitle]), "3") << "whatever the master switch";
}

TEST_F(AlbumListPresentation, album_titled_screenshots_shows_the_count_of_the_stock_album) {
    useTallScreen();
    library().addAlbum("Screenshots", {identifier(0), identifier(1), identifier(2)});
    openAlbumList();
    Texts counts;
    for (const auto& row : photos::describeAlbums(photos::albumList()))
        if (row.at("title") == "Screenshots") counts.push_back(row.at("subtitle"));
    EXPECT_THAT(counts, ElementsAre("1", "1"));
}

#pragma mark Cells

TEST_F(AlbumListPresentation, every_configuration_and_appearance_adds_a_press_recogniser) {
    PUAlbumListViewController* list = openAlbumList();
    UIView* cell = photos::albumCell(list, "Holidays");
    UIView* bar = [[list navigationController] navigationBar];
    for (const auto& [view, duration] : {std::pair{cell, 0.9}, {bar, 1.0}}) {
        const NSUInteger before = [[view gestureRecognizers] count];
        ASSERT_GE(before, 1U);
        for (UILongPressGestureRecognizer* press in [view gestureRecognizers])
            EXPECT_EQ([press minimumPressDuration], duration);
        [cell setHidden:YES];
        view == cell ? reload() : [list viewWillAppear:NO];
        EXPECT_EQ([[view gestureRecognizers] count], before + 1);
        EXPECT_EQ([cell isHidden], view == bar) << "a configured cell is visible";
    }
}

TEST_F(AlbumListPresentation, buttons_are_there_in_edit_mode_only) {
    openAlbumList();
    const auto expectNone = [&] {
        for (const char* title : {"Holidays", "Camera Roll"})
            for (const NSInteger tag : {tag::moveButton, tag::lockButton})
                EXPECT_TRUE(button(title, tag) == nil) << title << tag;
    };
    expectNone();
    photos::setEditing(true);
    reload();
    EXPECT_EQ([button("Holidays", tag::moveButton) frame], CGRectMake(0, 40, 22, 22));
    EXPECT_EQ([button("Holidays", tag::lockButton) frame], CGRectMake(0, 70, 22, 22));
    EXPECT_TRUE([[contentView("Holidays") subviews] lastObject] == button("Holidays", tag::lockButton));
    EXPECT_EQ([button("Camera Roll", tag::lockButton) frame], CGRectMake(0, 10, 22, 22));
    EXPECT_TRUE(button("Camera Roll", tag::moveButton) == nil);
    photos::setEditing(false);
    layOutScreen();
    expectNone();
}

BOOL respondsToAllButCreateButtons(id self, SEL, SEL selector) {
    return !sel_isEqual(selector, @selector(createButtons)) &&
           class_respondsToSelector(object_getClass(self), selector);
}

TEST_F(AlbumListPresentation, cells_that_cannot_have_buttons_are_decorated_all_the_same) {
    NSIndexPath* path = photos::pathOfAlbum(openAlbumList({}, {"Holidays"}), "Holidays");
    photos::setEditing(true);
    class_replaceMethod([PUAlbumListCellContentView class], @selector(respondsToSelector:),
                        reinterpret_cast<IMP>(respondsToAllButCreateButtons), "C@::");
    UIView* content = configure([PUAlbumListCell class], path);
    EXPECT_TRUE([content viewWithTag:tag::lockOverlay] != nil);
    EXPECT_TRUE([content viewWithTag:tag::lockButton] == nil);
}

TEST_F(AlbumListPresentation, images_are_shown_where_they_are_installed) {
    constexpr struct {
        const char* file;
        int preview;
        NSInteger ownerTag;
    } cases[] = {{"whitelock.png", 0, tag::lockOverlay},
                 {"padlock.png", 1, tag::lockOverlay},
                 {"whitelock.png", 2, tag::lockOverlay},
                 {"move.png", 3, tag::moveButton},
                 {"greenlock.png", 3, tag::lockButton}};
    PUAlbumListViewController* list = openAlbumList({}, {"Holidays"});
    NSIndexPath* path = photos::pathOfAlbum(list, "Holidays");
    photos::setEditing(true);
    NSData* png = UIImagePNGRepresentation([UIImage imageWithPixelSize:CGSizeMake(4, 4) seed:1]);
    const std::string_view bytes(static_cast<const char*>([png bytes]), [png length]);
    for (const auto& each : cases) {
        SCOPED_TRACE(each.file);
        const std::string image = std::string("/Library/Application Support/rollkeeper/") + each.file;
        reloadPreferences({{"lockedAlbumPreview", each.preview}});
        for (const bool isInstalled : {false, true}) {
            device().remove(image);
            if (isInstalled) device().writeFile(image, bytes);
            UIView* owner = [configure([PUAlbumListCell class], path) viewWithTag:each.ownerTag];
            UIView* shown = [[owner subviews] count] > 0 ? [[owner subviews] lastObject] : owner;
            ASSERT_TRUE([shown isKindOfClass:[UIImageView class]]);
            EXPECT_EQ([static_cast<UIImageView*>(shown) image] != nil, isInstalled);
        }
    }
}

} // namespace
} // namespace simulator::test
