// Stand-in of the drawing framework, as far as views need it: points, sizes and rectangles, in points of the
// screen.
#pragma once

#ifdef __OBJC__
#import <Foundation/Foundation.h>
#else
#include <cfloat>
#define CGFLOAT_DEFINED 1
#define CGFLOAT_IS_DBL 1
#define CGFLOAT_MIN DBL_MIN
#define CGFLOAT_MAX DBL_MAX
typedef double CGFloat;
#endif

typedef struct CGPoint {
    CGFloat x;
    CGFloat y;
} CGPoint;

typedef struct CGSize {
    CGFloat width;
    CGFloat height;
} CGSize;

typedef struct CGRect {
    CGPoint origin;
    CGSize size;
} CGRect;

static const CGPoint CGPointZero = {0, 0};
static const CGSize CGSizeZero = {0, 0};
static const CGRect CGRectZero = {{0, 0}, {0, 0}};

static inline CGPoint CGPointMake(CGFloat x, CGFloat y) { return (CGPoint){x, y}; }
static inline CGSize CGSizeMake(CGFloat width, CGFloat height) { return (CGSize){width, height}; }
static inline CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    return (CGRect){{x, y}, {width, height}};
}

static inline CGFloat CGRectGetMinX(CGRect rect) { return rect.origin.x; }
static inline CGFloat CGRectGetMinY(CGRect rect) { return rect.origin.y; }
static inline CGFloat CGRectGetMaxX(CGRect rect) { return rect.origin.x + rect.size.width; }
static inline CGFloat CGRectGetMaxY(CGRect rect) { return rect.origin.y + rect.size.height; }
static inline CGFloat CGRectGetMidX(CGRect rect) { return rect.origin.x + rect.size.width / 2; }
static inline CGFloat CGRectGetMidY(CGRect rect) { return rect.origin.y + rect.size.height / 2; }

static inline bool CGPointEqualToPoint(CGPoint a, CGPoint b) { return a.x == b.x && a.y == b.y; }
static inline bool CGSizeEqualToSize(CGSize a, CGSize b) {
    return a.width == b.width && a.height == b.height;
}
static inline bool CGRectEqualToRect(CGRect a, CGRect b) {
    return CGPointEqualToPoint(a.origin, b.origin) && CGSizeEqualToSize(a.size, b.size);
}

// The left and top edges belong to a rectangle, the right and bottom edges do not.
static inline bool CGRectContainsPoint(CGRect rect, CGPoint point) {
    return point.x >= CGRectGetMinX(rect) && point.x < CGRectGetMaxX(rect) &&
           point.y >= CGRectGetMinY(rect) && point.y < CGRectGetMaxY(rect);
}
static inline CGRect CGRectInset(CGRect rect, CGFloat dx, CGFloat dy) {
    return CGRectMake(rect.origin.x + dx, rect.origin.y + dy, rect.size.width - 2 * dx,
                      rect.size.height - 2 * dy);
}
