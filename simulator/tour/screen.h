// An application's screen: finding things by what a person sees there, and touching them.
#pragma once

#include "hosts/client.h"

#include <string>
#include <string_view>
#include <vector>

namespace simulator::tour {

class Screen {
  public:
    explicit Screen(HostProcess& host) : m_host(host) {}

    // Whether a view of that class, or with exactly that text, is on the screen.
    bool shows(std::string_view classOrText);
    // The title of the alert that waits for an answer, "" without one.
    std::string alertTitle();
    // The texts of the status banners; one may still be fading while the next one shows.
    std::vector<std::string> banners();
    // Of the album's cell in the list on the screen.
    bool hasInAlbumCell(const char* title, int tag) {
        return m_host.call({{"do", "hasInAlbumCell"}, {"title", title}, {"tag", tag}}).at("has");
    }
    void tapInAlbumCell(const char* title, int tag) {
        m_host.call({{"do", "tapInAlbumCell"}, {"title", title}, {"tag", tag}});
    }

    // Of the album's cover on the Albums screen.
    bool hasInCover(const char* title, int tag) {
        return m_host.call({{"do", "hasInCover"}, {"title", title}, {"tag", tag}}).at("has");
    }

    void tap(int tag) { act("tap", "tag", tag); }
    void tapAlbum(const char* title) { act("tapAlbum", "title", title); }             // on the screen
    void pinchAlbum(const char* title) { act("pinchAlbum", "title", title); }         // on the Albums screen
    void hardPressAlbum(const char* title) { act("hardPressAlbum", "title", title); } // there, too
    void openAlbum(const char* title) { act("openAlbum", "title", title); }           // from the Albums tab
    void selectPhotos(const std::vector<std::size_t>& places) { act("selectPhotos", "places", places); }
    void pressButton(const char* title) { act("barButton", "title", title); }
    void answer(const char* action) { act("alertAction", "title", action); }
    void type(const char* text) { act("type", "text", text); }

  private:
    void act(const char* verb, const char* name, const nlohmann::json& value) {
        m_host.call({{"do", verb}, {name, value}});
    }

    HostProcess& m_host;
};

} // namespace simulator::tour
