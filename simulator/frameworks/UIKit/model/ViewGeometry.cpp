#include "UIKit/model/ViewGeometry.h"

#include <cmath>

namespace simulator {

namespace {

struct Segment {
    CGFloat start;
    CGFloat length;
};

struct Flexibility {
    bool before;
    bool length;
    bool after;
};

Segment autoresized(Segment segment, Flexibility flexible, CGFloat whole, CGFloat newWhole) {
    const CGFloat change = newWhole - whole;
    const int parts = flexible.before + flexible.length + flexible.after;
    if (change == 0 || parts == 0) return segment;

    const CGFloat after = whole - segment.start - segment.length;
    const CGFloat total =
        flexible.before * segment.start + flexible.length * segment.length + flexible.after * after;
    const auto share = [&](bool takesPart, CGFloat length) {
        if (!takesPart) return CGFloat(0);
        return total == 0 ? change / parts : change * length / total;
    };
    return {segment.start + share(flexible.before, segment.start),
            segment.length + share(flexible.length, segment.length)};
}

} // namespace

CGRect ViewGeometry::frame() const {
    const CGSize size = m_bounds.size;
    return {{m_center.x - size.width / 2, m_center.y - size.height / 2}, size};
}

void ViewGeometry::setFrame(CGRect frame) {
    m_bounds.size = {std::abs(frame.size.width), std::abs(frame.size.height)};
    m_center = {CGRectGetMidX(frame), CGRectGetMidY(frame)};
}

CGPoint ViewGeometry::toSuperview(CGPoint point) const {
    const CGPoint origin = frame().origin;
    return {point.x - m_bounds.origin.x + origin.x, point.y - m_bounds.origin.y + origin.y};
}

CGPoint ViewGeometry::fromSuperview(CGPoint point) const {
    const CGPoint origin = frame().origin;
    return {point.x - origin.x + m_bounds.origin.x, point.y - origin.y + m_bounds.origin.y};
}

CGRect autoresizedFrame(CGRect frame, unsigned long mask, CGSize before, CGSize after) {
    const auto has = [mask](AutoresizingBit bit) { return (mask & bit) != 0; };
    const Segment horizontal = autoresized(
        {frame.origin.x, frame.size.width},
        {has(flexibleLeftMargin), has(flexibleWidth), has(flexibleRightMargin)}, before.width, after.width);
    const Segment vertical =
        autoresized({frame.origin.y, frame.size.height},
                    {has(flexibleTopMargin), has(flexibleHeight), has(flexibleBottomMargin)}, before.height,
                    after.height);
    return CGRectMake(horizontal.start, vertical.start, horizontal.length, vertical.length);
}

} // namespace simulator
