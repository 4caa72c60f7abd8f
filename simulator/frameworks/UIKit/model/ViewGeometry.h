// Where a view lies: bounds and centre are kept, the frame follows from them, so that the three cannot
// disagree.
#pragma once

#include "CoreGraphics/CGGeometry.h"

namespace simulator {

class ViewGeometry {
  public:
    CGRect frame() const;
    CGRect bounds() const { return m_bounds; }
    CGPoint center() const { return m_center; }

    // Negative sizes become the same rectangle with a positive size, as on the device.
    void setFrame(CGRect frame);
    // Keeps the centre.
    void setBounds(CGRect bounds) { m_bounds = bounds; }
    void setCenter(CGPoint center) { m_center = center; }

    CGPoint toSuperview(CGPoint point) const;
    CGPoint fromSuperview(CGPoint point) const;

  private:
    CGRect m_bounds = {};
    CGPoint m_center = {};
};

// Bits of an autoresizing mask, as the platform numbers them.
enum AutoresizingBit : unsigned long {
    flexibleLeftMargin = 1 << 0,
    flexibleWidth = 1 << 1,
    flexibleRightMargin = 1 << 2,
    flexibleTopMargin = 1 << 3,
    flexibleHeight = 1 << 4,
    flexibleBottomMargin = 1 << 5,
};

// The frame of a subview after the bounds of its superview went from one size to another: what is flexible
// takes its share of the change in proportion to its length, or an equal share where all flexible parts have
// no length.
CGRect autoresizedFrame(CGRect frame, unsigned long mask, CGSize before, CGSize after);

} // namespace simulator
