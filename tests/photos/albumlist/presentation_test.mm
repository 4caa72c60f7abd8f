// What the album list shows: thumbnails, lock overlays, counts, recognisers and cell buttons.
#include "support/photos_fixture.h"

#include <gmock/gmock.h>

#include <sstream>

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

// The content of a cell of another kind, to which nobody adds buttons.
@interface OtherContentView : UIView {
    NSString* _title;
    NSString* _subtitle;
    NSUInteger _editCapabilities;
    BOOL _editing;
    id _delegate;
    PUStackView* _stackView;
}
@property (nonatomic, copy) NSString* title;
@property (nonatomic, copy) NSString* subtitle;
@property (nonatomic) NSUInteger editCapabilities;
@property (nonatomic, getter=isEditing) BOOL editing;
@property (nonatomic, assign) id delegate;
@property (nonatomic, retain) PUStackView* stackView;
@end

@implementation OtherContentView

@synthesize title = _title, subtitle = _subtitle, editCapabilities = _editCapabilities, editing = _editing;
@synthesize delegate = _delegate, stackView = _stackView;

- (void)dealloc {
    [_title release];
    [_subtitle release];
    [_stackView release];
    [super dealloc];
}

- (UIButton*)_deleteButton {
    return nil;
}

@end

@interface OtherCell : PUAlbumListCell {
    OtherContentView* _other;
}
@end

@implementation OtherCell

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _other = [[OtherContentView alloc] initWithFrame:frame];
    [_other setStackView:[[[PUStackView alloc] initWithFrame:frame] autorelease]];
    [_other addSubview:[_other stackView]];
    return self;
}

- (void)dealloc {
    [_other release];
    [super dealloc];
}

- (PUAlbumListCellContentView*)albumListCellContentView {
    return static_cast<PUAlbumListCellContentView*>(static_cast<UIView*>(_other));
}

@end

namespace simulator::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// "UIImageView 0 0 136 136 {UIVisualEffectView 0 0 136 136; UIImageView 43 43 50 50}".
std::string outline(UIView* view) {
    if (view == nil) return "none";
    std::ostringstream out;
    const CGRect frame = [view frame];
    out << text(NSStringFromClass([view class])) << ' ' << frame.origin.x << ' ' << frame.origin.y << ' '
        << frame.size.width << ' ' << frame.size.height;
    const bool isOpaqueToTests = [view isKindOfClass:[UIVisualEffectView class]];
    if (isOpaqueToTests || [[view subviews] count] == 0) return out.str();
    std::string separator = " {";
    for (UIView* subview in [view subviews]) {
        out << separator << outline(subview);
        separator = "; ";
    }
    return out.str() + "}";
}

class AlbumListPresentation : public PhotosTest {
  protected:
    // A cell configured outside the screen, for the album of that title.
    PUAlbumListCell* configure(Class cellClass, const std::string& title) {
        PUAlbumListViewController* list = photos::albumList();
        UICollectionView* view = [list mainCollectionView];
        layOutScreen();
        [view registerClass:cellClass forCellWithReuseIdentifier:@"album"];
        return static_cast<PUAlbumListCell*>([list collectionView:view
                                           cellForItemAtIndexPath:photos::pathOfAlbum(list, title)]);
    }
    std::vector<std::string> titlesWithOverlay() {
        std::vector<std::string> titles;
        for (PUAlbumListCell* cell in [[photos::albumList() mainCollectionView] visibleCells]) {
            PUAlbumListCellContentView* content = [cell albumListCellContentView];
            if ([content viewWithTag:tag::lockOverlay]) titles.push_back(text([content title]));
        }
        return titles;
    }
    // So that every album is on the screen at once.
    void useTallScreen() {
        change([](Conditions& conditions) { conditions.screen.height = 2000; });
    }
};

struct OverlayCase {
    double screenWidth;
    int preview;
    const char* outline;
};

class LockOverlay : public AlbumListPresentation, public testing::WithParamInterface<double> {};

