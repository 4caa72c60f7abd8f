#include "device/conditions.h"

#include "device/root.h"

#include <nlohmann/json.hpp>
#include <sys/stat.h>

#include <fstream>
#include <mutex>
#include <stdexcept>

// Null while not set.
template <> struct nlohmann::adl_serializer<std::optional<double>> {
    static void to_json(json& object, const std::optional<double>& value) {
        object = value ? json(*value) : json();
    }
    static void from_json(const json& object, std::optional<double>& value) {
        if (!object.is_null()) value = object.get<double>();
    }
};

namespace simulator {

using nlohmann::json;

static void to_json(json& object, Release release) { object = releaseName(release); }
static void from_json(const json& object, Release& release) {
    release = releaseNamed(object.get<std::string>()).value_or(release);
}

// clang-format off
NLOHMANN_JSON_SERIALIZE_ENUM(Idiom, {{Idiom::phone, "phone"}, {Idiom::pad, "pad"}})
NLOHMANN_JSON_SERIALIZE_ENUM(Biometry, {{Biometry::none, "none"}, {Biometry::touchId, "touchId"}, {Biometry::faceId, "faceId"}})
NLOHMANN_JSON_SERIALIZE_ENUM(CaptureDelivery, {
    {CaptureDelivery::dispatchQueue, "dispatchQueue"}, {CaptureDelivery::runLoopThread, "runLoopThread"},
    {CaptureDelivery::mainThread, "mainThread"}})
NLOHMANN_JSON_SERIALIZE_ENUM(PhotoAccess, {
    {PhotoAccess::ifAsked, "ifAsked"}, {PhotoAccess::notDetermined, "notDetermined"},
    {PhotoAccess::restricted, "restricted"}, {PhotoAccess::denied, "denied"}, {PhotoAccess::authorized, "authorized"}})
NLOHMANN_JSON_SERIALIZE_ENUM(BiometricOutcome, {
    {BiometricOutcome::success, "success"}, {BiometricOutcome::failed, "failed"},
    {BiometricOutcome::userCancel, "userCancel"}, {BiometricOutcome::userFallback, "userFallback"},
    {BiometricOutcome::notAvailable, "notAvailable"}, {BiometricOutcome::refusedWithoutError, "refusedWithoutError"}})
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Screen, width, height, scale)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Faults, diskFull, missing, unreadable, refuseLibraryChanges)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(HookingStyle, slotWrittenFirst, inheritedResolvedLate, callsNoted)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Conditions, release, coreFoundationVersion, screen, idiom,
                                                biometry, biometricOutcome, hapticEngine, captureDelivery, photoAccess,
                                                albumDeletionTime, manualClock, faults, hooking)
// clang-format on

namespace {

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

json toJson(const Conditions& conditions) { return conditions; }

// What does not come out again as it was given has an unknown name or a wrong value.
Conditions conditionsFromJson(const json& object) {
    const auto conditions = object.get<Conditions>();
    const json given = object.flatten();
    const json understood = json(conditions).flatten();
    for (const auto& [field, value] : given.items()) // an empty object or list is null there
        if (!value.is_null() && (!understood.contains(field) || understood[field] != value))
            throw std::invalid_argument("conditions: " + field + " cannot be " + value.dump());
    return conditions;
}

std::shared_ptr<const Conditions> currentConditions() {
    Cache& cached = cache();
    const std::filesystem::path file = mountedDevice() / "conditions.json";
    const std::lock_guard guard(cached.lock);
    struct stat facts{};
    if (file.is_relative() || stat(file.c_str(), &facts) != 0) {
        static const auto defaults = std::make_shared<const Conditions>();
        return defaults;
    }
    const bool same = file == cached.file && facts.st_ino == cached.inode &&
                      facts.st_mtim.tv_sec == cached.modified.tv_sec &&
                      facts.st_mtim.tv_nsec == cached.modified.tv_nsec;
    if (same) return cached.conditions;
    std::ifstream stream(file);
    cached.conditions = std::make_shared<const Conditions>(conditionsFromJson(json::parse(stream)));
    cached.file = file;
    cached.inode = facts.st_ino;
    cached.modified = facts.st_mtim;
    return cached.conditions;
}

} // namespace simulator
