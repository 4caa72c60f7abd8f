#include "tour/scenarios.h"

#include <cstdio>

namespace simulator::tour {

namespace {

using nlohmann::json;

struct Reader {
    const char* bundleIdentifier;
    const char* name;
};

constexpr Reader readers[] = {
    {bundle::photos, "Photos"},       {bundle::plain, "plain application"}, {bundle::settings, "Settings"},
    {bundle::messenger, "Messenger"}, {bundle::whatsApp, "WhatsApp"},       {bundle::imgur, "imgur"},
};

json listedBy(HostProcess& application, const char* bundleIdentifier) {
    if (bundleIdentifier == std::string(bundle::photos)) return application.call("albums");
    const json answer = application.call("listPicker");
    return answer.is_object() && answer.contains("composer") ? answer.at("composer") : answer;
}

const json* row(const json& list, const char* title) {
    for (const json& each : list)
        if (each.is_object() && each.value("title", json()) == title) return &each;
    return nullptr;
}

// How many photos the application shows of an album: "-" when it does not list it.
std::string photosShown(const json& list, const char* title) {
    const json* album = row(list, title);
    if (album == nullptr) return "-";
    if (album->contains("photos")) return std::to_string(album->at("photos").size());
    return album->value("subtitle", "listed");
}

void printTable(Stage& stage) {
    std::printf("    %-20s %14s %14s %14s\n", "photos shown of", "locked album", "switched off",
                "moved photos");
    for (const Reader& reader : readers) {
        const json list = listedBy(stage.application(reader.bundleIdentifier), reader.bundleIdentifier);
        std::printf("    %-20s %14s %14s %14s\n", reader.name, photosShown(list, "Holidays").c_str(),
                    photosShown(list, "Work").c_str(), photosShown(list, "Family").c_str());
        stage.stop(reader.bundleIdentifier);
    }
    std::fflush(stdout);
}

void compareOn(Stage& stage, Release release) {
    stage.device().changeConditions([&](Conditions& conditions) { conditions.release = release; });
    stage.tell("iOS " + std::string(releaseName(release)) + ":");
    printTable(stage);
}

} // namespace

void compareWhatApplicationsSee(Stage& stage) {
    stage.tell("\"Holidays\" is locked, \"Work\" switched off, and the photos of \"Family\" are moved");
    stage.device().writePropertyList("/var/mobile/Library/rollkeeper/lockedAlbums.plist",
                                     json::array({"Holidays"}));
    stage.writePreferences({{"albumNameWork", false}});
    for (const Asset& asset : stage.photos().assetsIn(stage.photos().albumTitled("Family").value()))
        stage.photos().setHidden(asset.identifier, true);

    compareOn(stage, Release::ios10_3);
    compareOn(stage, Release::ios11_4);
    const json list = stage.application(bundle::plain).call("listPicker");
    stage.check("on 11.4 the plain application does not list the album that is switched off",
                [&] { return row(list, "Work") == nullptr; });
    stage.check("and finds the moved photos in their album",
                [&] { return photosShown(list, "Family") == "4"; });
}

} // namespace simulator::tour
