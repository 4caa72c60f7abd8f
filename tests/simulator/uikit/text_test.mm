#import "simulator/uikit/uikit_test.h"

#include "UIKit/model/TextMetrics.h"

#include <limits>

namespace simulator::test {

namespace {

constexpr CGFloat endless = std::numeric_limits<CGFloat>::max();

struct TextCase {
    const char* name;
    const char16_t* text;
    TextStyle style;
    CGSize constraint;
    CGSize size;
};

class Text : public testing::TestWithParam<TextCase> {};

TEST_P(Text, takes_the_room_of_its_glyphs_within_the_constraint) {
    const TextCase& example = GetParam();
    EXPECT_EQ(measureText(example.text, example.style, example.constraint, LineBreaking::words),
              example.size);
}

// At 10 points a small letter is 5 wide, a thin one or a space 2.5, and a line 12 high.
INSTANTIATE_TEST_SUITE_P(
    sizes, Text,
    testing::Values(TextCase{"empty", u"", {10}, {endless, endless}, {0, 0}},
                    TextCase{"one_line", u"abcd", {10}, {endless, endless}, {20, 12}},
                    TextCase{"rounded_up", u"il.", {10}, {endless, endless}, {8, 12}},
                    TextCase{"bold_is_wider", u"abcd", {10, true}, {endless, endless}, {22, 12}},
                    TextCase{"twice_the_size", u"abcd", {20}, {endless, endless}, {40, 24}},
                    TextCase{"two_paragraphs", u"ab\nabc", {10}, {endless, endless}, {15, 24}},
                    TextCase{"an_empty_line_counts", u"ab\n\nab", {10}, {endless, endless}, {10, 36}},
                    TextCase{"wraps_between_words", u"abcd efgh", {10}, {30, endless}, {20, 24}},
                    TextCase{"wraps_a_long_word", u"abcdefgh", {10}, {20, endless}, {20, 24}},
                    TextCase{"only_whole_lines", u"abcd efgh", {10}, {30, 20}, {20, 12}},
                    TextCase{"never_larger_than_the_constraint", u"abcd", {10}, {3, 4}, {3, 4}},
                    TextCase{"emoji_are_square", u"\U0001F512", {10}, {endless, endless}, {10, 12}},
                    TextCase{
                        "accents_that_combine_take_no_room", u"e\u0301", {10}, {endless, endless}, {5, 12}},
                    TextCase{"half_a_surrogate_is_no_crash", u"\xD83D", {10}, {endless, endless}, {6, 12}}),
    [](const auto& info) { return info.param.name; });

TEST(TextFaces, strings_and_labels_measure_alike) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    UIFont* font = [UIFont systemFontOfSize:10];
    const CGSize size = [@"abcd efgh" sizeWithFont:font
                                 constrainedToSize:CGSizeMake(30, 100)
                                     lineBreakMode:NSLineBreakByWordWrapping];
    EXPECT_EQ(size, CGSizeMake(20, 24));
    UILabel* label = [[[UILabel alloc] initWithFrame:CGRectMake(0, 0, 30, 0)] autorelease];
    [label setText:@"abcd efgh"];
    [label setFont:font];
    [label setNumberOfLines:0];
    [label sizeToFit];
    EXPECT_EQ([label frame], CGRectMake(0, 0, 20, 24));
    [label setNumberOfLines:1];
    [label sizeToFit];
    EXPECT_EQ([label bounds].size, CGSizeMake(43, 12));
    [pool drain];
}

} // namespace

} // namespace simulator::test
