// What a generated picture shows: sky, sun and hills, whose colours and places follow from a number.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace simulator {

using Rgb = std::array<std::uint8_t, 3>;

// Where something is: shares of the picture's width or height, from the top left.
struct Scenery {
    Rgb skyTop, skyBottom; // the colours between go with the height
    Rgb sun;
    double sunX, sunY, sunRadius; // the radius is a share of the height
    // A hill's upper edge runs from the left edge over its peak to the right edge.
    struct Hill {
        Rgb color;
        double left, peakX, peakY, right;
        double topAt(double x) const;
    };
    std::array<Hill, 2> hills; // the far one, then the near one
};

// The same for the same number; other numbers have other colours.
Scenery sceneryOf(std::uint64_t seed);

// As "#rrggbb".
std::string hexOf(Rgb color);

} // namespace simulator
