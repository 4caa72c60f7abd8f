#include "page/contents.h"

#include "UIKit/model/Png.h"

namespace simulator::page {

namespace {

using nlohmann::json;

constexpr const char* stateFolders[] = {"/var/mobile/Library/rollkeeper", "/var/mobile/Library/Preferences"};
constexpr std::size_t longestText = 4000; // what is longer is cut off

json asJson(const Assets& assets) {
    json photos = json::array();
    for (const Asset& asset : assets)
        photos.push_back({{"id", asset.identifier},
                          {"hidden", asset.hidden},
                          {"video", asset.mediaType == MediaType::video}});
    return photos;
}

std::string textOf(const Device& device, const std::string& path) {
    try {
        return device.readPropertyList(path).dump(2);
    } catch (const std::exception&) { // no property list, or one that is gone by now
        return device.exists(path) ? device.readFile(path) : "";
    }
}

} // namespace

json photosOf(PhotoLibrary& library) {
    json lists = json::array({{{"title", "Camera Roll"}, {"photos", asJson(library.visibleAssets())}}});
    for (const Collection& album : library.collections(CollectionKind::album))
        lists.push_back({{"title", album.title.value_or("")},
                         {"photos", asJson(library.assetsIn(album, {.includeHidden = true}))}});
    return lists;
}

json filesOf(const Device& device) {
    std::map<std::string, std::string> texts;
    for (const char* folder : stateFolders) {
        std::error_code missing; // the library makes its folder when it first needs it
        for (const auto& entry : std::filesystem::directory_iterator(device.onLinux(folder), missing)) {
            if (!entry.is_regular_file(missing)) continue;
            const std::string path = std::string(folder) + "/" + entry.path().filename().string();
            texts[path] = textOf(device, path).substr(0, longestText);
        }
    }
    json files = json::array();
    for (const auto& [path, text] : texts)
        files.push_back({{"path", path}, {"text", text}});
    return files;
}

std::optional<std::string> thumbnailOf(PhotoLibrary& library, const std::string& identifier) {
    const auto asset = library.asset(identifier);
    if (!asset) return std::nullopt;
    if (auto stored = library.storedPicture(identifier)) return stored;
    const auto png = generatedPng({.width = 64, .height = 48}, static_cast<std::uint64_t>(asset->seed));
    return std::string(png.begin(), png.end());
}

} // namespace simulator::page
