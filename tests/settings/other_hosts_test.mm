// The settings that no method of Photos shows.
#import "UIKit/ViewTree.h"

#include "device/clock.h"
#include "hosts/applications/camera/camera_app.h"
#include "hosts/applications/plain/plain_app.h"
#include "support/library_fixture.h"

#include <gtest/gtest.h>

namespace simulator::test {
namespace {

struct SwitchCase {
    const char* key;
    std::optional<bool> value; // none: the key is missing
    bool isOn;
};

std::ostream& operator<<(std::ostream& out, const SwitchCase& each) {
    return out << each.key << (each.value ? (*each.value ? " on" : " off") : " missing");
}

class SwitchTest : public LibraryTest, public testing::WithParamInterface<SwitchCase> {
  protected:
    void startWith(const char* bundleIdentifier, nlohmann::json preferences = nlohmann::json::object()) {
        if (GetParam().value) preferences[GetParam().key] = *GetParam().value;
        writePreferences(preferences);
        start(bundleIdentifier);
    }
    // Hiding takes a moment; a photo that is hidden by mistake has one, too.
    void expectHiddenPhotos(std::size_t count) {
        settle();
        waitFor([&] {
            return library().assets({.includeHidden = true}).size() - library().visibleAssets().size() ==
                   count;
        });
    }
};

auto casesOf(const char* key, bool fallback) {
    return testing::Values(SwitchCase{key, std::nullopt, fallback}, SwitchCase{key, true, true},
                           SwitchCase{key, false, false});
}

using LockedFromApps = SwitchTest;

TEST_P(LockedFromApps, keeps_moved_photos_of_a_locked_album_from_other_applications) {
    library().setHidden(library().assets().front().identifier, true);
    lockAlbums({"Holidays"});
    startWith(host::plain);
    EXPECT_EQ([[PHAsset fetchAssetsInAssetCollection:album(@"Holidays") options:nil] count],
              GetParam().isOn ? 2U : 3U);
}

INSTANTIATE_TEST_SUITE_P(Values, LockedFromApps, casesOf("hideLockedFromApps", true));

using CameraPicker = SwitchTest;

TEST_P(CameraPicker, puts_the_album_button_into_the_camera) {
    startWith(host::camera);
    UIView* bar = [camera::viewfinder() bottomBar];
    [bar layoutSubviews];
    EXPECT_EQ([bar viewWithTag:77] != nil, GetParam().isOn);
}

INSTANTIATE_TEST_SUITE_P(Values, CameraPicker, casesOf("enableCameraPicker", true));

using PickerMoves = SwitchTest;

TEST_P(PickerMoves, hides_a_new_photo_that_went_into_an_album) {
    change([](Conditions& conditions) { conditions.manualClock = true; });
    device().writePropertyList(file::cameraAlbum, {"Pets"});
    startWith(host::camera, {{"rememberDefault", true}});
    camera::takePhoto();
    clock().advance(1);
    camera::waitForCaptureThread();
    const auto pets = library().albumTitled("Pets").value();
    waitFor([&] { return library().assetsIn(pets, {.includeHidden = true}).size() == 1; });
    expectHiddenPhotos(GetParam().isOn ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Values, PickerMoves, casesOf("pickerMovePhotos", true));

using SaveActivity = SwitchTest;

TEST_P(SaveActivity, asks_for_an_album_when_a_picture_is_saved) {
    startWith(host::plain);
    plain::saveImage();
    settle();
    EXPECT_EQ(frontAlert() != nil, GetParam().isOn);
}

INSTANTIATE_TEST_SUITE_P(Values, SaveActivity, casesOf("saveActivityEnabled", true));

using SaveMoves = SwitchTest;

TEST_P(SaveMoves, hides_a_saved_picture_that_went_into_an_album) {
    startWith(host::plain);
    plain::saveImage();
    waitFor([] { return frontAlert() != nil; });
    tapAlertAction("Pets");
    const auto pets = library().albumTitled("Pets").value();
    waitFor([&] { return library().assetsIn(pets, {.includeHidden = true}).size() == 1; });
    expectHiddenPhotos(GetParam().isOn ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Values, SaveMoves, casesOf("saveActivityMove", false));

} // namespace
} // namespace simulator::test
