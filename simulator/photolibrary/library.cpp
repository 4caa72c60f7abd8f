#include "photolibrary/library.h"

#include "device/device.h"
#include "device/releases.h"
#include "device/root.h"
#include "photolibrary/schema.h"
#include "photolibrary/smart_albums.h"

#include <algorithm>
#include <cinttypes>
#include <cmath>
#include <cstdio>
#include <map>
#include <mutex>
#include <unordered_set>

namespace simulator {

namespace {

constexpr const char* assetColumns = "asset.row, asset.identifier, mediaType, mediaSubtypes, traits, "
                                     "created, duration, hidden, favorite, trashed,"
                                     " width, height, seed";
constexpr const char* collectionColumns = "row, identifier, kind, subtype, title";
constexpr double secondsPerDay = 86'400;

Asset readAsset(const Statement& row) {
    Asset asset;
    asset.row = row.integer(0);
    asset.identifier = row.text(1);
    asset.mediaType = static_cast<MediaType>(row.integer(2));
    asset.mediaSubtypes = row.integer(3);
    asset.traits = row.integer(4);
    asset.created = row.optionalReal(5);
    asset.duration = row.real(6);
    asset.hidden = row.integer(7) != 0;
    asset.favorite = row.integer(8) != 0;
    asset.trashed = row.integer(9) != 0;
    asset.width = row.integer(10);
    asset.height = row.integer(11);
    asset.seed = row.integer(12);
    return asset;
}

Collection readCollection(const Statement& row) {
    Collection collection;
    collection.row = row.integer(0);
    collection.identifier = row.text(1);
    collection.kind = static_cast<CollectionKind>(row.integer(2));
    collection.subtype = row.integer(3);
    collection.title = row.optionalText(4);
    return collection;
}

Assets readAssets(Statement statement) {
    Assets assets;
    while (statement.step())
        assets.push_back(readAsset(statement));
    return assets;
}

Collections readCollections(Statement statement) {
    Collections collections;
    while (statement.step())
        collections.push_back(readCollection(statement));
    return collections;
}

/// Where the assets of a collection come from, and in which order.
struct Source {
    std::string tables = "asset";
    std::string condition;
    std::vector<double> parameters = {}; // NOLINT(readability-redundant-member-init): may be left out
    std::string order = "created, asset.row";
    bool leavesOutHidden = true;
    bool leavesOutTrashed = true;
};

Source sourceOfAlbum(const Collection& album) {
    // Cross join: the members first, then their assets.
    return {.tables = "membership CROSS JOIN asset ON asset.row = membership.asset",
            .condition = "membership.album = ?",
            .parameters = {static_cast<double>(album.row)},
            .order = "membership.position"};
}

Source sourceOfSmartAlbum(const Collection& collection) {
    const SmartAlbum* album = smartAlbumOfSubtype(collection.subtype);
    if (!album) return {.condition = "0"};
    return {.condition = album->rule,
            .leavesOutHidden = album->leavesOutHidden,
            .leavesOutTrashed = album->leavesOutTrashed};
}

Source sourceOfMoment(const Collection& moment) {
    const double start = static_cast<double>(moment.row) * secondsPerDay;
    return {.condition = "created >= ? AND created < ?", .parameters = {start, start + secondsPerDay}};
}

Source sourceOf(const Collection& collection) {
    switch (collection.kind) {
    case CollectionKind::album:
        return sourceOfAlbum(collection);
    case CollectionKind::smartAlbum:
        return sourceOfSmartAlbum(collection);
    case CollectionKind::moment:
        return sourceOfMoment(collection);
    case CollectionKind::folder:
        break;
    }
    return {.condition = "0"};
}

std::string conditionOf(const Source& source, const AssetFilter& filter) {
    std::string condition = "(" + source.condition + ")";
    if (source.leavesOutHidden && !filter.includeHidden) condition += " AND NOT hidden";
    if (source.leavesOutTrashed) condition += " AND NOT trashed";
    if (filter.mediaType) condition += " AND mediaType = ?";
    return condition;
}

Statement select(Connection& connection, const char* what, const Source& source, const AssetFilter& filter,
                 bool ordered) {
    std::string sql =
        std::string("SELECT ") + what + " FROM " + source.tables + " WHERE " + conditionOf(source, filter);
    if (ordered) sql += " ORDER BY " + source.order;
    Statement statement = connection.prepare(sql);
    for (const double parameter : source.parameters)
        statement.bind(parameter);
    if (filter.mediaType) statement.bind(static_cast<std::int64_t>(*filter.mediaType));
    return statement;
}

std::int64_t dayOf(double date) { return static_cast<std::int64_t>(std::floor(date / secondsPerDay)); }

std::string momentIdentifier(std::int64_t day) {
    // Days before 2001 are negative; the identifier counts from three centuries earlier.
    char text[64];
    std::snprintf(text, sizeof text, "00000000-0000-4000-9000-%012" PRId64 "/L0/060", day + 110'000);
    return text;
}

Identifiers withoutRepetition(const Identifiers& identifiers) {
    Identifiers unique;
    std::unordered_set<std::string> seen;
    std::ranges::copy_if(identifiers, std::back_inserter(unique),
                         [&](const std::string& identifier) { return seen.insert(identifier).second; });
    return unique;
}

const char* nameOf(CollectionKind kind) { return kind == CollectionKind::folder ? "folder" : "album"; }

} // namespace

std::unique_ptr<PhotoLibrary> PhotoLibrary::open(const Device& device) { return open(device.photoLibrary()); }

std::unique_ptr<PhotoLibrary> PhotoLibrary::open(const std::filesystem::path& file) {
    return std::unique_ptr<PhotoLibrary>(new PhotoLibrary(file));
}

PhotoLibrary::PhotoLibrary(const std::filesystem::path& file) : m_database(file) {
    prepareSchema(*m_database.borrow());
}

void PhotoLibrary::apply(const Change& change) {
    const Database::Lease connection = m_database.borrow();
    Transaction transaction(*connection);
    change.carryOut(*connection);
    transaction.commit();
}

Assets PhotoLibrary::assets(const AssetFilter& filter) {
    const Database::Lease connection = m_database.borrow();
    return readAssets(select(*connection, assetColumns, {.condition = "1"}, filter, true));
}

Assets PhotoLibrary::assetsIn(const Collection& collection, const AssetFilter& filter) {
    const Database::Lease connection = m_database.borrow();
    return readAssets(select(*connection, assetColumns, sourceOf(collection), filter, true));
}

std::size_t PhotoLibrary::countOfAssetsIn(const Collection& collection, const AssetFilter& filter) {
    const Database::Lease connection = m_database.borrow();
    Statement statement = select(*connection, "count(*)", sourceOf(collection), filter, false);
    statement.step();
    return static_cast<std::size_t>(statement.integer(0));
}

Assets PhotoLibrary::assetsWithIdentifiers(const Identifiers& identifiers, const AssetFilter& filter) {
    const Source listed{.condition = "1"};
    const Database::Lease connection = m_database.borrow();
    Statement statement = connection->prepare(
        std::string("SELECT ") + assetColumns +
        " FROM json_each(?) AS wanted JOIN asset ON asset.identifier = wanted.value WHERE " +
        conditionOf(listed, filter) + " ORDER BY wanted.key");
    statement.bind(nlohmann::json(withoutRepetition(identifiers)).dump());
    if (filter.mediaType) statement.bind(static_cast<std::int64_t>(*filter.mediaType));
    return readAssets(std::move(statement));
}

std::optional<std::string> PhotoLibrary::storedPicture(const std::string& assetIdentifier) {
    const Database::Lease connection = m_database.borrow();
    Statement statement = connection->prepare(
        "SELECT png FROM picture JOIN asset ON asset.row = picture.asset WHERE identifier = ?");
    if (!statement.bind(assetIdentifier).step()) return std::nullopt;
    return statement.text(0);
}

Collections PhotoLibrary::collections(CollectionKind kind, std::int64_t subtype) {
    Collections found;
    if (kind == CollectionKind::moment) {
        found = moments();
    } else if (kind == CollectionKind::smartAlbum) {
        for (const SmartAlbum& album : smartAlbums())
            if (album.existsIn(currentRelease())) found.push_back(collectionOf(album));
    } else {
        const Database::Lease connection = m_database.borrow();
        found = readCollections(std::move(connection
                                              ->prepare(std::string("SELECT ") + collectionColumns +
                                                        " FROM collection WHERE kind = ? ORDER BY row")
                                              .bind(static_cast<std::int64_t>(kind))));
    }
    if (subtype != collectionSubtype::any)
        std::erase_if(found, [&](const Collection& collection) { return collection.subtype != subtype; });
    return found;
}

Collections PhotoLibrary::moments() {
    const Database::Lease connection = m_database.borrow();
    Statement statement =
        connection->prepare("SELECT created FROM asset WHERE NOT trashed AND created IS NOT NULL"
                            " ORDER BY created");
    Collections found;
    while (statement.step()) {
        const double created = statement.real(0);
        if (found.empty() || found.back().row != dayOf(created)) {
            Collection moment;
            moment.row = dayOf(created);
            moment.identifier = momentIdentifier(moment.row);
            moment.kind = CollectionKind::moment;
            moment.subtype = 0;
            moment.started = created;
            found.push_back(std::move(moment));
        }
        found.back().ended = created;
    }
    return found;
}

std::optional<Collection> PhotoLibrary::collectionWithIdentifier(const std::string& identifier) {
    if (const SmartAlbum* album = smartAlbumWithIdentifier(identifier)) {
        if (!album->existsIn(currentRelease())) return std::nullopt;
        return collectionOf(*album);
    }
    const Database::Lease connection = m_database.borrow();
    Statement statement = connection->prepare(std::string("SELECT ") + collectionColumns +
                                              " FROM collection WHERE identifier = ?");
    if (!statement.bind(identifier).step()) return std::nullopt;
    return readCollection(statement);
}

Collections PhotoLibrary::collectionsWithIdentifiers(const Identifiers& identifiers) {
    Collections found;
    for (const std::string& identifier : withoutRepetition(identifiers)) {
        if (identifier.ends_with("/L0/060")) {
            std::ranges::copy_if(moments(), std::back_inserter(found),
                                 [&](const Collection& moment) { return moment.identifier == identifier; });
        } else if (std::optional<Collection> collection = collectionWithIdentifier(identifier)) {
            found.push_back(*std::move(collection));
        }
    }
    return found;
}

Collections PhotoLibrary::collectionsContaining(const std::string& assetIdentifier, CollectionKind kind) {
    if (kind == CollectionKind::moment) {
        const std::optional<Asset> member = asset(assetIdentifier);
        if (!member || !member->created) return {};
        return collectionsWithIdentifiers({momentIdentifier(dayOf(*member->created))});
    }
    if (kind != CollectionKind::album) return {};
    const Database::Lease connection = m_database.borrow();
    Statement statement =
        connection->prepare("SELECT row, identifier, kind, subtype, title FROM collection WHERE row IN "
                            "(SELECT album FROM membership WHERE"
                            " asset = (SELECT row FROM asset WHERE identifier = ?)) ORDER BY row");
    statement.bind(assetIdentifier);
    return readCollections(std::move(statement));
}

Collections PhotoLibrary::content(const std::optional<std::string>& folderIdentifier) {
    const Database::Lease connection = m_database.borrow();
    if (!folderIdentifier)
        return readCollections(connection->prepare(std::string("SELECT ") + collectionColumns +
                                                   " FROM collection WHERE folder IS NULL ORDER BY row"));
    Statement statement = connection->prepare(
        std::string("SELECT ") + collectionColumns +
        " FROM collection WHERE folder = (SELECT row FROM collection WHERE identifier = ?) ORDER BY row");
    statement.bind(std::string_view(*folderIdentifier));
    return readCollections(std::move(statement));
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
    change.add(Change::AddMembers{identifier, assets, std::nullopt});
    apply(change);
    return identifier;
}

void PhotoLibrary::addToAlbum(const std::string& albumIdentifier, const Identifiers& assets) {
    Change change;
    change.add(Change::AddMembers{albumIdentifier, assets, std::nullopt});
    apply(change);
}

void PhotoLibrary::setHidden(const std::string& assetIdentifier, bool hidden) {
    Change change;
    change.add(Change::EditAsset{.asset = assetIdentifier, .hidden = hidden});
    apply(change);
}

void PhotoLibrary::setTrashed(const std::string& assetIdentifier, bool trashed) {
    Change change;
    change.add(Change::EditAsset{.asset = assetIdentifier, .trashed = trashed});
    apply(change);
}

std::optional<Asset> PhotoLibrary::asset(const std::string& identifier) {
    const Database::Lease connection = m_database.borrow();
    Statement statement =
        connection->prepare(std::string("SELECT ") + assetColumns + " FROM asset WHERE identifier = ?");
    if (!statement.bind(identifier).step()) return std::nullopt;
    return readAsset(statement);
}

std::optional<Collection> PhotoLibrary::albumTitled(std::string_view title) {
    Collections albums = collections(CollectionKind::album);
    const auto found = std::ranges::find_if(
        albums, [&](const Collection& album) { return album.title && *album.title == title; });
    if (found == albums.end()) return std::nullopt;
    return *found;
}

nlohmann::json PhotoLibrary::asJson() {
    using nlohmann::json;
    const Database::Lease connection = m_database.borrow();
    json assets = json::array();
    for (const Asset& asset :
         readAssets(connection->prepare(std::string("SELECT ") + assetColumns + " FROM asset ORDER BY row")))
        assets.push_back({{"identifier", asset.identifier},
                          {"mediaType", static_cast<std::int64_t>(asset.mediaType)},
                          {"mediaSubtypes", asset.mediaSubtypes},
                          {"created", asset.created ? json(*asset.created) : json()},
                          {"hidden", asset.hidden},
                          {"favorite", asset.favorite},
                          {"trashed", asset.trashed}});
    json collections = json::array();
    Statement rows = connection->prepare("SELECT kind, identifier, subtype, title, (SELECT identifier FROM "
                                         "collection AS folder WHERE folder.row ="
                                         " collection.folder), (SELECT json_group_array(identifier) FROM "
                                         "(SELECT asset.identifier FROM membership JOIN"
                                         " asset ON asset.row = membership.asset WHERE album = "
                                         "collection.row ORDER BY position)) FROM collection"
                                         " ORDER BY row");
    while (rows.step()) {
        const auto orNull = [](const std::optional<std::string>& text) {
            return text ? json(*text) : json();
        };
        collections.push_back({{"kind", nameOf(static_cast<CollectionKind>(rows.integer(0)))},
                               {"identifier", rows.text(1)},
                               {"subtype", rows.integer(2)},
                               {"title", orNull(rows.optionalText(3))},
                               {"folder", orNull(rows.optionalText(4))},
                               {"assets", json::parse(rows.text(5))}});
    }
    return {{"assets", std::move(assets)}, {"collections", std::move(collections)}};
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
