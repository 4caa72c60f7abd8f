#include "photolibrary/change.h"

#include "photolibrary/database.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <random>

namespace simulator {

namespace {

std::int64_t rowOf(Connection& connection, const std::string& table, const std::string& identifier) {
    const auto found = connection.query("SELECT row FROM " + table + " WHERE identifier = ?", identifier);
    if (!found->executeStep()) throw SQLite::Exception("no " + table + " has the identifier " + identifier);
    return found->getColumn(0);
}

struct Worker {
    Connection& connection;

    void operator()(const Change::AddAsset& request) const {
        const Asset& made = request.asset;
        connection.run("INSERT INTO asset (identifier, mediaType, mediaSubtypes, traits, created, hidden,"
                       " favorite, trashed, width, height, seed, png)"
                       " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, CAST(? AS BLOB))",
                       made.identifier, static_cast<std::int64_t>(made.mediaType), made.mediaSubtypes,
                       made.traits, made.created, made.hidden, made.favorite, made.trashed, made.width,
                       made.height, made.seed, request.png);
    }

    void operator()(const Change::AddCollection& request) const {
        std::optional<std::int64_t> folder;
        if (request.folder) folder = rowOf(connection, "collection", *request.folder);
        const Collection& made = request.collection;
        connection.run(
            "INSERT INTO collection (identifier, kind, subtype, title, folder) VALUES (?, ?, ?, ?, ?)",
            made.identifier, static_cast<std::int64_t>(made.kind), made.subtype, made.title, folder);
    }

    void operator()(const Change::AddMembers& request) const {
        const std::int64_t album = rowOf(connection, "collection", request.album);
        for (const std::string& member : request.assets)
            connection.run("INSERT OR IGNORE INTO membership (album, asset, position) VALUES (?1, ?2,"
                           " (SELECT coalesce(max(position) + 1, 0) FROM membership WHERE album = ?1))",
                           album, rowOf(connection, "asset", member));
    }

    void operator()(const Change::RemoveMembers& request) const {
        const std::int64_t album = rowOf(connection, "collection", request.album);
        for (const std::string& member : request.assets)
            connection.run("DELETE FROM membership WHERE album = ? AND asset = ?", album,
                           rowOf(connection, "asset", member));
    }

    void operator()(const Change::DeleteCollection& request) const {
        connection.run("DELETE FROM collection WHERE row = ?",
                       rowOf(connection, "collection", request.collection));
    }

    void operator()(const Change::EditAsset& request) const {
        connection.run(
            "UPDATE asset SET hidden = coalesce(?, hidden), trashed = coalesce(?, trashed) WHERE row = ?",
            request.hidden, request.trashed, rowOf(connection, "asset", request.asset));
    }

    void operator()(const Change::DeleteAsset& request) const {
        const std::int64_t row = rowOf(connection, "asset", request.asset);
        if (connection.run("DELETE FROM asset WHERE row = ? AND trashed", row) == 0)
            connection.run("UPDATE asset SET trashed = 1 WHERE row = ?", row);
    }
};

} // namespace

std::string newIdentifier(const char* suffix) {
    std::random_device random;
    const std::array<unsigned, 4> words{random(), random(), random(), random()};
    char text[64];
    std::snprintf(text, sizeof text, "%08X-%04X-4%03X-8%03X-%04X%08X%s", words[0], words[1] >> 16,
                  words[1] & 0xFFF, words[2] >> 20, words[2] & 0xFFFF, words[3], suffix);
    return text;
}

std::string Change::addAsset(Asset asset, std::optional<std::string> png) {
    if (asset.identifier.empty()) asset.identifier = newIdentifier("/L0/001");
    std::string identifier = asset.identifier;
    add(AddAsset{std::move(asset), std::move(png)});
    return identifier;
}

std::string Change::add(Collection collection, std::optional<std::string> folder) {
    std::string identifier = collection.identifier;
    add(AddCollection{std::move(collection), std::move(folder)});
    return identifier;
}

std::string Change::addAlbum(std::optional<std::string> title, std::optional<std::string> folder,
                             std::int64_t subtype) {
    return add({.identifier = newIdentifier(), .subtype = subtype, .title = std::move(title)},
               std::move(folder));
}

std::string Change::addFolder(std::optional<std::string> title) {
    return add({.identifier = newIdentifier("/L0/020"),
                .kind = CollectionKind::folder,
                .subtype = collectionSubtype::regularFolder,
                .title = std::move(title)},
               std::nullopt);
}

bool Change::deletesCollection() const {
    return std::ranges::any_of(
        m_requests, [](const Request& request) { return std::holds_alternative<DeleteCollection>(request); });
}

void Change::carryOut(Connection& connection) const {
    for (const Request& request : m_requests)
        std::visit(Worker{connection}, request);
}

} // namespace simulator
