// Writes an SVG document: rectangles, text, symbols and pictures within nested groups; and keeps where on it
// a finger can act.
//
// Whatever is referred to by name (pictures, clipping shapes) stands in one <defs> element at the end of the
// document, one to a line. A name follows from what it names, so documents can share them.
#pragma once

#include "UIKit/model/Spot.h"

#include <cstdint>
#include <map>
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

// What to do with a picture whose proportions are not those of its rectangle.
enum class SvgFit { stretch, whole, fill };

class SvgCanvas {
  public:
    explicit SvgCanvas(CGSize size);

    // What follows until endGroup() is moved by the origin and as opaque as told.
    void beginGroup(CGPoint origin, CGFloat opacity);
    // The same, cut off at the bounds.
    void beginGroup(CGPoint origin, CGFloat opacity, CGRect clip, CGFloat cornerRadius = 0);
    void endGroup();

    void rectangle(CGRect rect, SvgColor fill, CGFloat cornerRadius = 0);
    void border(CGRect rect, SvgColor color, CGFloat lineWidth, CGFloat cornerRadius = 0);
    // One line, in the vertical middle of the rectangle.
    void line(CGRect rect, std::string_view text, const SvgText& style);
    // One of the outlines.
    void symbol(CGRect rect, std::string_view outline, SvgColor color);
    // A PNG file's picture, whose size in pixels is told.
    void picture(CGRect rect, SvgFit fit, CGSize size, std::string_view base64);
    // The generated picture of that number.
    void scenery(CGRect rect, SvgFit fit, CGSize size, std::uint64_t seed);

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

    void beginGroup(CGPoint origin, CGFloat opacity, const std::string& attribute);
    void use(CGRect rect, SvgFit fit, CGSize size, const std::string& name);

    std::ostringstream m_out;
    std::map<std::string, std::string> m_definitions; // by name
    std::vector<Group> m_groups;
    std::vector<Spot> m_spots;
};

} // namespace simulator
