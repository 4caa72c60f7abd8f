// Every application starts in a process of its own, shows its first screen and does what it is there for.
#include "device/exceptions.h"
#include "support/library_fixture.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace simulator::test {
namespace {

using nlohmann::json;

struct ApplicationCase {
    const char* bundleIdentifier;
    const char* controller; // of the first screen
    json action;
    std::size_t photosAfterwards; // in the library
    std::size_t albumPhotos = 0;  // that the action's answer lists of "Holidays", which has three
};

class Applications : public LibraryTest, public testing::WithParamInterface<ApplicationCase> {};

std::size_t photosOfHolidays(const json& answer) {
    const auto row = std::ranges::find_if(answer, [](const json& each) {
        return each.is_object() && each.value("title", json()) == "Holidays";
    });
    return row == answer.end() || !row->contains("photos") ? 0 : row->at("photos").size();
}

TEST_P(Applications, show_their_first_screen_and_do_what_they_are_for) {
    HostProcess process = startProcess(GetParam().bundleIdentifier, false);
    EXPECT_THAT(process.call("viewTree").at("keyWindow").dump(), testing::HasSubstr(GetParam().controller));
    EXPECT_EQ(photosOfHolidays(process.call(GetParam().action)), GetParam().albumPhotos);
    EXPECT_EQ(library().visibleAssets().size(), GetParam().photosAfterwards);
    process.stop();
}

TEST_F(LibraryTest, ends_an_application_that_reads_photos_without_saying_why) {
    for (const Release release : {Release::ios9_3, Release::ios10_1}) {
        change([&](Conditions& conditions) { conditions.release = release; });
        HostProcess process = startProcess(host::saver, false);
        const auto failure = standardExceptionOf([&] { process.call("listPicker"); });
        EXPECT_EQ(failure.has_value(), release >= Release::ios10_1);
        if (failure) waitFor([&] { return !process.isRunning(); });
        EXPECT_EQ(process.isRunning(), !failure);
    }
}

const json ready = {{"do", "ready"}};
const json listPicker = {{"do", "listPicker"}};

INSTANTIATE_TEST_SUITE_P(
    All, Applications,
    testing::Values(ApplicationCase{host::springBoard, "SBIconView", ready, 10},
                    ApplicationCase{host::photos,
                                    "PUAlbumListViewController",
                                    {{"do", "openAlbum"}, {"title", "Pets"}},
                                    10},
                    ApplicationCase{host::camera, "CAMViewfinderViewController", {{"do", "takePhoto"}}, 11},
                    ApplicationCase{host::settings, "PSUIPrefsListController", listPicker, 10, 3},
                    ApplicationCase{host::messenger, "MNMontageAlbumListViewController", listPicker, 10, 3},
                    ApplicationCase{host::whatsApp, "WAAlbumPickerViewController", listPicker, 10, 3},
                    ApplicationCase{host::imgur, "IMGAlbumPickerViewController", listPicker, 10, 3},
                    ApplicationCase{host::plain, "PlainViewController", listPicker, 10, 3},
                    ApplicationCase{host::saver, "PlainViewController", {{"do", "saveImage"}}, 11},
                    ApplicationCase{host::jolly, "PlainViewController", {{"do", "saveImage"}}, 11}),
    [](const auto& info) {
        std::string name = info.param.bundleIdentifier;
        std::ranges::replace(name, '.', '_');
        return name;
    });

} // namespace
} // namespace simulator::test
