// The sheet that asks for an album and the alert that creates one, in the Camera and after a save.
#include "capture/capture_fixture.h"

namespace simulator::test {
namespace {

// In the Camera, or else in an application with a share sheet.
class Chooser : public CaptureTest, public testing::WithParamInterface<bool> {
  protected:
    const bool isCamera = GetParam();
    id owner = nil; // of the methods
    void openHost(const json& preferences = json::object()) {
        isCamera ? openCamera({}, preferences) : open(host::plain, preferences);
        owner = isCamera ? static_cast<id>(bar()) : [[[UISaveToCameraRollActivity alloc] init] autorelease];
    }
    // That the chooser offers the titles; it closes again.
    void expectOffer(const Texts& titles) {
        [owner chooseAlbum];
        Texts expected = {"sheet", "Choose Album", "Choose the album to save the photo to."};
        std::ranges::copy(titles, std::back_inserter(expected));
        expected.insert(expected.end(), {"Cancel (cancel)", newAlbum});
        EXPECT_EQ(shownAlert(), expected);
        tapAlertAction("Cancel");
    }
};

TEST_P(Chooser, offers_every_regular_album_in_order_and_afresh_each_time) {
    lockAlbums({"Work"});
    openHost({{"showLockedinCamera", false}, {"showLockedinSaveActivity", false}, {"albumNamePets", false}});
    expectOffer({cameraRoll, "Holidays", "Family", "Work", "Pets"});
    for (const char* title : {"Holidays", "Family", "Work", "Pets"})
        deleteAlbum(title);
    expectOffer({cameraRoll});
    library().addAlbum("Only");
    expectOffer({cameraRoll, "Only"});
    library().addAlbum(std::nullopt);
    library().addAlbum(cameraRoll);
    library().addAlbum("Only");
    expectOffer({cameraRoll, "Only", cameraRoll, "Only"});
}

std::vector<std::tuple<id, bool, bool>> presentations; // by whom, animated, with a completion
void (*originalPresent)(id, SEL, id, BOOL, id);
void recordPresentation(id self, SEL command, id controller, BOOL animated, id completion) {
    presentations.emplace_back(self, animated != NO, completion != nil);
    originalPresent(self, command, controller, animated, completion);
}

TEST_P(Chooser, and_the_alert_for_a_new_album_are_presented_by_the_screen_itself) {
    openHost();
    UIWindow* window = [[UIApplication sharedApplication] keyWindow];
    UIViewController* presenter = [window rootViewController];
    if (isCamera)
        [window setRootViewController:[[[UINavigationController alloc] initWithRootViewController:presenter]
                                          autorelease]];
    layOutScreen();
    replaceMethod("UIViewController", @selector(presentViewController:animated:completion:),
                  &recordPresentation, &originalPresent);
    [owner chooseAlbum];
    tapAlertAction(newAlbum);
    EXPECT_EQ(shownAlert(), (Texts{"alert", "Enter new album title", "", "[]", "OK"}));
    EXPECT_TRUE(presentations == decltype(presentations)(2, {presenter, true, false}));
}

TEST_P(Chooser, points_at_the_button_or_the_whole_view_on_a_pad) {
    change([](Conditions& conditions) { conditions.idiom = Idiom::pad; });
    openHost();
    [owner chooseAlbum];
    EXPECT_TRUE(anchor() == (isCamera ? albumImage() : rootView()));
    createAlbum("Garden");
}

INSTANTIATE_TEST_SUITE_P(Copies, Chooser, testing::Bool(),
                         [](const auto& info) { return info.param ? "Camera" : "ShareSheet"; });

TEST_F(CaptureTest, the_cameras_choice_shows_under_the_button_and_is_written_every_time) {
    openCamera("Family");
    recordRequests();
    std::vector<json> expected;
    const auto expectChoice = [&](const std::string& title) {
        EXPECT_EQ(labelMeasuredIn({380, 20}), title);
        expected.push_back({{"id", "com.apple.camera"},
                            {"array", {title}},
                            {"path", "/private/var/mobile/Library/rollkeeper/album.tct"}});
    };
    for (const char* title : {"Pets", "Holidays", "Holidays", cameraRoll}) {
        choose(title);
        expectChoice(title);
    }
    reloadPreferences({{"rememberDefault", false}});
    for (const char* title : {"Garden", " ", cameraRoll, longTitle, "%@ \"it's\" \\", "Pets"}) {
        tap(albumImage());
        createAlbum(title);
        expectChoice(title);
    }
    choose("Cancel");
    tap(albumImage());
    createAlbum("");
    EXPECT_EQ(labelMeasuredIn({380, 20}), "Pets");
    settle();
    change([](Conditions& conditions) { conditions.faults.refuseLibraryChanges = true; });
    tap(albumImage());
    createAlbum("Refused");
    expectChoice("Refused");
    EXPECT_EQ(takeRequests(), expected);
    EXPECT_EQ(library().collections(CollectionKind::album).size(), 10U) << "each new title was created";
    capture(camera::failCapture);
    expect({"Refused", true, {}, {}});
    change([](Conditions& conditions) { conditions.faults.refuseLibraryChanges = false; });
    capture(camera::failCapture);
    expect({"Refused", true, {9}, {9}});
}

} // namespace
} // namespace simulator::test
