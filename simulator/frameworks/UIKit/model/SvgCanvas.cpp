#include "UIKit/model/SvgCanvas.h"

#include "device/xml.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace simulator {

namespace {

std::string attributes(CGRect rect) {
    std::ostringstream out;
    out << " x=\"" << rect.origin.x << "\" y=\"" << rect.origin.y << "\" width=\"" << rect.size.width
        << "\" height=\"" << rect.size.height << '"';
    return out.str();
}

std::string paint(const char* what, SvgColor color) {
    const auto byte = [](CGFloat share) { return std::lround(std::clamp<CGFloat>(share, 0, 1) * 255); };
    std::ostringstream out;
    out << ' ' << what << "=\"rgb(" << byte(color.red) << ',' << byte(color.green) << ',' << byte(color.blue)
        << ")\" " << what << "-opacity=\"" << color.alpha << '"';
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

} // namespace

SvgCanvas::SvgCanvas(CGSize size) : m_groups{{CGPointZero, {CGPointZero, size}}} {
    m_out << "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\""
          << size.width << "\" height=\"" << size.height
          << "\" font-family=\"Helvetica, Arial, sans-serif\">\n";
}

void SvgCanvas::beginGroup(CGPoint origin, CGFloat opacity, std::optional<CGRect> clip) {
    std::string clipAttribute;
    if (clip) {
        const std::string name = "clip" + std::to_string(++m_clips);
        m_out << "<clipPath id=\"" << name << "\"><rect" << attributes(*clip) << "/></clipPath>\n";
        clipAttribute = " clip-path=\"url(#" + name + ")\"";
    }
    m_out << "<g transform=\"translate(" << origin.x << ',' << origin.y << ")\"";
    if (opacity != 1) m_out << " opacity=\"" << opacity << '"';
    m_out << clipAttribute << ">\n";
    Group group = m_groups.back();
    group.origin = {group.origin.x + origin.x, group.origin.y + origin.y};
    if (clip) group.visible = common(group.visible, moved(*clip, group.origin));
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

void SvgCanvas::rectangle(CGRect rect, SvgColor fill, CGFloat cornerRadius, std::optional<SvgColor> border) {
    m_out << "<rect" << attributes(rect) << paint("fill", fill);
    if (cornerRadius > 0) m_out << " rx=\"" << cornerRadius << '"';
    if (border) m_out << paint("stroke", *border);
    m_out << "/>\n";
}

void SvgCanvas::line(CGRect rect, std::string_view text, const SvgText& style) {
    constexpr std::array anchors = {"start", "middle", "end"};
    const int alignment = std::clamp(style.alignment, 0, 2);
    const CGFloat x = rect.origin.x + rect.size.width * alignment / 2;
    const CGFloat baseline = CGRectGetMidY(rect) + style.size * 0.35; // half the height of a capital
    m_out << "<text x=\"" << x << "\" y=\"" << baseline << "\" font-size=\"" << style.size
          << "\" text-anchor=\"" << anchors[static_cast<std::size_t>(alignment)] << '"'
          << paint("fill", style.color);
    if (style.bold) m_out << " font-weight=\"bold\"";
    m_out << '>' << escaped(std::string(text)) << "</text>\n";
}

void SvgCanvas::picture(CGRect rect, std::string_view png) {
    m_out << "<image" << attributes(rect)
          << " preserveAspectRatio=\"none\" xlink:href=\"data:image/png;base64," << png << "\"/>\n";
}

std::string SvgCanvas::document() {
    m_out << "</svg>\n";
    return m_out.str();
}

} // namespace simulator
