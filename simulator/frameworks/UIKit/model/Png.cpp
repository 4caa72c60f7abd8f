#include "UIKit/model/Png.h"

#include "UIKit/model/Scenery.h"

#include <png.h>

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace simulator {

namespace {

constexpr std::uint32_t maximumSide = 16384;

struct PngImage : png_image {
    PngImage() : png_image{} { version = PNG_IMAGE_VERSION; }
    ~PngImage() { png_image_free(this); }
    PngImage(const PngImage&) = delete;
    PngImage& operator=(const PngImage&) = delete;
};

} // namespace

std::optional<PngSize> sizeOfPng(std::span<const std::uint8_t> file) {
    PngImage image;
    if (png_image_begin_read_from_memory(&image, file.data(), file.size()) == 0) return std::nullopt;
    const PngSize size = {image.width, image.height};
    if (size.width > maximumSide || size.height > maximumSide) return std::nullopt;
    image.format = PNG_FORMAT_RGBA;
    std::vector<std::uint8_t> pixels(PNG_IMAGE_SIZE(image));
    const bool isComplete =
        png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr) != 0 && !PNG_IMAGE_FAILED(image);
    return isComplete ? std::optional(size) : std::nullopt;
}

namespace {

Rgb colorAt(const Scenery& scenery, double x, double y, double aspect) {
    for (const Scenery::Hill& hill : {scenery.hills[1], scenery.hills[0]})
        if (y >= hill.topAt(x)) return hill.color;
    const double acrossSun = (x - scenery.sunX) * aspect;
    const double downSun = y - scenery.sunY;
    if (acrossSun * acrossSun + downSun * downSun < scenery.sunRadius * scenery.sunRadius) return scenery.sun;
    Rgb sky;
    for (std::size_t channel = 0; channel < sky.size(); ++channel)
        sky[channel] =
            static_cast<std::uint8_t>(scenery.skyTop[channel] * (1 - y) + scenery.skyBottom[channel] * y);
    return sky;
}

} // namespace

std::vector<std::uint8_t> generatedPng(PngSize size, std::uint64_t seed) {
    const Scenery scenery = sceneryOf(seed);
    const double aspect = static_cast<double>(size.width) / size.height;
    std::vector<std::uint8_t> pixels;
    pixels.reserve(std::size_t{3} * size.width * size.height);
    for (std::uint32_t y = 0; y < size.height; ++y)
        for (std::uint32_t x = 0; x < size.width; ++x)
            std::ranges::copy(colorAt(scenery, (x + 0.5) / size.width, (y + 0.5) / size.height, aspect),
                              std::back_inserter(pixels));
    PngImage image;
    image.width = size.width;
    image.height = size.height;
    image.format = PNG_FORMAT_RGB;
    std::vector<std::uint8_t> file(PNG_IMAGE_PNG_SIZE_MAX(image));
    png_alloc_size_t length = file.size();
    if (png_image_write_to_memory(&image, file.data(), &length, 0, pixels.data(), 0, nullptr) == 0)
        throw std::runtime_error(image.message);
    file.resize(length);
    return file;
}

} // namespace simulator
