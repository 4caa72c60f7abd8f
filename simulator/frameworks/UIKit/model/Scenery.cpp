#include "UIKit/model/Scenery.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace simulator {

namespace {

double fraction(double number) { return number - std::floor(number); }

// Hue, saturation and value from 0 to 1.
Rgb fromHue(double hue, double saturation, double value) {
    Rgb color;
    for (std::size_t channel = 0; channel < color.size(); ++channel) {
        const double place = fraction(hue + (3.0 - static_cast<double>(channel)) / 3) * 6;
        const double share = std::clamp(std::abs(place - 3) - 1, 0.0, 1.0);
        color[channel] = static_cast<std::uint8_t>(std::lround(255 * value * (1 - saturation * (1 - share))));
    }
    return color;
}

} // namespace

double Scenery::Hill::topAt(double x) const {
    return x < peakX ? left + (peakY - left) * x / peakX
                     : peakY + (right - peakY) * (x - peakX) / (1 - peakX);
}

Scenery sceneryOf(std::uint64_t seed) {
    constexpr double goldenRatio = 0.618033988749895; // neighbours get hues far apart
    const double hue = fraction(static_cast<double>(seed) * goldenRatio + 0.55);
    std::mt19937_64 random(seed);
    const auto between = [&](double least, double most) {
        return least + (most - least) * static_cast<double>(random() >> 11U) / 0x1p53;
    };
    Scenery scenery{};
    scenery.skyTop = fromHue(hue, 0.6, 0.8);
    scenery.skyBottom = fromHue(hue + 0.06, 0.25, 1);
    scenery.sun = fromHue(0.13, 0.25, 1);
    scenery.sunX = between(0.15, 0.85);
    scenery.sunY = between(0.15, 0.35);
    scenery.sunRadius = between(0.07, 0.12);
    const double far = between(0.2, 0.8);
    scenery.hills[0] = {fromHue(hue + 0.1, 0.5, 0.62), between(0.6, 0.8), far, between(0.35, 0.5),
                        between(0.6, 0.8)};
    scenery.hills[1] = {fromHue(hue + 0.14, 0.55, 0.42), between(0.7, 0.95), 1 - far, between(0.6, 0.7),
                        between(0.7, 0.95)};
    return scenery;
}

std::string hexOf(Rgb color) {
    constexpr const char* digits = "0123456789abcdef";
    std::string hex = "#";
    for (const unsigned channel : color)
        (hex += digits[channel / 16]) += digits[channel % 16];
    return hex;
}

} // namespace simulator
