// The platform's scalar and geometry types as they are on 64-bit devices.
#pragma once

namespace rollkeeper {

using NSInteger = long;
using NSUInteger = unsigned long;
using CGFloat = double;        // points
using NSTimeInterval = double; // seconds

struct CGPoint {
    CGFloat x = 0;
    CGFloat y = 0;
};

struct CGSize {
    CGFloat width = 0;
    CGFloat height = 0;
};

struct CGRect {
    CGPoint origin;
    CGSize size;
};

struct NSRange {
    NSUInteger location = 0;
    NSUInteger length = 0;
};

} // namespace rollkeeper
