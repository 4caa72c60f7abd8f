#include "device/conditions.h"

#include "device/root.h"

#include <sys/stat.h>

#include <array>
#include <fstream>
#include <functional>
#include <mutex>
#include <stdexcept>
#include <utility>

namespace simulator {
namespace {

using nlohmann::json;

template <class Value, std::size_t size> using Names = std::array<std::pair<Value, const char*>, size>;

constexpr Names<Idiom, 2> idiomNames = {{{Idiom::phone, "phone"}, {Idiom::pad, "pad"}}};
constexpr Names<BiometricOutcome, 6> outcomeNames = {
    {{BiometricOutcome::success, "success"},
     {BiometricOutcome::failed, "failed"},
     {BiometricOutcome::userCancel, "userCancel"},
     {BiometricOutcome::userFallback, "userFallback"},
     {BiometricOutcome::notAvailable, "notAvailable"},
     {BiometricOutcome::refusedWithoutError, "refusedWithoutError"}}};

template <class Value, std::size_t size> std::string nameOf(const Names<Value, size>& names, Value value) {
    for (const auto& [candidate, name] : names)
        if (candidate == value) return name;
    throw std::invalid_argument("conditions: a value has no name");
}

template <class Value, std::size_t size> Value valueOf(const Names<Value, size>& names, const json& name) {
    for (const auto& [value, candidate] : names)
        if (name == candidate) return value;
    throw std::invalid_argument("unknown value " + name.dump());
}

Release releaseFrom(const json& name) {
    const std::optional<Release> release = releaseNamed(name.get<std::string>());
    if (!release) throw std::invalid_argument("unknown release " + name.dump());
    return *release;
}

using Readers = std::vector<std::pair<std::string_view, std::function<void(const json&)>>>;

template <class Value> std::function<void(const json&)> into(Value& target) {
    return [&target](const json& value) { value.get_to(target); };
}

void read(const json& object, const std::string& name, const Readers& readers) {
    if (!object.is_object()) throw std::invalid_argument("conditions: " + name + " is no object");
    for (const auto& [key, value] : object.items()) {
        const auto reader = std::ranges::find(readers, std::string_view(key), &Readers::value_type::first);
        if (reader == readers.end()) throw std::invalid_argument("conditions: unknown field " + key);
        try {
            reader->second(value);
        } catch (const std::exception& error) {
            throw std::invalid_argument("conditions: " + key + ": " + error.what());
        }
    }
}

// The conditions as last read, with what tells that the file is still the same.
struct Cache {
    std::mutex lock;
    std::shared_ptr<const Conditions> conditions = std::make_shared<const Conditions>();
    std::string file;
    struct timespec modified{};
    ino_t inode = 0;
};

Cache& cache() {
    static auto* shared = new Cache;
    return *shared;
}

} // namespace

json toJson(const Conditions& conditions) {
    json result = {
        {"release", releaseName(conditions.release)},
        {"screen",
         {{"width", conditions.screen.width},
          {"height", conditions.screen.height},
          {"scale", conditions.screen.scale}}},
        {"idiom", nameOf(idiomNames, conditions.idiom)},
        {"biometricOutcome", nameOf(outcomeNames, conditions.biometricOutcome)},
        {"hapticEngine", conditions.hapticEngine},
        {"manualClock", conditions.manualClock},
        {"faults",
         {{"diskFull", conditions.faults.diskFull},
          {"missing", conditions.faults.missing},
          {"unreadable", conditions.faults.unreadable},
          {"refuseLibraryChanges", conditions.faults.refuseLibraryChanges}}},
        {"hooking",
         {{"slotWrittenFirst", conditions.hooking.slotWrittenFirst},
          {"inheritedResolvedLate", conditions.hooking.inheritedResolvedLate}}},
    };
    if (conditions.coreFoundationVersion) result["coreFoundationVersion"] = *conditions.coreFoundationVersion;
    return result;
}

Conditions conditionsFromJson(const json& object) {
    Conditions result;
    read(object, "the whole",
         {{"release", [&](const json& value) { result.release = releaseFrom(value); }},
          {"coreFoundationVersion",
           [&](const json& value) { result.coreFoundationVersion = value.get<double>(); }},
          {"screen",
           [&](const json& value) {
               read(value, "screen",
                    {{"width", into(result.screen.width)},
                     {"height", into(result.screen.height)},
                     {"scale", into(result.screen.scale)}});
           }},
          {"idiom", [&](const json& value) { result.idiom = valueOf(idiomNames, value); }},
          {"biometricOutcome",
           [&](const json& value) { result.biometricOutcome = valueOf(outcomeNames, value); }},
          {"hapticEngine", into(result.hapticEngine)},
          {"manualClock", into(result.manualClock)},
          {"faults",
           [&](const json& value) {
               read(value, "faults",
                    {{"diskFull", into(result.faults.diskFull)},
                     {"missing", into(result.faults.missing)},
                     {"unreadable", into(result.faults.unreadable)},
                     {"refuseLibraryChanges", into(result.faults.refuseLibraryChanges)}});
           }},
          {"hooking", [&](const json& value) {
               read(value, "hooking",
                    {{"slotWrittenFirst", into(result.hooking.slotWrittenFirst)},
                     {"inheritedResolvedLate", into(result.hooking.inheritedResolvedLate)}});
           }}});
    return result;
}

std::shared_ptr<const Conditions> currentConditions() {
    Cache& cached = cache();
    const std::filesystem::path folder = mountedDevice();
    const std::lock_guard guard(cached.lock);
    const std::string file = folder.empty() ? std::string() : (folder / "conditions.json").string();
    struct stat facts{};
    if (file.empty() || stat(file.c_str(), &facts) != 0) {
        static const auto defaults = std::make_shared<const Conditions>();
        return defaults;
    }
    const bool same = file == cached.file && facts.st_ino == cached.inode &&
                      facts.st_mtim.tv_sec == cached.modified.tv_sec &&
                      facts.st_mtim.tv_nsec == cached.modified.tv_nsec;
    if (same) return cached.conditions;
    std::ifstream stream(file);
    const json content = json::parse(stream, nullptr, false);
    if (content.is_discarded()) throw std::invalid_argument(file + " is no JSON");
    cached.conditions = std::make_shared<const Conditions>(conditionsFromJson(content));
    cached.file = file;
    cached.inode = facts.st_ino;
    cached.modified = facts.st_mtim;
    return cached.conditions;
}

} // namespace simulator
