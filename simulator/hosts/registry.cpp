#include "hosts/host.h"

#include <nlohmann/json.hpp>

#include <map>

namespace simulator {
namespace {

template <class Value> using Registry = std::map<std::string, Value, std::less<>>;

// Filled by static initialisers in no certain order.
Registry<Application>& applications() {
    static auto* shared = new Registry<Application>;
    return *shared;
}

Registry<Verb>& verbs() {
    static auto* shared = new Registry<Verb>;
    return *shared;
}

} // namespace

void registerApplication(std::string_view bundleIdentifier, Application application) {
    applications().insert_or_assign(std::string(bundleIdentifier), std::move(application));
}

Application applicationFor(std::string_view bundleIdentifier) {
    const auto found = applications().find(bundleIdentifier);
    return found == applications().end() ? Application{} : found->second;
}

void registerVerb(std::string_view name, Verb verb) {
    verbs().insert_or_assign(std::string(name), std::move(verb));
}

nlohmann::json performVerb(const nlohmann::json& request) {
    const std::string name = request.is_object() ? request.value("do", "") : "";
    const auto found = verbs().find(name);
    if (found == verbs().end()) return {{"error", "unknown verb in " + request.dump()}};
    return found->second(request);
}

} // namespace simulator
