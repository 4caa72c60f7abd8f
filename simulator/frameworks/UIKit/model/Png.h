// PNG files: what size their pictures have, and pictures that are made up.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace simulator {

// In pixels.
struct PngSize {
    std::uint32_t width;
    std::uint32_t height;
};

// Nothing for data that is no PNG picture, is damaged or cut short, or has a side of more than 16384 pixels.
std::optional<PngSize> sizeOfPng(std::span<const std::uint8_t> file);

// The scenery of that number: the same pixels for the same arguments, others for another seed.
std::vector<std::uint8_t> generatedPng(PngSize size, std::uint64_t seed);

} // namespace simulator
