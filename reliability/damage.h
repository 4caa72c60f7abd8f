// Damaged input: what it is made of, and what it is given to. The same random numbers make the same damage.
#pragma once

#include "device/device.h"

#include <nlohmann/json.hpp>

#include <functional>
#include <random>
#include <string>

namespace reliability {

class Damage {
  public:
    explicit Damage(std::uint64_t seed) : m_random(seed) {}

    std::size_t below(std::size_t limit) { return m_random() % limit; }
    bool oneIn(std::size_t count) { return below(count) == 0; }
    template <class List> const auto& oneOf(const List& list) { return list[below(std::size(list))]; }

    // A title as nobody types it, and any property list.
    std::string text();
    nlohmann::json value();
    // The list with one to four places in it replaced, removed or added; the bytes with one to eight changes.
    nlohmann::json damaged(nlohmann::json list);
    std::string damagedBytes(std::string bytes);
    // What a file may hold that once held this list: damaged as list, bytes or both, sometimes no property
    // list at all. The binary form keeps its bytes: the library sees what the platform's parser makes of
    // them, and the one here reads beyond what it was given.
    std::string damagedFile(const nlohmann::json& list);

  private:
    std::string randomBytes(std::size_t count);

    std::mt19937_64 m_random;
};

// One part of the library in the host application that has it; runs in a process of its own.
struct Subject {
    const char* name;
    unsigned share; // of a thousand inputs
    // Starts the application in this process; the result gives it one damaged input.
    std::function<void(Damage& damage)> (*start)(const simulator::Device& device, const std::string& library);
    bool writesAnywhere = false; // its input names the file to write
};

extern const Subject subjects[11];

// Ends the process where the library does something else than it must: no exception passes Objective-C's
// frames here.
void expect(bool holds, const std::string& what);

} // namespace reliability
