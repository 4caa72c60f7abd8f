#include "page/phone.h"

#include "hosts/applications/bundle_identifiers.h"
#include "hosts/applications/catalogue.h"
#include "page/contents.h"
#include "photolibrary/samples.h"

#include <cmath>

namespace simulator::page {

namespace {

using nlohmann::json;

constexpr double patience = 30; // seconds, under emulation and on a busy machine
constexpr std::size_t hooksShown = 40;
constexpr double largestNumber = 10'000; // points or seconds

// A choice that a person has; what a page sends and what it shows.
template <class Value> struct Choice {
    const char* name;
    const char* label;
    Value value;
};

struct Size {
    double width, height, scale;
    Idiom idiom;
};
constexpr Choice<Size> sizes[] = {
    {"small", "Small", {320, 568, 2, Idiom::phone}},
    {"medium", "Medium", {375, 667, 2, Idiom::phone}},
    {"large", "Large", {414, 736, 3, Idiom::phone}},
    {"pad", "Pad", {768, 1024, 2, Idiom::pad}},
};
constexpr Choice<Biometry> sensors[] = {
    {"touchId", "Touch ID", Biometry::touchId},
    {"faceId", "Face ID", Biometry::faceId},
};
constexpr Choice<BiometricOutcome> fingers[] = {
    {"right", "Right", BiometricOutcome::success},
    {"wrong", "Wrong", BiometricOutcome::failed},
    {"cancelled", "Cancelled", BiometricOutcome::userCancel},
    {"noSensor", "No sensor", BiometricOutcome::notAvailable},
};

template <class Choices> const auto& choiceNamed(const Choices& choices, const std::string& name) {
    for (const auto& choice : choices)
        if (choice.name == name) return choice;
    throw BadRequest("there is no choice " + name);
}

template <class Choices> json labelsOf(const Choices& choices) {
    json labels = json::array();
    for (const auto& choice : choices)
        labels.push_back({{"name", choice.name}, {"label", choice.label}});
    return labels;
}

json releaseLabels() {
    json labels = json::array();
    for (const Release release : allReleases)
        if (release != Release::ios7_1 && release != Release::complete)
            labels.push_back(
                {{"name", releaseName(release)}, {"label", "iOS " + std::string(releaseName(release))}});
    return labels;
}

std::string nameOf(const std::string& bundleIdentifier) {
    for (const HomeIcon& icon : homeIcons())
        if (icon.bundleIdentifier == bundleIdentifier) return std::string(icon.name);
    return "SpringBoard";
}

double numberIn(const json& request, const char* key) {
    const double number = request.at(key).get<double>();
    if (!(std::abs(number) <= largestNumber)) throw BadRequest(std::string(key) + " is out of range");
    return number;
}

} // namespace

Phone::Phone(Programs programs, const std::filesystem::path& folder)
    : m_programs(std::move(programs)), m_device(Device::create(folder)),
      m_photos(PhotoLibrary::open(m_device)) {
    addSmallSample(*m_photos);
    std::filesystem::copy(m_programs.deviceFiles, m_device.root(), std::filesystem::copy_options::recursive);
    boot();
}

void Phone::boot() {
    m_front.clear();
    m_running.clear();
    writeConditions();
    ask(bundle::springBoard, "ready");
}

void Phone::writeConditions() {
    const Size size = choiceNamed(sizes, m_settings.size).value;
    Conditions conditions;
    conditions.release = m_settings.release;
    conditions.screen = {size.width, size.height, size.scale};
    if (m_settings.landscape) std::swap(conditions.screen.width, conditions.screen.height);
    conditions.idiom = size.idiom;
    conditions.biometry = choiceNamed(sensors, m_settings.sensor).value;
    conditions.biometricOutcome = choiceNamed(fingers, m_settings.finger).value;
    conditions.hooking.callsNoted = true;
    m_device.setConditions(conditions);
}

json Phone::ask(const std::string& bundleIdentifier, const json& request) {
    auto running = m_running.find(bundleIdentifier);
    if (running == m_running.end()) {
        HostProcessOptions options;
        options.program = m_programs.host;
        options.bundleIdentifier = bundleIdentifier;
        options.device = m_device.folder();
        if (m_settings.library) options.library = m_programs.library;
        options.emulator = m_programs.emulator;
        options.timeout = patience;
        running = m_running.emplace(bundleIdentifier, HostProcess(std::move(options))).first;
    }
    try {
        return running->second.call(request);
    } catch (const HostLost&) {
        lose(bundleIdentifier);
        throw;
    }
}

json Phone::ask(const std::string& bundleIdentifier, const char* verb) {
    return ask(bundleIdentifier, {{"do", verb}});
}

void Phone::lose(const std::string& bundleIdentifier) {
    notice(nameOf(bundleIdentifier) + " has ended unexpectedly");
    m_running.erase(bundleIdentifier);
    if (m_front == bundleIdentifier) m_front.clear();
    if (bundleIdentifier == bundle::springBoard) boot();
}

std::string Phone::shownApplication() const { return m_front.empty() ? bundle::springBoard : m_front; }

void Phone::notice(std::string text) {
    m_notice = std::move(text);
    ++m_noticeNumber;
}

void Phone::open(const std::string& bundleIdentifier) {
    if (std::ranges::count(homeIcons(), bundleIdentifier, &HomeIcon::bundleIdentifier) == 0)
        throw BadRequest("there is no application " + bundleIdentifier);
    if (m_front == bundleIdentifier) return;
    goHome();
    ask(bundleIdentifier, "enterForeground");
    ask(bundleIdentifier, "followScreen");
    m_front = bundleIdentifier;
}

void Phone::goHome() {
    if (m_front.empty()) return;
    ask(std::exchange(m_front, ""), "enterBackground");
    ask(bundle::springBoard, "followScreen");
}

void Phone::actOnScreen(const json& request, json call, std::initializer_list<const char*> keys) {
    for (const char* key : keys)
        call[key] = numberIn(request, key);
    if (m_front.empty()) return openIconAt(call.at("x"), call.at("y"));
    ask(m_front, call);
}

// On the home screen every touch means the icon.
void Phone::openIconAt(double x, double y) {
    const json screen = ask(bundle::springBoard, "screen");
    for (const json& spot : screen.at("spots")) {
        const std::vector<double> rect = spot.at("rect");
        if (x < rect[0] || y < rect[1] || x >= rect[0] + rect[2] || y >= rect[1] + rect[3]) continue;
        for (const HomeIcon& icon : homeIcons())
            if (icon.name == spot.at("label").get<std::string>())
                return open(std::string(icon.bundleIdentifier));
    }
}

void Phone::set(const json& change) {
    Settings wanted = m_settings;
    if (change.contains("release")) {
        const auto release = releaseNamed(change["release"].get<std::string>());
        if (!release) throw BadRequest("there is no such release");
        wanted.release = *release;
    }
    wanted.size = choiceNamed(sizes, change.value("size", wanted.size)).name;
    wanted.sensor = choiceNamed(sensors, change.value("sensor", wanted.sensor)).name;
    wanted.finger = choiceNamed(fingers, change.value("finger", wanted.finger)).name;
    wanted.landscape = change.value("landscape", wanted.landscape);
    wanted.library = change.value("library", wanted.library);
    const Settings old = std::exchange(m_settings, wanted);
    if (wanted.release != old.release || wanted.size != old.size || wanted.library != old.library)
        return boot();
    writeConditions();
    ask(shownApplication(), "followScreen");
}

void Phone::perform(const json& request) {
    const json touch{{"do", "touch"}};
    const std::map<std::string, std::function<void()>> actions = {
        {"open", [&] { open(request.at("application")); }},
        {"home", [&] { goHome(); }},
        {"tap", [&] { actOnScreen(request, touch, {"x", "y"}); }},
        {"press", [&] { actOnScreen(request, touch, {"x", "y", "seconds"}); }},
        {"hardPress", [&] { actOnScreen(request, {{"do", "touch"}, {"gesture", "hardPress"}}, {"x", "y"}); }},
        {"pinch", [&] { actOnScreen(request, {{"do", "touch"}, {"gesture", "pinch"}}, {"x", "y"}); }},
        {"scroll", [&] { actOnScreen(request, {{"do", "scroll"}}, {"x", "y", "right", "down"}); }},
        {"type", [&] { type(request.at("field"), request.at("text")); }},
        {"takePhoto",
         [&] {
             open(bundle::camera);
             ask(bundle::camera, "takePhoto");
         }},
        {"set", [&] { set(request); }},
    };
    try {
        const auto action = actions.find(request.at("do").get<std::string>());
        if (action == actions.end()) throw BadRequest("there is no such action");
        action->second();
    } catch (const json::exception& error) {
        throw BadRequest(error.what());
    } catch (const HostLost&) {
        return; // the notice tells
    }
}

void Phone::type(std::size_t field, const std::string& text) {
    if (m_front.empty()) throw BadRequest("the home screen is shown");
    ask(m_front, {{"do", "type"}, {"field", field}, {"text", text}});
}

json Phone::look() {
    const json spots = lookAtSpots();
    const json hooks = lookAtHooks();
    const Screen screen = m_device.conditions().screen;
    return {
        {"application", nameOf(shownApplication())},
        {"isHome", m_front.empty()},
        {"screen", {{"width", screen.width}, {"height", screen.height}, {"spots", spots}}},
        {"settings",
         {{"release", releaseName(m_settings.release)},
          {"size", m_settings.size},
          {"sensor", m_settings.sensor},
          {"finger", m_settings.finger},
          {"landscape", m_settings.landscape},
          {"library", m_settings.library}}},
        {"choices",
         {{"release", releaseLabels()},
          {"size", labelsOf(sizes)},
          {"sensor", labelsOf(sensors)},
          {"finger", labelsOf(fingers)}}},
        {"photos", photosOf(*m_photos)},
        {"files", filesOf(m_device)},
        {"hooks", hooks},
        {"notice", {{"number", m_noticeNumber}, {"text", m_notice}}},
    };
}

json Phone::lookAtSpots() {
    m_screen.clear();
    try {
        const json seen = ask(shownApplication(), "screen");
        m_screen = seen.at("svg");
        return seen.at("spots");
    } catch (const HostLost&) {
        return json::array(); // the notice tells
    } catch (const std::runtime_error& error) {
        notice(error.what());
    }
    return json::array();
}

json Phone::lookAtHooks() {
    std::vector<json> hooks;
    std::vector<std::string> running;
    running.reserve(m_running.size());
    for (const auto& each : m_running)
        running.push_back(each.first);
    for (const std::string& each : running) {
        try {
            const json answer = ask(each, "hookCalls");
            for (json call : answer.at("calls")) {
                call["application"] = nameOf(each);
                hooks.push_back(std::move(call));
            }
        } catch (const HostLost&) {
            continue; // the notice tells
        }
    }
    std::ranges::sort(hooks, std::greater(),
                      [](const json& call) { return call.at("lastCall").get<double>(); });
    hooks.resize(std::min(hooks.size(), hooksShown));
    return hooks;
}

} // namespace simulator::page
