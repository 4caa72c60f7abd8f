// The scenarios of the program `scenario`: each runs in a process of its own, because hooks cannot be taken
// back. All throw std::exception when something is not as they need it.
#pragma once

#include "hosts/applications/bundle_identifiers.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace bench {

// The command line's options, by name without the dashes.
struct Options {
    std::map<std::string, std::string, std::less<>> values;

    // Throws std::invalid_argument naming the option that is missing or no number.
    const std::string& text(const std::string& name) const;
    std::size_t number(const std::string& name) const;
    // Nothing when the option is not given.
    std::optional<std::filesystem::path> library() const;
};

inline constexpr std::size_t photosInAlbum = 20;

// --device FOLDER --albums N --locked N --release NAME: makes a device with that many albums, of which the
// titles of some are locked.
void prepareDevice(const Options& options);

// --device FOLDER --bundle IDENTIFIER --preferences JSON --library FILE: figures "reading", the preference
// file inside the load, "own", everything else that happens while the library loads, and "reading again", by
// the same process.
void measureLoad(const Options& options);

// --device FOLDER --method NAME --hook none|plain|shared|library [--library FILE]: figure "calls", of `calls`
// calls.
void measurePassThrough(const Options& options);

// --device FOLDER [--library FILE]: figure "cell", configuring one cell of a locked album.
void measureAlbumCell(const Options& options);

// --device FOLDER --library FILE --configurations N: figures "configurations", "recognisers" and
// "grown" (other objects that became more, by class), and "memory" (KiB).
void measureAlbumCellGrowth(const Options& options);

// --device FOLDER [--library FILE]: figures "collections", and "memory" at its peak (KiB).
void measureCollections(const Options& options);

// --device FOLDER --library FILE: figure "collections", of the same list by the literal algorithm.
void measureLiteralCollections(const Options& options);

// --device FOLDER [--library FILE]: figure "fetch", the photos of one album.
void measureAlbumFetch(const Options& options);

} // namespace bench
