// The page that the tour writes about itself.
#include "support/environment.h"

#include "UIKit/model/SvgCanvas.h"
#include "tour/scenarios.h"
#include "tour/story.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>

namespace simulator::tour {
namespace {

using testing::HasSubstr;
using testing::Not;

std::size_t count(const std::string& text, const std::string& pattern) {
    const std::regex expression(pattern);
    return static_cast<std::size_t>(
        std::distance(std::sregex_iterator(text.begin(), text.end(), expression), std::sregex_iterator()));
}

std::string drawing(double x) {
    SvgCanvas canvas({375, 667});
    canvas.beginGroup({0, 0}, 1, {{0, 0}, {375, 600}});
    canvas.scenery({{x, 20}, {40, 30}}, SvgFit::fill, {40, 30}, 7);
    canvas.endGroup();
    return canvas.document();
}

// What the browser would ask somebody else for, and names that nothing in the page has.
void expectSelfContained(const std::string& page) {
    EXPECT_EQ(count(page, R"re(https?:|<script|<link|<iframe|@import|src=|url\((?!#))re"), 0U);
    EXPECT_EQ(count(page, R"re(href="(?!#|data:image/png;base64,))re"), 0U);
    const std::regex reference(R"re((?:href="#|url\(#)([^")]+))re");
    for (std::sregex_iterator each(page.begin(), page.end(), reference), end; each != end; ++each)
        EXPECT_EQ(count(page, " id=\"" + (*each)[1].str() + "\""), 1U) << (*each)[1];
}

TEST(Story, shows_each_line_with_its_screens_touches_and_library) {
    const std::vector<StoryShelf> library = {
        {"Tom & <Jerry>", {{.number = "1", .scenery = 7}, {.number = "2", .isHidden = true, .png = "P"}}}};
    const std::vector<StoryChapter> chapters = {
        {"One \"&\" <two>",
         {{.kind = StoryStep::Kind::told,
           .text = "<b>tapped</b>",
           .screens = {{"Photos", drawing(1), CGPoint{10, 20}}, {"Camera", drawing(2)}},
           .table = {{"app", "<count>"}, {"Photos", "3"}}},
          {.kind = StoryStep::Kind::seen, .text = "below"},
          {.kind = StoryStep::Kind::seen,
           .text = "again",
           .screens = {{"Photos", drawing(1)}},
           .library = library}}}};
    const std::string page = storyAsHtml(chapters, "A & B");
    expectSelfContained(page);
    for (const char* escaped :
         {"One &quot;&amp;&quot; &lt;two&gt;", "&lt;b&gt;tapped&lt;/b&gt;", "Tom &amp; &lt;Jerry&gt;",
          "<th>&lt;count&gt;</th>", "A &amp; B", "<td>3</td>", "href=\"data:image/png;base64,UA==\"",
          "aria-label=\"Photo 2 hidden\"", "cx=\"10\" cy=\"20\"", "Everything happened"})
        EXPECT_THAT(page, HasSubstr(escaped));
    EXPECT_EQ(count(page, "<figure"), 3U);
    EXPECT_EQ(count(page, "<symbol"), 2U) << "one screen is there twice";
    EXPECT_EQ(count(page, "id=\"scenery7\""), 1U);
    EXPECT_EQ(count(page, "<ul class=\"lines\">"), 2U) << "the line without pictures stands below the first";
    EXPECT_EQ(count(page, "<circle class"), 1U);
}

TEST(Story, shows_where_it_failed_and_what_was_not_reached) {
    const std::string page = storyAsHtml({{"First",
                                           {{.kind = StoryStep::Kind::failed,
                                             .text = "this did not happen",
                                             .screens = {{"Photos", drawing(1)}}}}},
                                          {"Second", {}}},
                                         "");
    for (const char* expected :
         {"It failed in “First”", "<li class=\"failed\">this did not happen</li>", "Not reached."})
        EXPECT_THAT(page, HasSubstr(expected));
    EXPECT_THAT(page, Not(HasSubstr("Everything happened")));
    expectSelfContained(page);
}

// Plays the last scenario, that of the settings pane, and returns the page; `status` is that of the program.
std::string storyOfTour(const std::string& library, int& status) {
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() / ("story-" + std::to_string(getpid()));
    const std::string command = std::string(TEST_TOUR_PROGRAM) + " --library '" + library + "' --host '" +
                                test::hostProgram() + "' --device-files '" + test::deviceFiles() +
                                "' --scenario " + std::to_string(std::extent_v<decltype(scenarios)>) +
                                " --story '" + file.string() + "' >/dev/null 2>&1";
    status = std::system(command.c_str());
    std::ifstream stream(file);
    std::string page(std::istreambuf_iterator<char>(stream), {});
    std::filesystem::remove(file);
    return page;
}

TEST(Story, is_written_by_the_tour_whether_it_succeeds_or_fails) {
    int status = -1;
    const std::string page = storyOfTour(test::libraryFile(), status);
    EXPECT_EQ(status, 0);
    expectSelfContained(page);
    EXPECT_GE(count(page, "<circle class=\"touch\""), 3U) << "entry, row and switch";
    EXPECT_THAT(page, HasSubstr("<figcaption>Settings</figcaption>"));
    EXPECT_EQ(count(page, "aria-label=\"Photo library\""), 1U) << "it does not change";

    const std::string failed = storyOfTour("/nowhere/library.so", status);
    EXPECT_NE(status, 0);
    EXPECT_THAT(failed, HasSubstr("<li class=\"failed\">com.apple.mobileslideshow"));
}

} // namespace
} // namespace simulator::tour
