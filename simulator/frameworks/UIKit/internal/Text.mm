#import "UIKit/internal/Text.h"

#include <algorithm>
#include <cmath>

namespace simulator {

namespace {

struct GlyphRange {
    unichar first;
    unichar last;
    CGFloat width;
};

// The first range that holds a unit of the text counts. Of a surrogate pair the first half has the width.
constexpr GlyphRange glyphRanges[] = {
    {' ', ' ', 0.25},    {'!', '!', 0.25},       {'\'', '\'', 0.25},  {',', ',', 0.25},
    {'.', '.', 0.25},    {':', ';', 0.25},       {'i', 'j', 0.25},    {'l', 'l', 0.25},
    {'I', 'I', 0.25},    {'|', '|', 0.25},       {'@', '@', 0.85},    {'m', 'm', 0.85},
    {'w', 'w', 0.85},    {'M', 'M', 0.85},       {'W', 'W', 0.85},    {'0', '9', 0.56},
    {'A', 'Z', 0.66},    {'a', 'z', 0.5},        {0x0300, 0x036F, 0}, {0x200B, 0x200F, 0},
    {0xFE00, 0xFE0F, 0}, {0x1100, 0x115F, 1},    {0x2600, 0x27BF, 1}, {0x2E80, 0xD7A3, 1},
    {0xD800, 0xDBFF, 1}, {0xDC00, 0xDFFF, 0},    {0xF900, 0xFAFF, 1}, {0xFE30, 0xFE4F, 1},
    {0xFF00, 0xFF60, 1}, {0x0000, 0xFFFF, 0.55},
};
constexpr CGFloat boldFactor = 1.06;
constexpr CGFloat lineHeightFactor = 1.2;
// Sums of glyph widths carry rounding errors; without this slack a whole number would sometimes round up by
// one.
constexpr CGFloat roundingSlack = 1e-6;

CGFloat roundedUp(CGFloat length) { return std::ceil(length - roundingSlack); }

CGFloat glyphWidth(unichar unit, UIFont* font) {
    const auto* range = std::ranges::find_if(
        glyphRanges, [unit](const GlyphRange& each) { return unit >= each.first && unit <= each.last; });
    return range->width * [font pointSize] * ([font isBold] ? boldFactor : 1);
}

CGFloat widthOf(NSString* line, UIFont* font) {
    CGFloat width = 0;
    for (NSUInteger i = 0; i < [line length]; ++i)
        width += glyphWidth([line characterAtIndex:i], font);
    return width;
}

NSString* withoutTrailingSpaces(NSString* line) {
    while ([line hasSuffix:@" "])
        line = [line substringToIndex:[line length] - 1];
    return line;
}

// How much of the paragraph makes its first line.
NSUInteger lineLength(NSString* paragraph, UIFont* font, CGFloat width) {
    CGFloat used = 0;
    NSUInteger afterLastSpace = 0;
    for (NSUInteger i = 0; i < [paragraph length]; ++i) {
        const unichar unit = [paragraph characterAtIndex:i];
        used += glyphWidth(unit, font);
        if (unit == ' ')
            afterLastSpace = i + 1; // a space may hang over the edge
        else if (used > width + roundingSlack)
            return afterLastSpace > 0 ? afterLastSpace : std::max<NSUInteger>(i, 1);
    }
    return [paragraph length];
}

} // namespace

CGFloat lineHeight(CGFloat pointSize) { return roundedUp(pointSize * lineHeightFactor); }

NSArray* linesOfText(NSString* text, UIFont* font, CGFloat width) {
    NSMutableArray* lines = [NSMutableArray array];
    for (NSString* paragraph in [text componentsSeparatedByString:@"\n"]) {
        NSString* rest = paragraph;
        do {
            const NSUInteger length = lineLength(rest, font, width);
            [lines addObject:withoutTrailingSpaces([rest substringToIndex:length])];
            rest = [rest substringFromIndex:length];
        } while ([rest length] > 0);
    }
    return lines;
}

CGSize sizeOfText(NSString* text, UIFont* font, CGSize constraint, NSInteger maximumLines) {
    if ([text length] == 0 || font == nil) return CGSizeZero;
    NSArray* lines = linesOfText(text, font, constraint.width);
    const CGFloat height = [font lineHeight];
    auto count = static_cast<CGFloat>([lines count]);
    if (maximumLines > 0) count = std::min<CGFloat>(count, static_cast<CGFloat>(maximumLines));
    count = std::clamp<CGFloat>(std::floor(constraint.height / height), 1, count);

    CGFloat longest = 0;
    for (NSString* line in [lines subarrayWithRange:NSMakeRange(0, static_cast<NSUInteger>(count))])
        longest = std::max(longest, widthOf(line, font));
    return {std::min(roundedUp(longest), constraint.width), std::min(count * height, constraint.height)};
}

} // namespace simulator