// Thumbnails of 175 points and more take their side from the corners drawn over them, and a point more.
constexpr OverlayCase overlayCases[] = {
    {320, 0, "UIImageView 0 0 136 136 {UIVisualEffectView 0 0 136 136; UIImageView 43 43 50 50}"},
    {320, 1, "UIImageView 0 0 136 136"},
    {320, 2, "UIImageView 0 0 136 136 {UIImageView 43 43 50 50}"},
    {320, 3, "none"},
    {375, 0, "UIImageView 0 0 164 164 {UIVisualEffectView 0 0 164 164; UIImageView 57 57 50 50}"},
    {375, 1, "UIImageView 0 0 164 164"},
    {375, 2, "UIImageView 0 0 164 164 {UIImageView 57 57 50 50}"},
    {375, -1, "none"},
    {390, 0, "UIImageView 0 0 171 171 {UIVisualEffectView 0 0 171 171; UIImageView 60 60 50 50}"},
    {390, 1, "UIImageView 0 0 171 171"},
    {390, 2, "UIImageView 0 0 171 171 {UIImageView 60 60 50 50}"},
    {390, 4, "none"},
    {414, 0, "UIImageView 0 0 181 181 {UIVisualEffectView 0 0 181 181; UIImageView 65 65 50 50}"},
    {414, 1, "UIImageView 0 0 181 181"},
    {414, 2, "UIImageView 0 0 181 181 {UIImageView 65 65 50 50}"},
    {414, 3, "none"},
};

TEST_P(LockOverlay, has_the_chosen_form) {
    change([](Conditions& conditions) { conditions.screen.width = GetParam(); });
    openAlbumList();
    for (const OverlayCase& each : overlayCases) {
        if (each.screenWidth != GetParam()) continue;
        SCOPED_TRACE(each.preview);
        reloadPreferences({{"lockedAlbumPreview", each.preview}});
        lockAlbums({"Holidays"});
        reload();
        EXPECT_EQ(outline(overlay("Holidays")), each.outline);
        EXPECT_TRUE(overlay("Family") == nil);
        if (UIView* shown = overlay("Holidays")) {
            EXPECT_TRUE([shown superview] == [contentView("Holidays") stackView]);
            EXPECT_EQ([shown autoresizingMask], 18U);
            EXPECT_TRUE([[shown superview] autoresizesSubviews]);
        }
        lockAlbums({});
        reload();
        EXPECT_TRUE(overlay("Holidays") == nil) << "an unlocked album keeps its overlay";
    }
}

INSTANTIATE_TEST_SUITE_P(Screens, LockOverlay, testing::Values(320, 375, 390, 414), [](const auto& info) {
    return "width_" + std::to_string(static_cast<int>(info.param));
});

TEST_F(AlbumListPresentation, blurred_overlay_is_dark_and_clipped) {
    openAlbumList({}, {"Holidays"});
    UIView* shown = overlay("Holidays");
    auto blur = static_cast<UIVisualEffectView*>([[shown subviews] firstObject]);
    EXPECT_EQ([static_cast<UIBlurEffect*>([blur effect]) style], UIBlurEffectStyleDark);
    EXPECT_EQ([[blur layer] cornerRadius], 5);
    EXPECT_TRUE([[blur layer] masksToBounds]);
    EXPECT_TRUE([[shown backgroundColor] isEqual:[UIColor clearColor]]);
}

struct WidthCase {
    double screenWidth;
    double stackWidth;
    double side;
};

TEST_F(AlbumListPresentation, thumbnail_side_comes_from_the_screen_unless_the_stack_view_is_narrow) {
    constexpr WidthCase cases[] = {
        {390, 0, 170},   {390, 120, 120}, {390, 120.9, 120}, {390, 174.9, 174}, {390, 175, 170},
        {390, 180, 170}, {320, 180, 136}, {375, 180, 164},   {414, 180, 180},   {768, 200, 334},
    };
    PUAlbumListViewController* list = openAlbumList({}, {"Holidays"});
    UICollectionView* view = [list mainCollectionView];
    for (const WidthCase& each : cases) {
        SCOPED_TRACE(testing::Message() << each.stackWidth << " on " << each.screenWidth);
        change([&](Conditions& conditions) { conditions.screen.width = each.screenWidth; });
        layOutScreen();
        NSIndexPath* path = photos::pathOfAlbum(list, "Holidays");
        [view registerClass:[CellOfWidth class] forCellWithReuseIdentifier:@"album"];
        stackWidth = each.stackWidth;
        [list viewWillAppear:NO];
        auto configured = static_cast<PUAlbumListCell*>([list collectionView:view
                                                      cellForItemAtIndexPath:path]);
        ASSERT_TRUE([configured isKindOfClass:[CellOfWidth class]]);
        UIView* shown = [[configured albumListCellContentView] viewWithTag:tag::lockOverlay];
        EXPECT_EQ([shown frame], CGRectMake(0, 0, each.side, each.side));
    }
}

