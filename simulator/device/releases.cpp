#include "device/releases.h"

#include "frameworks/ObjectiveC/Presence.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <charconv>
#include <cstddef>
#include <mutex>
#include <set>
#include <unordered_map>
#include <utility>

extern "C" const char signatureTableBytes[];
extern "C" const char signatureTableEnd[];

namespace simulator {
namespace {

struct ReleaseFacts {
    std::string_view name;
    int order; // comparable: 100 * major + minor
    double coreFoundationVersion;
};

constexpr std::array<ReleaseFacts, 9> facts = {{
    {"7.1", 701, 847.24},
    {"8.4", 804, 1145.15},
    {"9.3", 903, 1280.30},
    {"10.1", 1001, 1348.00},
    {"10.2", 1002, 1348.22},
    {"10.3", 1003, 1349.56},
    {"11.4", 1104, 1452.23},
    {"12.4", 1204, 1575.17},
    {"complete", 0, 1349.56},
}};

const ReleaseFacts& factsOf(Release release) { return facts[static_cast<std::size_t>(release)]; }

int orderOf(std::string_view version) {
    int major = 0;
    int minor = 0;
    const char* begin = version.data();
    const char* end = begin + version.size();
    const auto afterMajor = std::from_chars(begin, end, major).ptr;
    if (afterMajor < end) std::from_chars(afterMajor + 1, end, minor);
    return 100 * major + minor;
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(separator, start), text.size());
        parts.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

bool rangeContains(std::string_view range, int order) {
    const std::size_t dash = range.find('-');
    const std::string_view last = dash == range.npos ? range : range.substr(dash + 1);
    return orderOf(range.substr(0, dash)) <= order && order <= orderOf(last);
}

SignatureRow::Status statusNamed(std::string_view name) {
    if (name == "found") return SignatureRow::Status::found;
    return name == "thirdparty" ? SignatureRow::Status::thirdParty : SignatureRow::Status::notFound;
}

std::vector<SignatureRow> parseTable() {
    const std::string_view text(signatureTableBytes,
                                static_cast<std::size_t>(signatureTableEnd - signatureTableBytes));
    std::vector<SignatureRow> rows;
    for (const std::string_view line : split(text, '\n')) {
        const auto fields = split(line, '\t');
        if (line.starts_with('#') || fields.size() != 7 || fields[0] == "class") continue;
        rows.push_back({std::string(fields[0]), fields[1].front(), std::string(fields[2]),
                        std::string(fields[3]), std::string(fields[4]), std::string(fields[5]),
                        statusNamed(fields[6])});
    }
    return rows;
}

struct Presence {
    std::mutex lock;
    std::unordered_map<std::string_view, const SignatureRow*> classRows;
    std::vector<std::pair<std::string, std::string>> frameworksByPrefix;
    std::optional<std::set<std::string>> loadedFrameworks;
};

Presence& presence() {
    static Presence& shared = *[] {
        auto* made = new Presence;
        for (const SignatureRow& row : signatureTable())
            if (row.kind == 'c') made->classRows.emplace(row.className, &row);
        return made;
    }();
    return shared;
}

std::atomic<Release> running = Release::ios10_3;

} // namespace

std::string_view releaseName(Release release) { return factsOf(release).name; }

std::optional<Release> releaseNamed(std::string_view name) {
    for (const Release release : allReleases)
        if (factsOf(release).name == name) return release;
    return std::nullopt;
}

double coreFoundationVersion(Release release) { return factsOf(release).coreFoundationVersion; }

Release currentRelease() { return running; }

void setCurrentRelease(Release release) {
    running = release;
    forgetMethodsAbsentBefore();
}

bool SignatureRow::existsIn(Release release) const {
    if (release == Release::complete) return true;
    const int order = factsOf(release).order;
    return !releases.empty() && std::ranges::any_of(split(releases, ','), [&](std::string_view range) {
        return rangeContains(range, order);
    });
}

std::span<const SignatureRow> signatureTable() {
    static const std::vector<SignatureRow>& table = *new std::vector<SignatureRow>(parseTable());
    return table;
}

bool classIsPresent(std::string_view name) {
    Presence& known = presence();
    const std::lock_guard guard(known.lock);
    const auto row = known.classRows.find(name);
    if (row != known.classRows.end() && !row->second->existsIn(currentRelease())) return false;
    if (!known.loadedFrameworks) return true;
    bool isClaimed = false;
    for (const auto& [prefix, framework] : known.frameworksByPrefix) {
        if (!name.starts_with(prefix)) continue;
        if (known.loadedFrameworks->contains(framework)) return true;
        isClaimed = true;
    }
    return !isClaimed;
}

void registerFramework(std::string_view framework, const std::vector<std::string>& prefixes) {
    Presence& known = presence();
    const std::lock_guard guard(known.lock);
    for (const std::string& prefix : prefixes)
        known.frameworksByPrefix.emplace_back(prefix, framework);
}

void setLoadedFrameworks(std::vector<std::string> frameworks) {
    Presence& known = presence();
    const std::lock_guard guard(known.lock);
    known.loadedFrameworks.emplace(frameworks.begin(), frameworks.end());
}

} // namespace simulator
