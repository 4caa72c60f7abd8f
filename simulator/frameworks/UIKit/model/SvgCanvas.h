// Writes an SVG document: rectangles, text and pictures within nested groups; and keeps where on it a finger
// can act.
#pragma once

#include "UIKit/model/Spot.h"

#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

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
    // A finger can act on the rectangle, or on what of it is not cut off.
    void spot(CGRect rect, Spot spot);
    const std::vector<Spot>& spots() const { return m_spots; } // what lies on top comes last

    // Ends the document.
    std::string document();

  private:
    // Where a group lies in the document, and what of it can be seen there.
    struct Group {
        CGPoint origin;
        CGRect visible;
    };

    std::ostringstream m_out;
    unsigned m_clips = 0;
    std::vector<Group> m_groups;
    std::vector<Spot> m_spots;
};

} // namespace simulator