TEST_F(AlbumListPresentation, overlay_is_kept_and_resized_when_previews_are_turned_off) {
    useTallScreen();
    std::vector<std::string> all;
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

    lockAlbums({});
    reload();
    EXPECT_THAT(titlesWithOverlay(), IsEmpty());
}

TEST_F(AlbumListPresentation, albums_of_one_title_are_locked_together) {
    useTallScreen();
    library().addAlbum("Holidays");
    openAlbumList({}, {"Holidays"});
    EXPECT_THAT(titlesWithOverlay(), ElementsAre("Holidays", "Holidays"));
}

TEST_F(AlbumListPresentation, elements_of_the_list_that_are_no_titles_lock_nothing) {
    useTallScreen();
    const nlohmann::json strange = {1, {{"title", "Holidays"}}, "Family", {"Pets"}, true};
    device().writePropertyList(file::lockedAlbums, strange);
    openAlbumList();
    EXPECT_THAT(titlesWithOverlay(), ElementsAre("Family"));
}

TEST_F(AlbumListPresentation, overlay_and_count_do_not_ask_for_the_master_switch) {
    hide({0});
    openAlbumList();
    reloadPreferences({{"enabled", false}});
    lockAlbums({"Holidays"});
    reload();
    EXPECT_TRUE(overlay("Holidays") != nil);
    EXPECT_EQ(text([contentView("Holidays") subtitle]), "3");
}

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
}

TEST_F(AlbumListPresentation, album_titled_screenshots_shows_the_count_of_the_stock_album) {
    useTallScreen();
    library().addAlbum("Screenshots", {identifier(0), identifier(1), identifier(2)});
    openAlbumList();
    std::vector<std::string> counts;
    for (const auto& row : photos::describeAlbums(photos::albumList()))
        if (row.at("title") == "Screenshots") counts.push_back(row.at("subtitle"));
    EXPECT_THAT(counts, ElementsAre("1", "1"));
}

TEST_F(AlbumListPresentation, every_configuration_adds_a_press_recogniser_to_the_cell) {
    openAlbumList();
    PUAlbumListCell* cell = photos::albumCell(photos::albumList(), "Holidays");
    const NSUInteger before = [[cell gestureRecognizers] count];
    ASSERT_GE(before, 1U);
    for (UILongPressGestureRecognizer* press in [cell gestureRecognizers])
        EXPECT_EQ([press minimumPressDuration], 0.9);

    reload();
    EXPECT_EQ([[cell gestureRecognizers] count], before + 1);
}

TEST_F(AlbumListPresentation, every_appearance_adds_a_press_recogniser_to_the_bar) {
    PUAlbumListViewController* list = openAlbumList();
    const auto presses = [&] { return [[[list navigationController] navigationBar] gestureRecognizers]; };
    const NSUInteger before = [presses() count];
    ASSERT_GE(before, 1U);
    EXPECT_EQ([static_cast<UILongPressGestureRecognizer*>([presses() lastObject]) minimumPressDuration], 1.0);

    [list viewWillAppear:NO];
    EXPECT_EQ([presses() count], before + 1);
}

struct FileCase {
    const char* name;
    std::optional<std::string> content;
    bool isUnreadable;
    bool isCreated;
};

TEST_F(AlbumListPresentation, only_a_missing_list_is_created) {
    const FileCase cases[] = {
        {"missing", std::nullopt, false, true},
        {"no property list", "{", false, false},
        {"unreadable", "{", true, false},
    };
    PUAlbumListViewController* list = openAlbumList({}, {"Holidays"});
    RequestRecorder* recorder = recordRequests();
    for (const FileCase& each : cases) {
        SCOPED_TRACE(each.name);
        device().remove(file::lockedAlbums);
        if (each.content) device().writeFile(file::lockedAlbums, *each.content);
        change([&](Conditions& conditions) {
            conditions.faults.unreadable.clear();
            if (each.isUnreadable) conditions.faults.unreadable.push_back(file::lockedAlbums);
        });
        [list viewWillAppear:NO];
        waitForRequests(recorder, each.isCreated ? 1 : 0);
        const nlohmann::json creation = {{"id", "com.apple.mobileslideshow"},
                                         {"array", nlohmann::json::array()},
                                         {"path", "/var/mobile/Library/rollkeeper/lockedAlbums.plist"}};
        EXPECT_EQ(recorder->requests, each.isCreated ? std::vector{creation} : std::vector<nlohmann::json>());
        EXPECT_THAT(titlesWithOverlay(), IsEmpty());
        recorder->requests.clear();
    }
}

