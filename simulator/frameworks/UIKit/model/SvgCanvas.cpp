#include "UIKit/model/SvgCanvas.h"

#include "UIKit/model/Scenery.h"
#include "device/xml.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace simulator {

namespace {

constexpr CGFloat outlineSide = 24;

std::string attributes(CGRect rect) {
    std::ostringstream out;
    out << " x=\"" << rect.origin.x << "\" y=\"" << rect.origin.y << "\" width=\"" << rect.size.width
        << "\" height=\"" << rect.size.height << '"';
    return out.str();
}

std::string paint(const char* what, SvgColor color) {
    const auto byte = [](CGFloat share) {
        return static_cast<std::uint8_t>(std::lround(std::clamp<CGFloat>(share, 0, 1) * 255));
    };
    std::ostringstream out;
    out << ' ' << what << "=\"" << hexOf({byte(color.red), byte(color.green), byte(color.blue)}) << '"';
    if (color.alpha != 1) out << ' ' << what << "-opacity=\"" << color.alpha << '"';
    return out.str();
}

CGRect moved(CGRect rect, CGPoint by) { return {{rect.origin.x + by.x, rect.origin.y + by.y}, rect.size}; }

// Empty, or of negative size, where the two have nothing in common.
CGRect common(CGRect a, CGRect b) {
    const CGPoint start = {std::max(a.origin.x, b.origin.x), std::max(a.origin.y, b.origin.y)};
    return {start,
            {std::min(CGRectGetMaxX(a), CGRectGetMaxX(b)) - start.x,
             std::min(CGRectGetMaxY(a), CGRectGetMaxY(b)) - start.y}};
}

// Control characters have no place in the document, not even escaped.
std::string escaped(std::string text) {
    std::ranges::replace_if(text, [](char letter) { return static_cast<unsigned char>(letter) < 0x20; }, ' ');
    return escapedForXml(text);
}

std::string hill(const Scenery::Hill& hill) {
    std::ostringstream out;
    out << "<path d=\"M0 1V" << hill.left << 'L' << hill.peakX << ' ' << hill.peakY << "L1 " << hill.right
        << "V1z\" fill=\"" << hexOf(hill.color) << "\"/>";
    return out.str();
}

// In a box of one by one, which stands for one of four by three, as photos are.
std::string drawn(const Scenery& scenery, const std::string& name) {
    constexpr double aspect = 4.0 / 3;
    std::ostringstream out;
    out << "<g id=\"" << name << "\"><linearGradient id=\"" << name
        << "-sky\" x2=\"0\" y2=\"1\"><stop stop-color=\"" << hexOf(scenery.skyTop)
        << "\"/><stop offset=\"1\" stop-color=\"" << hexOf(scenery.skyBottom)
        << "\"/></linearGradient><path d=\"M0 0h1v1H0z\" fill=\"url(#" << name << "-sky)\"/><ellipse cx=\""
        << scenery.sunX << "\" cy=\"" << scenery.sunY << "\" rx=\"" << scenery.sunRadius / aspect
        << "\" ry=\"" << scenery.sunRadius << "\" fill=\"" << hexOf(scenery.sun) << "\"/>"
        << hill(scenery.hills[0]) << hill(scenery.hills[1]) << "</g>";
    return out.str();
}

} // namespace

SvgCanvas::SvgCanvas(CGSize size) : m_groups{{CGPointZero, {CGPointZero, size}}} {
    m_out << "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\""
          << size.width << "\" height=\"" << size.height << "\" viewBox=\"0 0 " << size.width << ' '
          << size.height << "\" font-family=\"Helvetica Neue, Helvetica, Arial, sans-serif\">\n";
}

void SvgCanvas::beginGroup(CGPoint origin, CGFloat opacity) { beginGroup(origin, opacity, ""); }

void SvgCanvas::beginGroup(CGPoint origin, CGFloat opacity, CGRect clip, CGFloat cornerRadius) {
    std::ostringstream shape;
    shape << "<rect" << attributes(clip);
    if (cornerRadius > 0) shape << " rx=\"" << cornerRadius << '"';
    shape << "/>";
    std::ostringstream name;
    name << "clip";
    for (const CGFloat number :
         {clip.origin.x, clip.origin.y, clip.size.width, clip.size.height, cornerRadius})
        name << '_' << number;
    m_definitions[name.str()] = "<clipPath id=\"" + name.str() + "\">" + shape.str() + "</clipPath>";
    beginGroup(origin, opacity, " clip-path=\"url(#" + name.str() + ")\"");
    Group& group = m_groups.back();
    group.visible = common(group.visible, moved(clip, group.origin));
}

