#pragma once

#include "loader/loader.h"
#include "loader/mach_o_file.h"

#include <span>
#include <string>

namespace simulator::macho {

/// A dynamic library for arm64, mapped into this process and bound; its initialisers have not run yet.
class Image {
  public:
    /// Maps the library whose file content is `bytes`. Throws FormatError and leaves nothing mapped.
    explicit Image(std::span<const std::byte> bytes);
    ~Image();
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;

    std::vector<LoadedSegment> segments() const;

    /// Runs the initialisers in order and returns how many there were. From here on the image must outlive
    /// whatever they handed out pointers to.
    std::size_t runInitialisers() const;

  private:
    std::byte* at(std::uint64_t address) const;
    void copySegments();
    void applyFixups();
    void protectSegments();
    void registerUnwindFrames();
    void checkInitialisers() const;

    File file_;
    std::uint64_t firstAddress_ = 0;
    std::size_t size_ = 0;
    std::byte* memory_ = nullptr;
    std::vector<std::byte> translatedFrames_;
};

} // namespace simulator::macho
