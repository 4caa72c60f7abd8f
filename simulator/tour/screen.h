// Finding things on an application's screen by what a person sees there.
#pragma once

#include "hosts/client.h"

#include <optional>
#include <string>
#include <vector>

namespace simulator::tour {

// The view's JSON and the steps that lead to it from the key window.
struct FoundView {
    nlohmann::json view;
    nlohmann::json path;
};

class PhotosScreen {
  public:
    explicit PhotosScreen(HostProcess& photos) : m_photos(photos) {}

    // The cell of an album: what lies below its content view.
    std::optional<FoundView> albumCell(const std::string& title);
    // A view with the tag inside the album's cell.
    std::optional<FoundView> inAlbumCell(const std::string& title, int tag);
    void tapInAlbumCell(const std::string& title, int tag);

    // The alert that waits for an answer: its title, or "" without one.
    std::string alertTitle();
    std::string alertMessage();
    // The texts of the status banners; one may still be fading while the next one shows.
    std::vector<std::string> banners();
    bool showsBanner(const std::string& text);

    void answer(const std::string& action);
    void type(const std::string& text);

  private:
    HostProcess& m_photos;
};

} // namespace simulator::tour
