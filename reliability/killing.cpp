// The program `killing`: kills the process that writes the state files, and one that reads them, at random
// moments, and fails when a file is then anything but a whole old or a whole new one.
#include "device/device.h"
#include "hosts/applications/bundle_identifiers.h"
#include "hosts/client.h"
#include "photolibrary/library.h"
#include "photolibrary/samples.h"

#include <nlohmann/json.hpp>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <map>
#include <optional>
#include <random>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>

#include <csignal>
#include <unistd.h>

namespace {

using nlohmann::json;
using simulator::HostProcess;

constexpr unsigned longestLife = 30; // milliseconds from the first write to the kill

using Options = std::map<std::string, std::string>;

// A state file, and the number of the last list that was seen in it.
struct File {
    std::string path;
    std::size_t titles, last;
};

std::size_t sent = 0;
File files[] = {{"/var/mobile/Library/rollkeeper/lockedAlbums.plist", 3000, 0}, // writing it takes a while
                {"/var/mobile/Library/rollkeeper/album.tct", 1, 0}};

json list(const File& file, std::size_t number) {
    return json(std::vector(file.titles, "list " + std::to_string(number)));
}

HostProcess start(const char* bundleIdentifier, const simulator::Device& device, const Options& options) {
    return HostProcess({.program = options.at("--host"),
                        .bundleIdentifier = bundleIdentifier,
                        .device = device.folder(),
                        .library = options.at("--library")});
}

void send(HostProcess& sender) {
    ++sent;
    for (const File& file : files)
        sender.call({{"do", "sendMessage"},
                     {"centre", "com.nrv.rollkeeper"},
                     {"name", "savearray"},
                     {"unlock", true},
                     {"userInfo", {{"id", "sender"}, {"array", list(file, sent)}, {"path", file.path}}}});
}

bool isAnswered(HostProcess& reader) {
    try {
        return !reader.call("listPicker").empty();
    } catch (const std::exception&) {
        return false; // it was killed
    }
}

// Lists are being written from the first one on.
void waitForWriting(const simulator::Device& device) {
    const auto file = device.onLinux(files[0].path);
    const auto before = std::filesystem::last_write_time(file);
    for (int tries = 0; std::filesystem::last_write_time(file) == before; ++tries) {
        if (tries == 10'000) throw std::runtime_error("nothing is written");
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

// Whether another list is in the file; throws when it holds anything but one whole list that was sent.
bool isNew(const simulator::Device& device, File& file) {
    const json found = device.readPropertyList(file.path);
    const std::size_t number = std::stoul(found.at(0).get<std::string>().substr(5));
    if (found != list(file, number) || number < file.last || number > sent)
        throw std::runtime_error(file.path + " is neither an old nor a new list");
    return std::exchange(file.last, number) != number;
}

// Lists are sent and read until the writing process, and every other time the reading one, is killed.
std::size_t run(const simulator::Device& device, const Options& options) {
    std::mt19937_64 random(std::stoull(options.at("--seed")));
    HostProcess sender = start(simulator::bundle::settings, device, options);
    std::optional<HostProcess> reader;
    std::size_t newLists = 0;
    for (std::size_t time = std::stoul(options.at("--times")); time > 0; --time) {
        HostProcess springBoard = start(simulator::bundle::springBoard, device, options);
        if (!reader) reader.emplace(start(simulator::bundle::plain, device, options));
        std::atomic<bool> isOver = false;
        std::thread sending([&] {
            while (!isOver)
                send(sender);
        });
        std::thread reading([&] {
            while (!isOver && isAnswered(*reader))
                std::this_thread::yield();
        });
        waitForWriting(device);
        std::this_thread::sleep_for(std::chrono::milliseconds(random() % longestLife));
        springBoard.kill();
        if (time % 2 == 0) kill(reader->processIdentifier(), SIGKILL);
        isOver = true;
        sending.join();
        reading.join();
        if (time % 2 == 0) reader.reset();
        for (File& file : files)
            newLists += isNew(device, file) ? 1 : 0;
    }
    return newLists;
}

} // namespace

int main(int count, char** arguments) {
    try {
        Options options{{"--times", "200"}, {"--seed", std::to_string(std::random_device()())}};
        for (int i = 1; i + 1 < count; i += 2)
            options[arguments[i]] = arguments[i + 1];
        if (count % 2 == 0 || options.size() != 4 || !options.contains("--library") ||
            !options.contains("--host"))
            throw std::invalid_argument("usage: killing --library FILE --host FILE [--times N] [--seed N]");
        std::string folder = (std::filesystem::temp_directory_path() / "killing-XXXXXX").string();
        if (mkdtemp(folder.data()) == nullptr) throw std::runtime_error("no folder for a device");
        const auto device = simulator::Device::create(folder);
        addSmallSample(*simulator::PhotoLibrary::open(device));
        for (const File& file : files)
            device.writePropertyList(file.path, list(file, 0));
        const std::size_t newLists = run(device, options);
        std::filesystem::remove_all(folder);
        std::printf("killed %s times, %zu new lists seen, 0 damaged, seed %s\n", options["--times"].c_str(),
                    newLists, options["--seed"].c_str());
        return newLists > 0 ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "killing: %s\n", error.what());
        return 1;
    }
}
