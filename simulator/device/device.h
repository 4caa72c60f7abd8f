// A device is a folder: a file-system root, a photo library, the conditions and the sockets that join its
// processes.
#pragma once

#include "device/conditions.h"

#include <nlohmann/json_fwd.hpp>

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace simulator {

class Device {
  public:
    // Makes the folder with an empty file system (/var/mobile, /private/var, /Library, ...). An existing
    // device is left as it is. Throws std::filesystem::filesystem_error.
    static Device create(const std::filesystem::path& folder);
    // Opens a folder made by create(); throws std::invalid_argument when it is no device.
    static Device open(const std::filesystem::path& folder);

    const std::filesystem::path& folder() const { return m_folder; }
    std::filesystem::path root() const { return m_folder / "root"; }
    std::filesystem::path runFolder() const { return m_folder / "run"; }
    std::filesystem::path photoLibrary() const { return m_folder / "photos.sqlite"; }
    std::filesystem::path conditionsFile() const { return m_folder / "conditions.json"; }

    // Where a path of the device ("/var/mobile/x") lies on this machine.
    std::filesystem::path onLinux(std::string_view devicePath) const;

    Conditions conditions() const;
    void setConditions(const Conditions& conditions) const;
    // Reads, lets `change` edit, writes.
    void changeConditions(const std::function<void(Conditions&)>& change) const;

    // Property lists of any kind (preferences, state files), given as JSON. Folders are made as needed. JSON
    // null has no counterpart and throws std::invalid_argument, as does a file that is no property list.
    void writePropertyList(std::string_view devicePath, const nlohmann::json& value) const;
    nlohmann::json readPropertyList(std::string_view devicePath) const;

    void writeFile(std::string_view devicePath, std::string_view bytes) const;
    std::string readFile(std::string_view devicePath) const; // throws std::runtime_error when missing
    bool exists(std::string_view devicePath) const;
    void remove(std::string_view devicePath) const; // a missing file is no error

  private:
    explicit Device(std::filesystem::path folder) : m_folder(std::move(folder)) {}

    std::filesystem::path m_folder;
};

} // namespace simulator
