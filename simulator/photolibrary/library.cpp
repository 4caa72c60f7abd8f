#include "photolibrary/library.h"

#include "device/device.h"
#include "device/root.h"
#include "photolibrary/database.h"
#include "photolibrary/smart_albums.h"

#include <algorithm>
#include <cmath>

namespace simulator {

namespace {

constexpr double secondsPerDay = 86'400;

Asset assetOf(SQLite::Statement& row) {
    Asset asset;
    asset.identifier = row.getColumn(0).getString();
    asset.mediaType = static_cast<MediaType>(row.getColumn(1).getInt64());
    asset.mediaSubtypes = row.getColumn(2);
    asset.traits = row.getColumn(3);
    if (!row.isColumnNull(4)) asset.created = row.getColumn(4).getDouble();
    asset.hidden = row.getColumn(5).getInt() != 0;
    asset.favorite = row.getColumn(6).getInt() != 0;
    asset.trashed = row.getColumn(7).getInt() != 0;
    asset.width = row.getColumn(8);
    asset.height = row.getColumn(9);
    asset.seed = row.getColumn(10);
    return asset;
}

Collection collectionOf(SQLite::Statement& row) {
    Collection collection;
    collection.row = row.getColumn(0);
    collection.identifier = row.getColumn(1).getString();
    collection.kind = static_cast<CollectionKind>(row.getColumn(2).getInt64());
    collection.subtype = row.getColumn(3);
    if (!row.isColumnNull(4)) collection.title = row.getColumn(4).getString();
    return collection;
}

/// Where assets come from: the rest of the query that returns them.
struct Source {
    std::string condition;
    bool leavesOutHidden = true;
    bool leavesOutTrashed = true;
    std::string order = "created, asset.row";
};

std::string clausesOf(const Source& source, const AssetFilter& filter) {
    std::string clauses = source.condition;
    if (source.leavesOutHidden && !filter.includeHidden) clauses += " AND NOT hidden";
    if (source.leavesOutTrashed) clauses += " AND NOT trashed";
    if (filter.mediaType)
        clauses += " AND mediaType = " + std::to_string(static_cast<std::int64_t>(*filter.mediaType));
    clauses += " ORDER BY ";
    if (filter.order != AssetOrder::own)
        clauses += filter.order == AssetOrder::oldestFirst ? "created, " : "created DESC, ";
    return clauses + source.order;
}

} // namespace

std::unique_ptr<PhotoLibrary> PhotoLibrary::open(const Device& device) {
    return std::make_unique<PhotoLibrary>(device.photoLibrary());
}

PhotoLibrary::PhotoLibrary(const std::filesystem::path& file)
    : m_connection(std::make_unique<Connection>(file)) {}

PhotoLibrary::~PhotoLibrary() = default;

void PhotoLibrary::apply(const Change& change) {
    const std::lock_guard lock(m_mutex);
    SQLite::Transaction transaction(*m_connection, SQLite::TransactionBehavior::IMMEDIATE);
    change.carryOut(*m_connection);
    transaction.commit();
}

template <class... Values> Assets PhotoLibrary::readAssets(const std::string& rest, const Values&... values) {
    const std::lock_guard lock(m_mutex);
    const auto row = m_connection->query("SELECT asset.identifier, mediaType, mediaSubtypes, traits, created,"
                                         " hidden, favorite, trashed, width, height, seed FROM " +
                                             rest,
                                         values...);
    Assets assets;
    while (row->executeStep())
        assets.push_back(assetOf(*row));
    return assets;
}

template <class... Values>
Collections PhotoLibrary::readCollections(const std::string& rest, const Values&... values) {
    const std::lock_guard lock(m_mutex);
    const auto row = m_connection->query(
        "SELECT row, identifier, kind, subtype, title FROM collection " + rest, values...);
    Collections collections;
    while (row->executeStep())
        collections.push_back(collectionOf(*row));
    return collections;
}

Assets PhotoLibrary::assets(const AssetFilter& filter) {
    return readAssets(clausesOf({"asset WHERE 1"}, filter));
}

Assets PhotoLibrary::assetsIn(const Collection& collection, const AssetFilter& filter) {
    switch (collection.kind) {
    case CollectionKind::album:
        // Cross join: the members first, then their assets.
        return readAssets(
            clausesOf({.condition = "membership CROSS JOIN asset ON asset.row = membership.asset"
                                    " WHERE album = ?",
                       .order = "position"},
                      filter),
            collection.row);
    case CollectionKind::smartAlbum: {
        const SmartAlbum& album = smartAlbumOfSubtype(collection.subtype);
        return readAssets(clausesOf({.condition = "asset WHERE (" + std::string(album.rule) + ")",
                                     .leavesOutHidden = album.leavesOutHidden,
                                     .leavesOutTrashed = album.leavesOutTrashed},
                                    filter));
    }
    case CollectionKind::moment: {
        const double start = static_cast<double>(collection.row) * secondsPerDay;
        return readAssets(clausesOf({"asset WHERE created >= ? AND created < ?"}, filter), start,
                          start + secondsPerDay);
    }
    case CollectionKind::folder:
        break;
    }
    return {};
}

std::optional<Asset> PhotoLibrary::asset(const std::string& identifier) {
    Assets found = readAssets("asset WHERE identifier = ?", identifier);
    return found.empty() ? std::nullopt : std::optional(std::move(found.front()));
}

std::optional<std::string> PhotoLibrary::storedPicture(const std::string& assetIdentifier) {
    const std::lock_guard lock(m_mutex);
    const auto row = m_connection->query("SELECT png FROM asset WHERE identifier = ? AND png IS NOT NULL",
                                         assetIdentifier);
    if (!row->executeStep()) return std::nullopt;
    return row->getColumn(0).getString();
}

Collections PhotoLibrary::collections(CollectionKind kind, std::int64_t subtype) {
    Collections found;
    if (kind == CollectionKind::moment)
        found = moments();
    else if (kind == CollectionKind::smartAlbum)
        found = smartAlbums();
    else
        found = readCollections("WHERE kind = ? ORDER BY row", static_cast<std::int64_t>(kind));
    if (subtype != collectionSubtype::any)
        std::erase_if(found, [&](const Collection& collection) { return collection.subtype != subtype; });
    return found;
}

Collections PhotoLibrary::moments() {
    Collections found;
    for (const Asset& asset : assets({.includeHidden = true})) {
        if (!asset.created) continue;
        const auto day = static_cast<std::int64_t>(std::floor(*asset.created / secondsPerDay));
        if (found.empty() || found.back().row != day)
            found.push_back({.row = day,
                             .identifier = "day " + std::to_string(day) + "/L0/060",
                             .kind = CollectionKind::moment,
                             .subtype = 0});
    }
    return found;
}

Collections PhotoLibrary::collectionsWithIdentifiers(const Identifiers& identifiers) {
    const Collections system = smartAlbums();
    Collections found;
    for (const std::string& identifier : identifiers) {
        std::ranges::copy(readCollections("WHERE identifier = ?", identifier), std::back_inserter(found));
        std::ranges::copy_if(system, std::back_inserter(found),
                             [&](const Collection& album) { return album.identifier == identifier; });
    }
    return found;
}

Collections PhotoLibrary::albumsContaining(const std::string& assetIdentifier) {
    return readCollections("WHERE row IN (SELECT album FROM membership WHERE asset ="
                           " (SELECT row FROM asset WHERE identifier = ?)) ORDER BY row",
                           assetIdentifier);
}

Collections PhotoLibrary::content(const std::optional<std::string>& folderIdentifier) {
    if (!folderIdentifier) return readCollections("WHERE folder IS NULL ORDER BY row");
    return readCollections("WHERE folder = (SELECT row FROM collection WHERE identifier = ?) ORDER BY row",
                           *folderIdentifier);
}

std::string PhotoLibrary::addAsset(const Asset& asset) {
    Change change;
    std::string identifier = change.addAsset(asset);
    apply(change);
    return identifier;
}

std::string PhotoLibrary::addAlbum(std::optional<std::string> title, const Identifiers& assets) {
    Change change;
    std::string identifier = change.addAlbum(std::move(title));
    change.add(Change::AddMembers{identifier, assets});
    apply(change);
    return identifier;
}

void PhotoLibrary::setHidden(const std::string& assetIdentifier, bool hidden) {
    apply(Change({Change::EditAsset{.asset = assetIdentifier, .hidden = hidden}}));
}

void PhotoLibrary::setTrashed(const std::string& assetIdentifier, bool trashed) {
    apply(Change({Change::EditAsset{.asset = assetIdentifier, .trashed = trashed}}));
}

std::optional<Collection> PhotoLibrary::albumTitled(std::string_view title) {
    Collections albums = readCollections("WHERE kind = 1 AND title = ? ORDER BY row", std::string(title));
    return albums.empty() ? std::nullopt : std::optional(std::move(albums.front()));
}

PhotoLibrary& sharedPhotoLibrary() {
    static std::mutex mutex;
    // Never destroyed: other threads may still read a library when the process ends or mounts another device.
    static auto* libraries = new std::map<std::filesystem::path, std::unique_ptr<PhotoLibrary>>;
    const std::filesystem::path device = mountedDevice();
    if (device.empty()) throw std::runtime_error("no device is mounted, so there is no photo library");
    const std::lock_guard lock(mutex);
    std::unique_ptr<PhotoLibrary>& library = (*libraries)[device];
    if (!library) library = PhotoLibrary::open(Device::open(device));
    return *library;
}

} // namespace simulator
