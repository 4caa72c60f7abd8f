#include "UIKit/model/TextMetrics.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string>
#include <vector>

namespace simulator {

namespace {

struct GlyphRange {
    char32_t first;
    char32_t last;
    CGFloat width;
};

// The first range that holds a glyph counts.
constexpr GlyphRange glyphRanges[] = {
    {U' ', U' ', 0.25},    {U'!', U'!', 0.25},    {U'\'', U'\'', 0.25}, {U',', U',', 0.25},
    {U'.', U'.', 0.25},    {U':', U';', 0.25},    {U'i', U'j', 0.25},   {U'l', U'l', 0.25},
    {U'I', U'I', 0.25},    {U'|', U'|', 0.25},    {U'@', U'@', 0.85},   {U'm', U'm', 0.85},
    {U'w', U'w', 0.85},    {U'M', U'M', 0.85},    {U'W', U'W', 0.85},   {U'0', U'9', 0.56},
    {U'A', U'Z', 0.66},    {U'a', U'z', 0.5},     {0x0300, 0x036F, 0},  {0x200B, 0x200F, 0},
    {0xFE00, 0xFE0F, 0},   {0x1F3FB, 0x1F3FF, 0}, {0x1100, 0x115F, 1},  {0x2600, 0x27BF, 1},
    {0x2E80, 0xD7A3, 1},   {0xF900, 0xFAFF, 1},   {0xFE30, 0xFE4F, 1},  {0xFF00, 0xFF60, 1},
    {0x1F000, 0x1FFFF, 1}, {0x20000, 0x3FFFF, 1},
};
constexpr CGFloat otherGlyphWidth = 0.55;
constexpr CGFloat boldFactor = 1.06;
constexpr CGFloat lineHeightFactor = 1.2;
// Sums of glyph widths carry rounding errors; without this slack a whole number would sometimes round up by
// one.
constexpr CGFloat roundingSlack = 1e-6;

CGFloat roundedUp(CGFloat length) { return std::ceil(length - roundingSlack); }

std::u32string glyphsOf(std::u16string_view text) {
    std::u32string glyphs;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char32_t unit = text[i];
        const bool pair = unit >= 0xD800 && unit < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
                          text[i + 1] < 0xE000;
        glyphs.push_back(pair ? 0x10000 + ((unit - 0xD800) << 10) + (text[++i] - 0xDC00) : unit);
    }
    return glyphs;
}

CGFloat widthOf(std::u32string_view glyphs, TextStyle style) {
    CGFloat width = 0;
    for (const char32_t glyph : glyphs)
        width += glyphWidth(glyph, style);
    return width;
}

std::u32string_view withoutTrailingSpaces(std::u32string_view line) {
    while (!line.empty() && line.back() == U' ')
        line.remove_suffix(1);
    return line;
}

// How many glyphs of the paragraph make its first line.
std::size_t lineLength(std::u32string_view paragraph, TextStyle style, CGFloat width, LineBreaking breaking) {
    CGFloat used = 0;
    std::size_t afterLastSpace = 0;
    for (std::size_t i = 0; i < paragraph.size(); ++i) {
        used += glyphWidth(paragraph[i], style);
        if (paragraph[i] == U' ') {
            afterLastSpace = i + 1;
            continue; // a space may hang over the edge
        }
        if (used <= width + roundingSlack) continue;
        const bool breakAtWord = breaking == LineBreaking::words && afterLastSpace > 0;
        return breakAtWord ? afterLastSpace : std::max<std::size_t>(i, 1);
    }
    return paragraph.size();
}

// The lines without the spaces at their ends; at least one.
std::vector<std::u32string_view> linesOf(std::u32string_view text, TextStyle style, CGFloat width,
                                         LineBreaking breaking) {
    std::vector<std::u32string_view> lines;
    while (true) {
        const std::size_t end = std::min(text.find(U'\n'), text.size());
        std::u32string_view paragraph = text.substr(0, end);
        do {
            const std::size_t length = lineLength(paragraph, style, width, breaking);
            lines.push_back(withoutTrailingSpaces(paragraph.substr(0, length)));
            paragraph.remove_prefix(length);
        } while (!paragraph.empty());
        if (end == text.size()) return lines;
        text.remove_prefix(end + 1);
    }
}

std::u16string unitsOf(std::u32string_view glyphs) {
    std::u16string units;
    for (const char32_t glyph : glyphs) {
        if (glyph < 0x10000) {
            units.push_back(static_cast<char16_t>(glyph));
            continue;
        }
        units.push_back(static_cast<char16_t>(0xD800 + ((glyph - 0x10000) >> 10)));
        units.push_back(static_cast<char16_t>(0xDC00 + ((glyph - 0x10000) & 0x3FF)));
    }
    return units;
}

} // namespace

CGFloat lineHeight(TextStyle style) { return roundedUp(style.pointSize * lineHeightFactor); }

CGFloat glyphWidth(char32_t glyph, TextStyle style) {
    const auto range = std::ranges::find_if(
        glyphRanges, [glyph](const GlyphRange& each) { return glyph >= each.first && glyph <= each.last; });
    const CGFloat share = range == std::end(glyphRanges) ? otherGlyphWidth : range->width;
    return share * style.pointSize * (style.bold ? boldFactor : 1);
}

CGSize measureText(std::u16string_view text, TextStyle style, CGSize constraint, LineBreaking breaking,
                   int maximumLines) {
    if (text.empty()) return {0, 0};
    const std::u32string glyphs = glyphsOf(text);
    const auto lines = linesOf(glyphs, style, constraint.width, breaking);
    const CGFloat height = lineHeight(style);
    CGFloat count = static_cast<CGFloat>(lines.size());
    if (maximumLines > 0) count = std::min<CGFloat>(count, maximumLines);
    count = std::clamp<CGFloat>(std::floor(constraint.height / height), 1, count);

    CGFloat longest = 0;
    for (const std::u32string_view line : std::span(lines).first(static_cast<std::size_t>(count)))
        longest = std::max(longest, widthOf(line, style));
    return {std::min(roundedUp(longest), constraint.width), std::min(count * height, constraint.height)};
}

std::vector<std::u16string> wrapText(std::u16string_view text, TextStyle style, CGFloat width) {
    const std::u32string glyphs = glyphsOf(text);
    std::vector<std::u16string> lines;
    for (const std::u32string_view line : linesOf(glyphs, style, width, LineBreaking::words))
        lines.push_back(unitsOf(line));
    return lines;
}

} // namespace simulator
