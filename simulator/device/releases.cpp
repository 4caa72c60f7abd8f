#include "device/releases.h"

#include "frameworks/ObjectiveC/Presence.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstddef>
#include <cstdio>
#include <map>
#include <mutex>
#include <set>
#include <sstream>
#include <utility>

extern "C" const char signatureTableBytes[];

namespace simulator {
namespace {

struct ReleaseFacts {
    std::string_view name;
    int order; // comparable: 100 * major + minor
    double coreFoundationVersion;
};

constexpr std::array<ReleaseFacts, 10> facts = {{
    {"7.1", 701, 847.24},
    {"8.4", 804, 1145.15},
    {"9.3", 903, 1280.30},
    {"10.1", 1001, 1348.00},
    {"10.2", 1002, 1348.22},
    {"10.3", 1003, 1349.56},
    {"11.4", 1104, 1452.23},
    {"12.0", 1200, 1556.00},
    {"12.4", 1204, 1575.17},
    {"complete", 0, 1349.56},
}};

const ReleaseFacts& factsOf(Release release) { return facts[static_cast<std::size_t>(release)]; }

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);)
        parts.push_back(part);
    return parts;
}

// A range is "8.0-10.2" or "8.0".
bool rangeContains(const std::string& range, int order) {
    int major = 0, minor = 0, lastMajor = 0, lastMinor = 0;
    if (std::sscanf(range.c_str(), "%d.%d-%d.%d", &major, &minor, &lastMajor, &lastMinor) < 4)
        lastMajor = major, lastMinor = minor;
    return 100 * major + minor <= order && order <= 100 * lastMajor + lastMinor;
}

std::vector<SignatureRow> parseTable() {
    std::vector<SignatureRow> rows;
    for (const std::string& line : split(signatureTableBytes, '\n')) {
        const auto fields = split(line, '\t');
        if (line.starts_with('#') || fields.front() == "class") continue;
        rows.push_back({fields[0], fields[1].front(), fields[2], fields[3], fields[4], fields[5]});
    }
    return rows;
}

// What a host has beside the classes of the release.
struct Frameworks {
    std::mutex lock;
    std::vector<std::pair<std::string, std::string>> byPrefix;
    std::optional<std::set<std::string>> loaded;
};

Frameworks& frameworks() {
    static auto* shared = new Frameworks;
    return *shared;
}

bool releaseHasClass(std::string_view name) {
    static const auto& rows = *[] {
        auto* made = new std::map<std::string_view, const SignatureRow*>;
        for (const SignatureRow& row : signatureTable())
            if (row.kind == 'c') made->emplace(row.className, &row);
        return made;
    }();
    const auto row = rows.find(name);
    return row == rows.end() || row->second->existsIn(currentRelease());
}

std::atomic<Release> running = Release::ios10_3;

} // namespace

std::string_view releaseName(Release release) { return factsOf(release).name; }

std::optional<Release> releaseNamed(std::string_view name) {
    const auto found = std::ranges::find(allReleases, name, releaseName);
    return found == std::end(allReleases) ? std::nullopt : std::optional(*found);
}

double coreFoundationVersion(Release release) { return factsOf(release).coreFoundationVersion; }

Release currentRelease() { return running; }

void setCurrentRelease(Release release) {
    running = release;
    forgetMethodsAbsentBefore();
}

bool SignatureRow::existsIn(Release release) const {
    return release == Release::complete ||
           std::ranges::any_of(split(releases, ','), [&](const std::string& range) {
               return rangeContains(range, factsOf(release).order);
           });
}

std::span<const SignatureRow> signatureTable() {
    static const auto& table = *new std::vector<SignatureRow>(parseTable());
    return table;
}

bool classIsPresent(std::string_view name) {
    if (!releaseHasClass(name)) return false;
    Frameworks& known = frameworks();
    const std::lock_guard guard(known.lock);
    if (!known.loaded) return true;
    bool isClaimed = false;
    for (const auto& [prefix, framework] : known.byPrefix) {
        if (!name.starts_with(prefix)) continue;
        if (known.loaded->contains(framework)) return true;
        isClaimed = true;
    }
    return !isClaimed;
}

void registerFramework(std::string_view framework, const std::vector<std::string>& prefixes) {
    Frameworks& known = frameworks();
    const std::lock_guard guard(known.lock);
    for (const std::string& prefix : prefixes)
        known.byPrefix.emplace_back(prefix, framework);
}

void setLoadedFrameworks(std::vector<std::string> loaded) {
    Frameworks& known = frameworks();
    const std::lock_guard guard(known.lock);
    known.loaded.emplace(loaded.begin(), loaded.end());
}

void addLoadedFramework(std::string framework) {
    Frameworks& known = frameworks();
    const std::lock_guard guard(known.lock);
    if (known.loaded) known.loaded->insert(std::move(framework));
}

} // namespace simulator
