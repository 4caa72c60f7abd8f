#include "tour/screen.h"

namespace simulator::tour {

namespace {

using nlohmann::json;

void collectBanners(const json& view, bool isInBanner, std::vector<std::string>& texts) {
    constexpr int bannerTag = 204;
    isInBanner = isInBanner || view.value("tag", 0) == bannerTag;
    if (isInBanner && view.contains("text")) texts.push_back(view.at("text"));
    for (const json& subview : view.value("subviews", json::array()))
        collectBanners(subview, isInBanner, texts);
}

} // namespace

bool Screen::shows(std::string_view classOrText) {
    return m_host.call("viewTree").dump().find('"' + std::string(classOrText) + '"') != std::string::npos;
}

std::string Screen::alertTitle() {
    const json alert = m_host.call("viewTree").value("alert", json());
    return alert.is_object() ? alert.value("title", "") : "";
}

std::vector<std::string> Screen::banners() {
    std::vector<std::string> texts;
    collectBanners(m_host.call("viewTree").at("keyWindow"), false, texts);
    return texts;
}

} // namespace simulator::tour
