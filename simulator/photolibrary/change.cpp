#include "photolibrary/change.h"

#include "photolibrary/database.h"

#include <array>
#include <cstdio>
#include <sys/random.h>

namespace simulator {

namespace {

std::string randomIdentifier(const char* suffix) {
    std::array<std::uint32_t, 4> words{};
    if (getrandom(words.data(), sizeof words, 0) != static_cast<ssize_t>(sizeof words))
        throw DatabaseError("the system gives no random numbers");
    char text[64];
    std::snprintf(text, sizeof text, "%08X-%04X-4%03X-8%03X-%04X%08X%s", words[0], words[1] >> 16,
                  words[1] & 0xFFF, words[2] >> 20, words[2] & 0xFFFF, words[3], suffix);
    return text;
}

std::int64_t rowOf(Connection& connection, const char* table, const std::string& identifier) {
    Statement found = connection.prepare(std::string("SELECT row FROM ") + table + " WHERE identifier = ?");
    if (!found.bind(identifier).step())
        throw DatabaseError(std::string("no ") + table + " has the identifier " + identifier);
    return found.integer(0);
}

/// Makes room in front of the member at `index`; returns the position of the first new member.
std::int64_t openGap(Connection& connection, std::int64_t album, std::size_t index, std::size_t size) {
    Statement found = connection.prepare(
        "SELECT position FROM membership WHERE album = ? ORDER BY position LIMIT 1 OFFSET ?");
    if (!found.bind(album).bind(static_cast<std::int64_t>(index)).step())
        throw DatabaseError("an index past the end of the album");
    const std::int64_t position = found.integer(0);
    connection.prepare("UPDATE membership SET position = position + ? WHERE album = ? AND position >= ?")
        .bind(static_cast<std::int64_t>(size))
        .bind(album)
        .bind(position)
        .run();
    return position;
}

struct Counts {
    std::int64_t members;
    std::int64_t end; ///< the first position after all members
};

Counts countsOf(Connection& connection, std::int64_t album) {
    Statement members = connection.prepare("SELECT count(*) FROM membership WHERE album = ?");
    members.bind(album).step();
    Statement last =
        connection.prepare("SELECT coalesce(max(position) + 1, 0) FROM membership WHERE album = ?");
    last.bind(album).step();
    return {members.integer(0), last.integer(0)};
}

class Worker {
  public:
    explicit Worker(Connection& connection) : m_connection(connection) {}

    void operator()(const Change::AddAsset& request) const {
        const Asset& asset = request.asset;
        m_connection
            .prepare(
                "INSERT INTO asset (identifier, mediaType, mediaSubtypes, traits, created, duration, hidden,"
                " favorite, trashed, width, height, seed) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)")
            .bind(asset.identifier)
            .bind(static_cast<std::int64_t>(asset.mediaType))
            .bind(asset.mediaSubtypes)
            .bind(asset.traits)
            .bind(asset.created)
            .bind(asset.duration)
            .bind(std::int64_t{asset.hidden})
            .bind(std::int64_t{asset.favorite})
            .bind(std::int64_t{asset.trashed})
            .bind(asset.width)
            .bind(asset.height)
            .bind(asset.seed)
            .run();
        if (request.png.empty()) return;
        m_connection.prepare("INSERT INTO picture (asset, png) VALUES (?, ?)")
            .bind(m_connection.lastInsertedRow())
            .bindBlob(request.png)
            .run();
    }

    void operator()(const Change::AddCollection& request) const {
        const Collection& collection = request.collection;
        Statement insert = m_connection.prepare(
            "INSERT INTO collection (identifier, kind, subtype, title, folder) VALUES (?, ?, ?, ?, "
            "(SELECT row FROM collection WHERE identifier = ?))");
        if (request.folder) rowOf(m_connection, "collection", *request.folder);
        insert.bind(collection.identifier)
            .bind(static_cast<std::int64_t>(collection.kind))
            .bind(collection.subtype)
            .bind(collection.title)
            .bind(request.folder)
            .run();
    }

