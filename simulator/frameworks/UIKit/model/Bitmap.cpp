#include "UIKit/model/Bitmap.h"

#include <png.h>

#include <random>
#include <stdexcept>

namespace simulator {

namespace {

bool isAllowedSide(std::uint32_t side) { return side > 0 && side <= Bitmap::maximumSide; }

struct PngReader {
    png_image image = {};

    PngReader() { image.version = PNG_IMAGE_VERSION; }
    ~PngReader() { png_image_free(&image); }
    PngReader(const PngReader&) = delete;
    PngReader& operator=(const PngReader&) = delete;
};

} // namespace

Bitmap::Bitmap(std::uint32_t width, std::uint32_t height) : m_width(width), m_height(height) {
    if (!isAllowedSide(width) || !isAllowedSide(height))
        throw std::invalid_argument("no picture has such a size");
    m_pixels.resize(std::size_t{4} * width * height);
}

std::shared_ptr<const Bitmap> Bitmap::fromPng(std::span<const std::uint8_t> data) {
    PngReader reader;
    if (png_image_begin_read_from_memory(&reader.image, data.data(), data.size()) == 0) return nullptr;
    if (!isAllowedSide(reader.image.width) || !isAllowedSide(reader.image.height)) return nullptr;
    reader.image.format = PNG_FORMAT_RGBA;
    auto bitmap = std::make_shared<Bitmap>(reader.image.width, reader.image.height);
    const bool complete =
        png_image_finish_read(&reader.image, nullptr, bitmap->m_pixels.data(), 0, nullptr) != 0 &&
        !PNG_IMAGE_FAILED(reader.image);
    return complete ? bitmap : nullptr;
}

std::shared_ptr<const Bitmap> Bitmap::generated(std::uint32_t width, std::uint32_t height,
                                                std::uint64_t seed) {
    auto bitmap = std::make_shared<Bitmap>(width, height);
    std::mt19937_64 random(seed);
    const std::uint64_t corners = random(); // a colour each for the top left and the bottom right corner
    for (std::uint32_t y = 0; y < height; ++y) {
        for (std::uint32_t x = 0; x < width; ++x) {
            const double share = (static_cast<double>(x) / width + static_cast<double>(y) / height) / 2;
            std::uint8_t* pixel = &bitmap->m_pixels[4 * (std::size_t{y} * width + x)];
            for (unsigned channel = 0; channel < 3; ++channel) {
                const auto from = static_cast<double>((corners >> (8 * channel)) & 0xFF);
                const auto to = static_cast<double>((corners >> (24 + 8 * channel)) & 0xFF);
                pixel[channel] = static_cast<std::uint8_t>(from + (to - from) * share);
            }
            pixel[3] = 0xFF;
        }
    }
    return bitmap;
}

std::vector<std::uint8_t> Bitmap::png() const {
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = m_width;
    image.height = m_height;
    image.format = PNG_FORMAT_RGBA;
    std::vector<std::uint8_t> file(PNG_IMAGE_PNG_SIZE_MAX(image));
    png_alloc_size_t size = file.size();
    if (png_image_write_to_memory(&image, file.data(), &size, 0, m_pixels.data(), 0, nullptr) == 0)
        throw std::runtime_error(image.message);
    file.resize(size);
    return file;
}

} // namespace simulator
