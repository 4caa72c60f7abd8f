#import "UIKit/internal/ViewInternals.h"

namespace simulator {

namespace {

struct Segment {
    CGFloat start;
    CGFloat length;
};

// The three lowest bits of the mask stand for the margin before, the length and the margin after.
Segment autoresized(Segment segment, NSUInteger mask, CGFloat whole, CGFloat newWhole) {
    const CGFloat parts[] = {segment.start, segment.length, whole - segment.start - segment.length};
    CGFloat flexible = 0;
    int count = 0;
    for (int i = 0; i < 3; ++i) {
        if ((mask >> i & 1) == 0) continue;
        flexible += parts[i];
        ++count;
    }
    const auto share = [&](int i) {
        const CGFloat change = newWhole - whole;
        if ((mask >> i & 1) == 0) return CGFloat(0);
        return flexible == 0 ? change / count : change * parts[i] / flexible;
    };
    return {segment.start + share(0), segment.length + share(1)};
}

} // namespace

CGRect autoresizedFrame(CGRect frame, UIViewAutoresizing mask, CGSize before, CGSize after) {
    const Segment x = autoresized({frame.origin.x, frame.size.width}, mask, before.width, after.width);
    const Segment y =
        autoresized({frame.origin.y, frame.size.height}, mask >> 3, before.height, after.height);
    return CGRectMake(x.start, y.start, x.length, y.length);
}

} // namespace simulator
