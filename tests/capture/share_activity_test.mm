// Saving from a share sheet: the album that is asked for afterwards, and what becomes of the saved picture.
#include "capture/capture_fixture.h"

#include <algorithm>
#include <tuple>

namespace simulator::test {
namespace {

using ShareActivity = CaptureTest;

TEST_F(ShareActivity, puts_the_saved_picture_into_the_album_that_is_picked) {
    open(host::plain);
    recordRequests();
    const Step steps[] = {{"Pets", false, {10}, {}},           {"Pets", true, {10, 11}, {11}},
                          {"Cancel", true, {}, {11}},          {"Work", true, {6, 13}, {11, 13}},
                          {cameraRoll, false, {14}, {11, 13}}, {cameraRoll, true, {14, 15}, {11, 13, 15}}};
    for (const Step& step : steps) {
        setMoves(step.moves);
        save();
        answer(step.album);
        expect(step);
    }
    EXPECT_EQ(library().collections(CollectionKind::album).size(), 5U) << "\"Camera Roll\" was created, once";
    EXPECT_EQ(takeRequests(), std::vector<json>());
}

TEST_F(ShareActivity, leaves_the_picture_where_it_is_when_an_album_is_created) {
    open(host::plain);
    UISaveToCameraRollActivity* activity = save();
    answer("Cancel");
    [activity movePhoto]; // nothing has been picked yet
    settle();
    EXPECT_EQ(library().collections(CollectionKind::album).size(), 4U);
    setMoves(true);
    for (const char* title : {"Garden", ""}) {
        save();
        createAlbum(title);
        settle();
        EXPECT_EQ(hiddenNumbers().size(), *title ? 0U : 1U);
        [activity movePhoto]; // to the last title, which the empty one has not replaced
        settle();
    }
    expect({"Garden", true, {11, 12}, {11, 12}});
}

TEST_F(ShareActivity, asks_as_soon_as_the_save_has_begun_if_a_picture_is_shared) {
    open(host::plain);
    save(0);
    EXPECT_TRUE(frontAlert() == nil);
    save(3);
    EXPECT_EQ(alertTitle(), "Choose Album");
    tapAlertAction("Cancel");
    for (const char* key : {"enabled", "saveActivityEnabled"}) {
        reloadPreferences({{key, false}});
        save();
        EXPECT_TRUE(frontAlert() == nil) << key;
    }
    settle();
    EXPECT_EQ(library().assets().size(), 15U) << "saved all the same";
}

TEST_F(ShareActivity, acts_on_the_newest_photo_of_the_moment) {
    open(host::plain, {{"saveActivityMove", true}});
    whileLibraryIsBusy([&] {
        save();
        tapAlertAction("Pets");
    });
    EXPECT_EQ(library().assets().size(), 10U);
    expect({"Pets", true, {9}, {9}}); // the picture was not there yet
    save();
    library().addAsset({.created = 2'000'000'000});
    answer("Pets");
    expect({"Pets", true, {9, 12}, {9, 12}}); // newer than what was shared
}

class ShareActivityOf : public CaptureTest, public testing::WithParamInterface<const char*> {};

TEST_P(ShareActivityOf, loads_what_hides_when_it_hides_and_not_before) {
    open(GetParam());
    const auto canHide = [] { return objc_getClass("PUAssetHidingHelper") != Nil; };
    save();
    answer("Pets");
    expect({"Pets", false, {10}, {}});
    EXPECT_FALSE(canHide());
    setMoves(true);
    save();
    answer("Pets");
    expect({"Pets", true, {10, 11}, {11}});
    EXPECT_TRUE(canHide());
}

std::string nameOf(const std::string& application) { return application.substr(application.rfind('.') + 1); }

INSTANTIATE_TEST_SUITE_P(Applications, ShareActivityOf,
                         testing::Values(host::plain, host::messenger, host::whatsApp, host::imgur),
                         [](const auto& info) { return nameOf(info.param); });

class ShareActivityOn : public CaptureTest,
                        public testing::WithParamInterface<std::tuple<const char*, Release>> {};

// From iOS 10 on an application that reads photos without saying why is ended.
TEST_P(ShareActivityOn, asks_only_where_reading_the_library_is_safe) {
    const auto [application, release] = GetParam();
    change([&](Conditions& conditions) { conditions.release = release; });
    open(application);
    std::size_t pictures = library().assets().size();
    using enum PhotoAccess;
    for (const PhotoAccess access : {ifAsked, notDetermined, restricted, denied, authorized}) {
        SCOPED_TRACE(static_cast<int>(access));
        change([&](Conditions& conditions) { conditions.photoAccess = access; });
        save();
        const bool isSafe = application == host::plain || release < Release::ios10_1 || access == authorized;
        EXPECT_EQ(alertTitle(), isSafe ? "Choose Album" : "");
        if (isSafe) tapAlertAction("Cancel");
        settle();
        EXPECT_EQ(library().assets().size(), ++pictures) << "saved all the same";
    }
}

INSTANTIATE_TEST_SUITE_P(All, ShareActivityOn,
                         testing::Combine(testing::Values(host::plain, host::saver),
                                          testing::Values(Release::ios8_4, Release::ios9_3, Release::ios10_1,
                                                          Release::ios11_4, Release::ios12_4)),
                         [](const auto& info) {
                             std::string name(releaseName(std::get<1>(info.param)));
                             std::ranges::replace(name, '.', '_');
                             return nameOf(std::get<0>(info.param)) + "_" + name;
                         });

BOOL (*originalResponds)(id, SEL, SEL);
BOOL saysNothingOfAuthorization(id self, SEL command, SEL selector) {
    return !sel_isEqual(selector, @selector(authorizationStatus)) &&
           originalResponds(self, command, selector);
}

// An old release under a new version number does not end applications.
TEST_F(ShareActivity, takes_a_library_that_cannot_be_asked_as_authorized_and_asks_from_ios_10_on) {
    change([](Conditions& conditions) {
        conditions.release = Release::ios9_3;
        conditions.coreFoundationVersion = 1348.0;
        conditions.photoAccess = PhotoAccess::denied;
    });
    open(host::saver);
    save();
    EXPECT_TRUE(frontAlert() == nil);
    MSHookMessageEx(object_getClass(objc_getClass("PHPhotoLibrary")), @selector(respondsToSelector:),
                    reinterpret_cast<IMP>(&saysNothingOfAuthorization),
                    reinterpret_cast<IMP*>(&originalResponds));
    save();
    EXPECT_EQ(alertTitle(), "Choose Album");
}

} // namespace
} // namespace simulator::test