void SvgCanvas::beginGroup(CGPoint origin, CGFloat opacity, const std::string& attribute) {
    m_out << "<g";
    if (origin.x != 0 || origin.y != 0)
        m_out << " transform=\"translate(" << origin.x << ',' << origin.y << ")\"";
    if (opacity != 1) m_out << " opacity=\"" << opacity << '"';
    m_out << attribute << ">\n";
    Group group = m_groups.back();
    group.origin = {group.origin.x + origin.x, group.origin.y + origin.y};
    m_groups.push_back(group);
}

void SvgCanvas::endGroup() {
    m_out << "</g>\n";
    m_groups.pop_back();
}

void SvgCanvas::spot(CGRect rect, Spot spot) {
    spot.rect = common(m_groups.back().visible, moved(rect, m_groups.back().origin));
    if (spot.rect.size.width > 0 && spot.rect.size.height > 0) m_spots.push_back(std::move(spot));
}

void SvgCanvas::rectangle(CGRect rect, SvgColor fill, CGFloat cornerRadius) {
    if (fill.alpha == 0) return;
    m_out << "<rect" << attributes(rect) << paint("fill", fill);
    if (cornerRadius > 0) m_out << " rx=\"" << cornerRadius << '"';
    m_out << "/>\n";
}

void SvgCanvas::border(CGRect rect, SvgColor color, CGFloat lineWidth, CGFloat cornerRadius) {
    m_out << "<rect" << attributes(CGRectInset(rect, lineWidth / 2, lineWidth / 2)) << " fill=\"none\""
          << paint("stroke", color) << " stroke-width=\"" << lineWidth << '"';
    if (cornerRadius > 0) m_out << " rx=\"" << cornerRadius - lineWidth / 2 << '"';
    m_out << "/>\n";
}

void SvgCanvas::line(CGRect rect, std::string_view text, const SvgText& style) {
    if (text.empty() || style.size <= 0) return;
    constexpr std::array anchors = {"", " text-anchor=\"middle\"", " text-anchor=\"end\""};
    const int alignment = std::clamp(style.alignment, 0, 2);
    const CGFloat x = rect.origin.x + rect.size.width * alignment / 2;
    const CGFloat baseline = CGRectGetMidY(rect) + style.size * 0.35; // half the height of a capital
    m_out << "<text x=\"" << x << "\" y=\"" << baseline << "\" font-size=\"" << style.size << '"'
          << anchors[static_cast<std::size_t>(alignment)] << paint("fill", style.color);
    if (style.bold) m_out << " font-weight=\"600\"";
    m_out << '>' << escaped(std::string(text)) << "</text>\n";
}

void SvgCanvas::symbol(CGRect rect, std::string_view outline, SvgColor color) {
    const CGFloat scale = std::min(rect.size.width, rect.size.height) / outlineSide;
    m_out << "<path transform=\"translate(" << CGRectGetMidX(rect) - scale * outlineSide / 2 << ','
          << CGRectGetMidY(rect) - scale * outlineSide / 2 << ") scale(" << scale
          << ")\" fill-rule=\"evenodd\"" << paint("fill", color) << " d=\"" << outline << "\"/>\n";
}

void SvgCanvas::use(CGRect rect, SvgFit fit, CGSize size, const std::string& name) {
    constexpr std::array fits = {"none", "xMidYMid meet", "xMidYMid slice"};
    m_out << "<svg" << attributes(rect) << " viewBox=\"0 0 " << size.width << ' ' << size.height
          << "\" preserveAspectRatio=\"" << fits[static_cast<std::size_t>(fit)]
          << "\"><use transform=\"scale(" << size.width << ',' << size.height << ")\" xlink:href=\"#" << name
          << "\"/></svg>\n";
}

void SvgCanvas::picture(CGRect rect, SvgFit fit, CGSize size, std::string_view base64) {
    std::uint64_t hash = 0xcbf29ce484222325; // FNV-1a
    for (const char letter : base64)
        hash = (hash ^ static_cast<unsigned char>(letter)) * 0x100000001b3;
    const std::string name = "picture" + std::to_string(hash);
    m_definitions[name] = "<image id=\"" + name +
                          "\" width=\"1\" height=\"1\" preserveAspectRatio=\"none\" "
                          "xlink:href=\"data:image/png;base64," +
                          std::string(base64) + "\"/>";
    use(rect, fit, size, name);
}

void SvgCanvas::scenery(CGRect rect, SvgFit fit, CGSize size, std::uint64_t seed) {
    const std::string name = "scenery" + std::to_string(seed);
    m_definitions[name] = drawn(sceneryOf(seed), name);
    use(rect, fit, size, name);
}

std::string SvgCanvas::document() {
    m_out << "<defs>\n";
    for (const auto& [name, definition] : m_definitions)
        m_out << definition << '\n';
    m_out << "</defs>\n</svg>\n";
    return m_out.str();
}

} // namespace simulator
