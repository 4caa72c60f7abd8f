#include "UIKit/model/Png.h"

#include <png.h>

#include <random>
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

// A gradient from one random colour at the top left to another at the bottom right.
std::vector<std::uint8_t> generatedPng(PngSize size, std::uint64_t seed) {
    const std::uint64_t corners = std::mt19937_64(seed)();
    std::vector<std::uint8_t> pixels;
    pixels.reserve(std::size_t{3} * size.width * size.height);
    for (std::uint32_t y = 0; y < size.height; ++y) {
        for (std::uint32_t x = 0; x < size.width; ++x) {
            const double share =
                (static_cast<double>(x) / size.width + static_cast<double>(y) / size.height) / 2;
            for (unsigned channel = 0; channel < 3; ++channel) {
                const auto from = static_cast<double>((corners >> (8 * channel)) & 0xFF);
                const auto to = static_cast<double>((corners >> (24 + 8 * channel)) & 0xFF);
                pixels.push_back(static_cast<std::uint8_t>(from + (to - from) * share));
            }
        }
    }
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
