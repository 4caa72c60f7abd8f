// Every message that the library can send has the types of the device's method: a wrong one would crash a
// phone and show nowhere on Linux.
#include "support/environment.h"
#include "support/table.h"

#include <elf.h>
#include <gmock/gmock.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <stdexcept>

namespace simulator::test {
namespace {

// "CLASS KIND+SELECTOR" to the type encoding.
using Encodings = std::map<std::string, std::string>;

std::string contentOf(const std::string& fileName) {
    std::ifstream file(fileName, std::ios::binary);
    if (!file) throw std::runtime_error("no file " + fileName);
    return {std::istreambuf_iterator<char>(file), {}};
}

template <typename Structure> Structure structureAt(const std::string& file, std::size_t offset) {
    if (offset + sizeof(Structure) > file.size()) throw std::runtime_error("the file ends early");
    Structure structure;
    std::memcpy(&structure, file.data() + offset, sizeof structure);
    return structure;
}

// The content of a section of an ELF file; nothing when the file is none or has no such section.
std::string sectionNamed(const std::string& name, const std::string& file) {
    if (!file.starts_with(ELFMAG)) return {};
    const auto header = structureAt<Elf64_Ehdr>(file, 0);
    const auto sectionAt = [&](std::size_t index) {
        return structureAt<Elf64_Shdr>(file, header.e_shoff + index * header.e_shentsize);
    };
    const auto names = sectionAt(header.e_shstrndx);
    for (std::size_t index = 0; index < header.e_shnum; ++index) {
        const auto section = sectionAt(index);
        if (file.c_str() + names.sh_offset + section.sh_name == name)
            return file.substr(section.sh_offset, section.sh_size);
    }
    return {};
}

// The library and the settings pane.
const std::string binaries[] = {
    libraryFile(),
    deviceFiles() + "/Library/PreferenceBundles/RollkeeperPreferences.bundle/RollkeeperPreferences"};

// What a binary says it sends. The linker may leave zeros between the lines.
std::set<std::string> ledgerOf(const std::string& binary) {
    std::string text = sectionNamed("rollkeeper_messages", contentOf(binary));
    std::erase(text, '\0');
    std::istringstream stream(text);
    std::set<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.insert(line);
    return lines;
}

Encodings encodingsOfTheDevice() {
    Encodings known;
    for (const TableRow& row : readTable("platform-signatures.tsv"))
        known[row.at("class") + " " + row.at("kind") + row.at("selector")] = row.at("encoding");
    for (const TableRow& row : readTable("hook-table.tsv"))
        if (row.at("action") == "add")
            known[row.at("class") + " " + row.at("kind") + row.at("selector")] = row.at("encoding");
    return known;
}

// Messages that stand in no table, or there with other types.
const Encodings exceptions = {
    // Oneway, which makes no difference within a process.
    {"NSObject -release", "v@:"},
    // Public methods of Foundation that no class dump was asked about.
    {"NSMutableSet -addObject:", "v@:@"},
    {"NSMutableSet -containsObject:", "B@:@"},
    // One name for several classes of the device that understand the message.
    {"PUPhotosGridViewController -selectedAssets", "@@:"},
    {"MessengerCell -setAsset:", "v@:@"},
    {"AlbumChooserOwner -createNewAlbum", "v@:"},
    {"UnlockAsker -requestPassword:", "v@:i"},
    {"UnlockAsker -unlockAuthorised:", "v@:i"},
};

std::optional<std::string> lookUp(const Encodings& encodings, const std::string& message) {
    const auto found = encodings.find(message);
    return found == encodings.end() ? std::nullopt : std::optional(found->second);
}

TEST(MessageLedger, is_in_the_linux_build_of_both_binaries) {
    for (const std::string& binary : binaries)
        EXPECT_FALSE(ledgerOf(binary).empty()) << binary;
}

std::set<std::string> ledger() {
    std::set<std::string> lines;
    for (const std::string& binary : binaries)
        lines.merge(ledgerOf(binary));
    return lines;
}

TEST(MessageLedger, has_the_types_of_the_device_in_every_line) {
    const Encodings known = encodingsOfTheDevice();
    for (const std::string& line : ledger()) {
        const auto end = line.rfind(' ');
        const std::string message = line.substr(0, end);
        const auto exception = lookUp(exceptions, message);
        EXPECT_EQ(exception ? exception : lookUp(known, message), line.substr(end + 1)) << message;
    }
}

TEST(MessageLedger, needs_no_exception_that_the_tables_cover) {
    const Encodings known = encodingsOfTheDevice();
    for (const auto& [message, encoding] : exceptions)
        EXPECT_NE(lookUp(known, message), encoding) << message;
}

} // namespace
} // namespace simulator::test
