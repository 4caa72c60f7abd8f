// Writes an SVG document: rectangles, text and pictures within nested groups.
#pragma once

#include "CoreGraphics/CoreGraphics.h"

#include <optional>
#include <sstream>
#include <string>
#include <string_view>

namespace simulator {

struct SvgColor {
    CGFloat red = 0;
    CGFloat green = 0;
    CGFloat blue = 0;
    CGFloat alpha = 1;
};

struct SvgText {
    CGFloat size = 17;
    SvgColor color = {};
    // Where in its rectangle the line stands: 0 at the left, 1 in the middle, 2 at the right.
    int alignment = 0;
    bool bold = false;
};

class SvgCanvas {
  public:
    explicit SvgCanvas(CGSize size);

    // What follows until endGroup() is moved by the origin, as opaque as told and, if told, cut off at the
    // bounds.
    void beginGroup(CGPoint origin, CGFloat opacity, std::optional<CGRect> clip = std::nullopt);
    void endGroup();

    void rectangle(CGRect rect, SvgColor fill, CGFloat cornerRadius = 0,
                   std::optional<SvgColor> border = std::nullopt);
    // One line, in the vertical middle of the rectangle.
    void line(CGRect rect, std::string_view text, const SvgText& style);
    // The picture's PNG file in base 64.
    void picture(CGRect rect, std::string_view png);

    // Ends the document.
    std::string document();

  private:
    std::ostringstream m_out;
    unsigned m_clips = 0;
};

} // namespace simulator
