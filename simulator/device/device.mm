#include "device/device.h"

#include "device/json_objects.h"
#include "frameworks/Foundation/PropertyLists.h"

#import <Foundation/Foundation.h>

#include <nlohmann/json.hpp>

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace simulator {
namespace {

using nlohmann::json;

// Never half a file: others may read at any time.
void writeAtomically(const std::filesystem::path& file, std::string_view bytes) {
    std::filesystem::create_directories(file.parent_path());
    const std::filesystem::path draft = file.string() + ".new";
    {
        std::ofstream stream(draft, std::ios::binary);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!stream.flush()) throw std::runtime_error("cannot write " + file.string());
    }
    std::filesystem::rename(draft, file);
}

std::string contentsOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error("cannot read " + file.string());
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

Device Device::create(const std::filesystem::path& folder) {
    Device device(std::filesystem::absolute(folder).lexically_normal());
    for (const char* path : {"var/mobile/Library/Preferences", "var/mobile/Media", "var/tmp", "private",
                             "Library", "System/Library/Frameworks/PhotosUI.framework", "Applications"})
        std::filesystem::create_directories(device.root() / path);
    std::filesystem::create_directories(device.runFolder());
    if (!std::filesystem::exists(device.root() / "private/var"))
        std::filesystem::create_directory_symlink("../var", device.root() / "private/var");
    if (!std::filesystem::exists(device.conditionsFile())) device.setConditions({});
    return device;
}

Device Device::open(const std::filesystem::path& folder) {
    Device device(std::filesystem::absolute(folder).lexically_normal());
    if (!std::filesystem::exists(device.conditionsFile()))
        throw std::invalid_argument(folder.string() + " is no device");
    return device;
}

std::filesystem::path Device::onLinux(std::string_view devicePath) const {
    return root() / std::filesystem::path(devicePath).relative_path();
}

Conditions Device::conditions() const {
    return conditionsFromJson(json::parse(contentsOf(conditionsFile())));
}

void Device::setConditions(const Conditions& conditions) const {
    writeAtomically(conditionsFile(), toJson(conditions).dump(2) + "\n");
}

void Device::changeConditions(const std::function<void(Conditions&)>& change) const {
    Conditions conditions = this->conditions();
    change(conditions);
    setConditions(conditions);
}

void Device::writePropertyList(std::string_view devicePath, const json& value) const {
    @autoreleasepool {
        NSData* data = propertyListAsXml(objectFromJson(value));
        writeFile(devicePath, {static_cast<const char*>([data bytes]), [data length]});
    }
}

json Device::readPropertyList(std::string_view devicePath) const {
    const std::string bytes = readFile(devicePath);
    @autoreleasepool {
        id value = propertyListIn([NSData dataWithBytes:bytes.data() length:bytes.size()]);
        if (value == nil) throw std::invalid_argument(std::string(devicePath) + " is no property list");
        return jsonFromObject(value);
    }
}

void Device::writeFile(std::string_view devicePath, std::string_view bytes) const {
    writeAtomically(onLinux(devicePath), bytes);
}

std::string Device::readFile(std::string_view devicePath) const { return contentsOf(onLinux(devicePath)); }
bool Device::exists(std::string_view devicePath) const {
    return std::filesystem::exists(onLinux(devicePath));
}
void Device::remove(std::string_view devicePath) const { std::filesystem::remove_all(onLinux(devicePath)); }

} // namespace simulator