    void operator()(const Change::AddMembers& request) const {
        const std::int64_t album = rowOf(m_connection, "collection", request.album);
        const Counts counts = countsOf(m_connection, album);
        std::int64_t position = counts.end;
        if (request.index && static_cast<std::int64_t>(*request.index) != counts.members)
            position = openGap(m_connection, album, *request.index, request.assets.size());
        for (const std::string& asset : request.assets)
            m_connection.prepare("INSERT OR IGNORE INTO membership (album, asset, position) VALUES (?, ?, ?)")
                .bind(album)
                .bind(rowOf(m_connection, "asset", asset))
                .bind(position++)
                .run();
    }

    void operator()(const Change::RemoveMembers& request) const {
        const std::int64_t album = rowOf(m_connection, "collection", request.album);
        for (const std::string& asset : request.assets)
            m_connection.prepare("DELETE FROM membership WHERE album = ? AND asset = ?")
                .bind(album)
                .bind(rowOf(m_connection, "asset", asset))
                .run();
    }

    void operator()(const Change::SetTitle& request) const {
        m_connection.prepare("UPDATE collection SET title = ? WHERE row = ?")
            .bind(request.title)
            .bind(rowOf(m_connection, "collection", request.collection))
            .run();
    }

    void operator()(const Change::DeleteCollection& request) const {
        m_connection.prepare("DELETE FROM collection WHERE row = ?")
            .bind(rowOf(m_connection, "collection", request.collection))
            .run();
    }

    void operator()(const Change::EditAsset& request) const {
        m_connection
            .prepare("UPDATE asset SET hidden = coalesce(?, hidden), favorite = coalesce(?, favorite),"
                     " trashed = coalesce(?, trashed), created = coalesce(?, created) WHERE row = ?")
            .bind(asReal(request.hidden))
            .bind(asReal(request.favorite))
            .bind(asReal(request.trashed))
            .bind(request.created)
            .bind(rowOf(m_connection, "asset", request.asset))
            .run();
    }

    void operator()(const Change::DeleteAsset& request) const {
        const std::int64_t asset = rowOf(m_connection, "asset", request.asset);
        m_connection.prepare("DELETE FROM asset WHERE row = ? AND trashed").bind(asset).run();
        if (m_connection.changedRows() == 0)
            m_connection.prepare("UPDATE asset SET trashed = 1 WHERE row = ?").bind(asset).run();
    }

  private:
    // The columns are integers, so SQLite stores 0 and 1.
    static std::optional<double> asReal(std::optional<bool> value) {
        if (!value) return std::nullopt;
        return *value ? 1.0 : 0.0;
    }

    Connection& m_connection;
};

} // namespace

std::string newAssetIdentifier() { return randomIdentifier("/L0/001"); }
std::string newAlbumIdentifier() { return randomIdentifier("/L0/040"); }
std::string newFolderIdentifier() { return randomIdentifier("/L0/020"); }

std::string Change::addAsset(Asset asset, std::string png) {
    if (asset.identifier.empty()) asset.identifier = newAssetIdentifier();
    std::string identifier = asset.identifier;
    add(AddAsset{std::move(asset), std::move(png)});
    return identifier;
}

std::string Change::addAlbum(std::optional<std::string> title, std::optional<std::string> folder,
                             std::int64_t subtype) {
    Collection album;
    album.identifier = newAlbumIdentifier();
    album.subtype = subtype;
    album.title = std::move(title);
    std::string identifier = album.identifier;
    add(AddCollection{std::move(album), std::move(folder)});
    return identifier;
}

std::string Change::addFolder(std::optional<std::string> title, std::optional<std::string> folder) {
    Collection list;
    list.identifier = newFolderIdentifier();
    list.kind = CollectionKind::folder;
    list.subtype = collectionSubtype::regularFolder;
    list.title = std::move(title);
    std::string identifier = list.identifier;
    add(AddCollection{std::move(list), std::move(folder)});
    return identifier;
}

void Change::carryOut(Connection& connection) const {
    const Worker worker(connection);
    for (const Request& request : m_requests)
        std::visit(worker, request);
}

} // namespace simulator
