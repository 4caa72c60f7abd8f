// The pixels of a picture, and PNG files of them.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace simulator {

class Bitmap {
  public:
    // Black and transparent. Throws std::invalid_argument for a side of 0 or beyond maximumSide.
    Bitmap(std::uint32_t width, std::uint32_t height);

    // Null for data that is no PNG picture, is damaged or cut short.
    static std::shared_ptr<const Bitmap> fromPng(std::span<const std::uint8_t> data);
    // The same pixels for the same arguments, others for another seed.
    static std::shared_ptr<const Bitmap> generated(std::uint32_t width, std::uint32_t height,
                                                   std::uint64_t seed);

    std::vector<std::uint8_t> png() const;

    std::uint32_t width() const { return m_width; }
    std::uint32_t height() const { return m_height; }
    // Rows from the top, four bytes a pixel: red, green, blue, alpha (not premultiplied).
    std::span<const std::uint8_t> pixels() const { return m_pixels; }
    std::span<std::uint8_t> pixels() { return m_pixels; }

    static constexpr std::uint32_t maximumSide = 16384;

  private:
    std::uint32_t m_width;
    std::uint32_t m_height;
    std::vector<std::uint8_t> m_pixels;
};

} // namespace simulator
