// The iOS release that the device runs, and what exists in it: the single place that decides whether a class
// or a method is there. Class look-up, the hooking function, respondsToSelector: and messages all ask here.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

// `complete` has every name of the signature table, also those that no release has.
enum class Release { ios7_1, ios8_4, ios9_3, ios10_1, ios10_2, ios10_3, ios11_4, ios12_0, ios12_4, complete };

inline constexpr Release allReleases[] = {
    Release::ios7_1,  Release::ios8_4,  Release::ios9_3,  Release::ios10_1, Release::ios10_2,
    Release::ios10_3, Release::ios11_4, Release::ios12_0, Release::ios12_4, Release::complete};

std::string_view releaseName(Release release); // "10.3", "complete"
std::optional<Release> releaseNamed(std::string_view name);
double coreFoundationVersion(Release release);

// The release of this process; 10.3 until set. Set it before any thread of the host runs.
Release currentRelease();
void setCurrentRelease(Release release);

// One fact of the signature table (tests/data/platform-signatures.tsv).
struct SignatureRow {
    std::string className;
    char kind;            // '-' instance method, '+' class method, 'c' presence of the class itself
    std::string selector; // empty for the presence of a class
    std::string encoding; // as on arm64, without offsets
    std::string releases; // "8.0-10.2", several ranges joined by commas, empty when in none
    std::string inheritedFrom;

    bool existsIn(Release release) const;
};

// The whole table, read once; it is part of the simulator's binary.
std::span<const SignatureRow> signatureTable();

// Whether the device has the class. Besides the release, this knows the frameworks that the running host has
// loaded: a class of a framework that is not loaded does not exist in that process.
bool classIsPresent(std::string_view name);

// Gives a framework all classes whose names begin so; `setLoadedFrameworks` then says which frameworks a host
// has. Classes that no framework claims are always there, and so is everything until a host names its
// frameworks.
void registerFramework(std::string_view framework, const std::vector<std::string>& prefixes);
void setLoadedFrameworks(std::vector<std::string> frameworks);
// Loads one more into the running host; a framework that it has stays as it is.
void addLoadedFramework(std::string framework);

} // namespace simulator
