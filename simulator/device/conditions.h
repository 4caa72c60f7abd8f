// The circumstances of a device that a test or a person may set: release, screen, biometry, threads, faults,
// hooking style. They live as JSON in the device folder, so that every process of the device sees a change at
// once.
#pragma once

#include "device/releases.h"

#include <nlohmann/json_fwd.hpp>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace simulator {

enum class Idiom { phone, pad };

enum class Biometry { none, touchId, faceId };

// How the system's dialog for Touch ID or Face ID ends.
enum class BiometricOutcome { success, failed, userCancel, userFallback, notAvailable, refusedWithoutError };

// On which thread captures end. A thread of a dispatch queue runs no run loop.
enum class CaptureDelivery { dispatchQueue, runLoopThread, mainThread };

// What an application may do with the photo library. Whoever asks is authorized, unless said otherwise; from
// iOS 10 on an application can ask only with its usage description.
enum class PhotoAccess { ifAsked, notDetermined, restricted, denied, authorized };

struct Screen {
    double width = 375; // points, portrait
    double height = 667;
    double scale = 2;

    bool operator==(const Screen&) const = default;
};

struct Faults {
    bool diskFull = false;               // writes below the file-system root fail with ENOSPC
    std::vector<std::string> missing;    // device paths that are not there, whatever the disk holds
    std::vector<std::string> unreadable; // device paths that cannot be opened for reading (EACCES)
    bool refuseLibraryChanges = false;   // the photo library refuses every change

    bool operator==(const Faults&) const = default;
};

// The two kinds of method-hooking framework that exist differ in the first two points; correct libraries work
// under both.
struct HookingStyle {
    bool slotWrittenFirst = true;       // the original's slot is written before the replacement is installed
    bool inheritedResolvedLate = false; // an inherited original is looked up at each call, not at hook time
    bool callsNoted = false;            // each call of what a library installed is noted, for a person to see

    bool operator==(const HookingStyle&) const = default;
};

struct Conditions {
    Release release = Release::ios10_3;
    std::optional<double> coreFoundationVersion; // the release's own when not set
    Screen screen;
    Idiom idiom = Idiom::phone;
    Biometry biometry = Biometry::touchId;
    BiometricOutcome biometricOutcome = BiometricOutcome::success;
    bool hapticEngine = true;
    CaptureDelivery captureDelivery = CaptureDelivery::dispatchQueue;
    PhotoAccess photoAccess = PhotoAccess::ifAsked;
    double albumDeletionTime = 0; // seconds until the photo library has deleted an album
    bool manualClock = false;     // timers wait for Clock::advance instead of real time
    Faults faults;
    HookingStyle hooking;

    bool operator==(const Conditions&) const = default;
};

// JSON as in conditions.json; fields that are missing keep their defaults, unknown ones and wrong values
// throw std::invalid_argument naming the field.
nlohmann::json toJson(const Conditions& conditions);
Conditions conditionsFromJson(const nlohmann::json& json);

// The conditions of the mounted device, read anew whenever the file changed; the defaults without a device.
// Any thread. Release, version and hooking style take effect when a host starts, everything else at once.
std::shared_ptr<const Conditions> currentConditions();

} // namespace simulator
