#include "tour/scenarios.h"

namespace simulator::tour {

namespace {

using nlohmann::json;

constexpr struct {
    const char* bundleIdentifier;
    const char* name;
    const char* verb; // lists the albums
} readers[] = {
    {bundle::photos, "Photos", "albums"},         {bundle::plain, "plain application", "listPicker"},
    {bundle::settings, "Settings", "listPicker"}, {bundle::messenger, "Messenger", "listPicker"},
    {bundle::whatsApp, "WhatsApp", "listPicker"}, {bundle::imgur, "imgur", "listPicker"},
};

// How many photos the application shows of an album: "-" when it does not list it.
std::string photosShown(const json& list, const char* title) {
    for (const json& album : list) {
        if (!album.is_object() || album.value("title", json()) != title) continue;
        if (album.contains("photos")) return std::to_string(album.at("photos").size());
        return album.value("subtitle", "listed");
    }
    return "-";
}

void compareOn(Stage& stage, Release release) {
    stage.device().changeConditions([&](Conditions& conditions) { conditions.release = release; });
    stage.tell("iOS " + std::string(releaseName(release)) + ":");
    stage.tellRow({"photos shown of", "locked album", "switched off", "moved photos"});
    for (const auto& reader : readers) {
        HostProcess& host = stage.application(reader.bundleIdentifier);
        const json list = host.call(reader.verb);
        // The user's albums are the last.
        host.call({{"do", "scroll"}, {"x", 100}, {"y", 300}, {"down", 10000}});
        stage.tellRow({reader.name, photosShown(list, "Holidays"), photosShown(list, "Work"),
                       photosShown(list, "Family")},
                      &host);
        stage.stop(reader.bundleIdentifier);
    }
}

} // namespace

void compareWhatApplicationsSee(Stage& stage) {
    stage.tell("\"Holidays\" is locked, \"Work\" switched off, and the photos of \"Family\" are moved");
    stage.lockAlbum("Holidays");
    stage.writePreferences({{"albumNameWork", false}});
    for (const Asset& asset : stage.photos().assetsIn(stage.photos().albumTitled("Family").value()))
        stage.photos().setHidden(asset.identifier, true);

    compareOn(stage, Release::ios10_3);
    compareOn(stage, Release::ios11_4);
    const json list = stage.application(bundle::plain).call("listPicker");
    stage.check("on 11.4 the plain application does not list the album that is switched off",
                [&] { return photosShown(list, "Work") == "-"; });
    stage.check("and finds the moved photos in their album",
                [&] { return photosShown(list, "Family") == "4"; });
}

} // namespace simulator::tour
