// How much room text takes: a fixed table of glyph widths in place of a real typeface, so that every machine
// measures the same.
//
// A glyph is as wide as its share of the point size: 0.25 for thin ones (i l . , ' and the like) and the
// space, 0.5 for other lower-case letters, 0.56 for digits, 0.66 for capitals, 0.85 for m, w, M, W and @, 1
// for East Asian characters and emoji, 0 for marks that combine with the glyph before; 0.55 for everything
// else. Bold is 6 per cent wider. A line is 1.2 times the point size high. Sizes are rounded up to whole
// points.
#pragma once

#import "UIKit/UIFont.h"

namespace simulator {

CGFloat lineHeight(CGFloat pointSize);

// The lines that the text breaks into between words, without the spaces at their ends; at least one, which
// may be empty.
NSArray* linesOfText(NSString* text, UIFont* font, CGFloat width);

// The room that the text takes within the constraint: as wide as its longest line and as high as its lines,
// whole lines only (but at least one), and never larger than the constraint. `maximumLines` 0 means any
// number. Empty text takes no room.
CGSize sizeOfText(NSString* text, UIFont* font, CGSize constraint, NSInteger maximumLines = 0);

} // namespace simulator