TEST_F(AlbumListPresentation, configured_cells_are_visible) {
    PUAlbumListViewController* list = openAlbumList();
    for (UIView* cell in [[list mainCollectionView] visibleCells])
        [cell setHidden:YES];
    reload();
    for (UIView* cell in [[list mainCollectionView] visibleCells])
        EXPECT_FALSE([cell isHidden]);
}

TEST_F(AlbumListPresentation, buttons_are_there_in_edit_mode_only) {
    openAlbumList();
    EXPECT_TRUE(button("Holidays", tag::moveButton) == nil);
    EXPECT_TRUE(button("Holidays", tag::lockButton) == nil);
    EXPECT_TRUE(button("Camera Roll", tag::lockButton) == nil);

    photos::setEditing(true);
    reload();
    EXPECT_EQ([button("Holidays", tag::moveButton) frame], CGRectMake(0, 40, 22, 22));
    EXPECT_EQ([button("Holidays", tag::lockButton) frame], CGRectMake(0, 70, 22, 22));
    EXPECT_TRUE([[contentView("Holidays") subviews] lastObject] == button("Holidays", tag::lockButton));
    EXPECT_EQ([button("Camera Roll", tag::lockButton) frame], CGRectMake(0, 10, 22, 22));
    EXPECT_TRUE(button("Camera Roll", tag::moveButton) == nil);

    photos::setEditing(false);
    layOutScreen();
    EXPECT_TRUE(button("Holidays", tag::moveButton) == nil);
    EXPECT_TRUE(button("Holidays", tag::lockButton) == nil);
}

TEST_F(AlbumListPresentation, cells_that_cannot_have_buttons_are_decorated_all_the_same) {
    openAlbumList({}, {"Holidays"});
    photos::setEditing(true);
    PUAlbumListCell* cell = configure([OtherCell class], "Holidays");
    auto content = static_cast<UIView*>([cell albumListCellContentView]);
    EXPECT_TRUE([content viewWithTag:tag::lockOverlay] != nil);
    EXPECT_TRUE([content viewWithTag:tag::lockButton] == nil);
}

struct ImageCase {
    const char* file;
    int preview;
    NSInteger ownerTag;
};

TEST_F(AlbumListPresentation, images_are_shown_where_they_are_installed) {
    constexpr ImageCase cases[] = {{"whitelock.png", 0, tag::lockOverlay},
                                   {"padlock.png", 1, tag::lockOverlay},
                                   {"whitelock.png", 2, tag::lockOverlay},
                                   {"move.png", 3, tag::moveButton},
                                   {"greenlock.png", 3, tag::lockButton}};
    openAlbumList({}, {"Holidays"});
    photos::setEditing(true);
    NSData* png = UIImagePNGRepresentation([UIImage imageWithPixelSize:CGSizeMake(4, 4) seed:1]);
    const std::string_view bytes(static_cast<const char*>([png bytes]), [png length]);
    for (const ImageCase& each : cases) {
        SCOPED_TRACE(each.file);
        const std::string path = std::string("/Library/Application Support/rollkeeper/") + each.file;
        for (const bool isInstalled : {false, true}) {
            device().remove(path);
            if (isInstalled) device().writeFile(path, bytes);
            reloadPreferences({{"lockedAlbumPreview", each.preview}});
            PUAlbumListCell* cell = configure([PUAlbumListCell class], "Holidays");
            UIView* owner = [[cell albumListCellContentView] viewWithTag:each.ownerTag];
            UIView* shown = [[owner subviews] count] > 0 ? [[owner subviews] lastObject] : owner;
            ASSERT_TRUE([shown isKindOfClass:[UIImageView class]]);
            EXPECT_EQ([static_cast<UIImageView*>(shown) image] != nil, isInstalled);
        }
    }
}

} // namespace
} // namespace simulator::test
