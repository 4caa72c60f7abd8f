#include "tour/screen.h"

#include "tour/stage.h"

#include <algorithm>

namespace simulator::tour {

namespace {

using nlohmann::json;

constexpr int bannerTag = 204;

std::optional<FoundView> findView(const json& view, const json& path,
                                  const std::function<bool(const json&)>& matches) {
    if (matches(view)) return FoundView{view, path};
    const json subviews = view.value("subviews", json::array());
    for (std::size_t index = 0; index < subviews.size(); ++index) {
        json step = path;
        step.push_back(index);
        if (auto found = findView(subviews[index], step, matches)) return found;
    }
    return std::nullopt;
}

void forEach(const json& view, const std::function<void(const json&)>& visit) {
    visit(view);
    for (const json& subview : view.value("subviews", json::array()))
        forEach(subview, visit);
}

bool showsText(const json& view, const std::string& text) {
    return findView(view, json::array(), [&](const json& each) { return each.value("text", "") == text; })
        .has_value();
}

std::string firstText(const json& view) {
    const auto found = findView(view, json::array(), [](const json& each) { return each.contains("text"); });
    return found ? found->view.at("text").get<std::string>() : "";
}

json alertOf(const json& tree) {
    return tree.contains("alert") && tree["alert"].is_object() ? tree["alert"] : json();
}

} // namespace

std::optional<FoundView> PhotosScreen::albumCell(const std::string& title) {
    const json tree = m_photos.call("viewTree");
    return findView(tree.at("keyWindow"), json::array(), [&](const json& view) {
        return view.at("class") == "PUAlbumListCellContentView" && showsText(view, title);
    });
}

std::optional<FoundView> PhotosScreen::inAlbumCell(const std::string& title, int tag) {
    const auto cell = albumCell(title);
    if (!cell) throw TourFailure("the album \"" + title + "\" is not on the screen");
    return findView(cell->view, cell->path, [&](const json& view) { return view.value("tag", 0) == tag; });
}

void PhotosScreen::tapInAlbumCell(const std::string& title, int tag) {
    const auto button = inAlbumCell(title, tag);
    if (!button)
        throw TourFailure("the cell of \"" + title + "\" has no view with tag " + std::to_string(tag));
    m_photos.call(json{{"do", "tap"}, {"path", button->path}});
}

std::string PhotosScreen::alertTitle() {
    const json alert = alertOf(m_photos.call("viewTree"));
    return alert.is_object() ? alert.value("title", "") : "";
}

std::string PhotosScreen::alertMessage() {
    const json alert = alertOf(m_photos.call("viewTree"));
    return alert.is_object() ? alert.value("message", "") : "";
}

std::vector<std::string> PhotosScreen::banners() {
    std::vector<std::string> texts;
    const json tree = m_photos.call("viewTree");
    forEach(tree.at("keyWindow"), [&](const json& view) {
        if (view.value("tag", 0) == bannerTag) texts.push_back(firstText(view));
    });
    return texts;
}

bool PhotosScreen::showsBanner(const std::string& text) { return std::ranges::count(banners(), text) > 0; }

void PhotosScreen::answer(const std::string& action) {
    m_photos.call(json{{"do", "alertAction"}, {"title", action}});
}

void PhotosScreen::type(const std::string& text) { m_photos.call(json{{"do", "type"}, {"text", text}}); }

} // namespace simulator::tour
