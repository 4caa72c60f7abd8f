#include "tour/pictures.h"
#include "device/temporary_folder.h"

#include "hosts/applications/bundle_identifiers.h"
#include "tour/screen.h"

#include <fstream>

namespace simulator::tour {

namespace {

// Draws what the applications show when a screen has come up.
class Photographer {
  public:
    Photographer(Stage& stage, const std::filesystem::path& folder) : m_stage(stage), m_folder(folder) {}

    void take(const char* name, HostProcess& host, const char* awaitedTitle = nullptr) {
        if (awaitedTitle != nullptr)
            m_stage.check(name, [&] { return Screen(host).alertTitle() == awaitedTitle; });
        const std::filesystem::path path = m_folder / (std::string(name) + ".svg");
        std::ofstream file(path, std::ios::binary);
        file << host.call("screenshot").at("svg").get<std::string>();
        file.close();
        if (!file) throw std::runtime_error("cannot write " + path.string());
    }

  private:
    Stage& m_stage;
    std::filesystem::path m_folder;
};

void photographPhotos(Stage& stage, Photographer& photographer) {
    stage.lockAlbum("Holidays");
    stage.device().writeFile(passwordFile, "sesame");
    HostProcess& photos = stage.application(bundle::photos);
    Screen(photos).hasInAlbumCell("Holidays", 0); // scrolls to it
    photographer.take("album-list", photos);
    Screen(photos).tapAlbum("Holidays");
    photographer.take("unlocking", photos, "Unlock album");
}

void photographCamera(Stage& stage, Photographer& photographer) {
    stage.writePreferences({{"rememberDefault", true}});
    stage.device().writePropertyList(cameraAlbumFile, nlohmann::json::array({"Family"}));
    photographer.take("camera", stage.application(bundle::camera));
}

void photographShareSheet(Stage& stage, Photographer& photographer) {
    HostProcess& application = stage.application(bundle::plain);
    application.call("saveImage");
    photographer.take("chooser", application, "Choose Album");
}

void photographSettings(Stage& stage, Photographer& photographer) {
    HostProcess& settings = stage.application(bundle::settings);
    settings.call({{"do", "openEntry"}, {"label", "Rollkeeper"}});
    photographer.take("settings", settings);
}

} // namespace

void takePictures(const Programs& programs, const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder);
    const TemporaryFolder device;
    Stage stage(programs, device.path(), nullptr);
    stage.device().changeConditions(
        [](Conditions& conditions) { conditions.biometricOutcome = BiometricOutcome::userFallback; });
    Photographer photographer(stage, folder);
    photographPhotos(stage, photographer);
    photographCamera(stage, photographer);
    photographShareSheet(stage, photographer);
    photographSettings(stage, photographer);
}

} // namespace simulator::tour
