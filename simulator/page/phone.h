// The phone that the page shows: a device in a folder of its own, the applications that run on it, what a
// person does to it, and all that can be seen of it.
#pragma once

#include "device/device.h"
#include "hosts/client.h"
#include "hosts/programs.h"
#include "photolibrary/library.h"

#include <nlohmann/json.hpp>

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace simulator::page {

// What was asked for makes no sense; it changed nothing.
struct BadRequest : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// All on one thread, but for photos(). Applications end with this object at the latest.
class Phone {
  public:
    // A new device in the folder, with the small sample library, what the package installs, and SpringBoard
    // running.
    Phone(Programs programs, const std::filesystem::path& folder);

    // {"do": action, ...}, with the actions of the table in phone.cpp. Throws BadRequest, or the
    // std::runtime_error with which an application refuses. When an application is lost, the home screen is
    // shown and a notice says so.
    void perform(const nlohmann::json& request);

    // All that the page shows beside the picture of the screen.
    nlohmann::json look();
    // The shown application's screen as last looked at.
    const std::string& screen() const { return m_screen; }

    PhotoLibrary& photos() { return *m_photos; } // any thread

  private:
    struct Settings {
        Release release = Release::ios10_3;
        std::string size = "medium";
        std::string sensor = "touchId";
        std::string finger = "right";
        bool landscape = false;
        bool library = true;
    };

    void boot(); // all applications end, SpringBoard starts
    void writeConditions();
    // Starts the application when it does not run, and has it do what is asked. Throws HostLost after what
    // has to be done then.
    nlohmann::json ask(const std::string& bundleIdentifier, const nlohmann::json& request);
    nlohmann::json ask(const std::string& bundleIdentifier, const char* verb);
    void lose(const std::string& bundleIdentifier);
    void notice(std::string text);
    void open(const std::string& bundleIdentifier);
    void goHome();
    void openIconAt(double x, double y);
    std::string shownApplication() const; // the front one, or SpringBoard
    // Has the front application do the call, to which the keys' numbers in the request are added.
    void actOnScreen(const nlohmann::json& request, nlohmann::json call,
                     std::initializer_list<const char*> keys);
    void type(std::size_t field, const std::string& text);
    void set(const nlohmann::json& change);
    nlohmann::json lookAtSpots();
    nlohmann::json lookAtHooks();

    Programs m_programs;
    Device m_device;
    std::unique_ptr<PhotoLibrary> m_photos;
    Settings m_settings;
    std::map<std::string, HostProcess, std::less<>> m_running;
    std::string m_front; // empty on the home screen
    std::string m_screen;
    std::string m_notice; // what the phone last had to say
    unsigned m_noticeNumber = 0;
};

} // namespace simulator::page
