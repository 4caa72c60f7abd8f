// The photo library of a device: one SQLite file that all processes of the device share. The Photos framework
// stands on it, and tests use it to set up and to look.
#pragma once

#include "photolibrary/change.h"
#include "photolibrary/database.h"
#include "photolibrary/records.h"

#include <nlohmann/json.hpp>

#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

namespace simulator {

class Device;

/// Which assets a query leaves out. Assets in the trash are in the trash bin only.
struct AssetFilter {
    bool includeHidden = false;
    std::optional<MediaType> mediaType = std::nullopt;
};

/// Every query reads what is committed at that moment. Any thread; do not carry one over a fork. Errors of
/// the store are DatabaseError.
class PhotoLibrary {
  public:
    /// Opens the library, empty when the device has none yet.
    static std::unique_ptr<PhotoLibrary> open(const Device& device);
    static std::unique_ptr<PhotoLibrary> open(const std::filesystem::path& file);

    /// All or nothing.
    void apply(const Change& change);

    /// By creation date, oldest first.
    Assets assets(const AssetFilter& filter = {});
    /// A user album in its own order, everything else by creation date. The smart album of hidden assets and
    /// the trash bin show hidden assets under any filter.
    Assets assetsIn(const Collection& collection, const AssetFilter& filter = {});
    std::size_t countOfAssetsIn(const Collection& collection, const AssetFilter& filter = {});
    /// In the order of the identifiers, without unknown ones.
    Assets assetsWithIdentifiers(const Identifiers& identifiers, const AssetFilter& filter = {});
    /// The stored PNG file of an asset that was made from an image.
    std::optional<std::string> storedPicture(const std::string& assetIdentifier);

    /// Albums and folders in the user's order, moments by date, the smart albums that the device's release
    /// has.
    Collections collections(CollectionKind kind, std::int64_t subtype = collectionSubtype::any);
    /// In the order of the identifiers, without unknown ones.
    Collections collectionsWithIdentifiers(const Identifiers& identifiers);
    /// The albums, or the moment, of an asset, also while it is in the trash.
    Collections collectionsContaining(const std::string& assetIdentifier, CollectionKind kind);
    /// The albums and folders directly in a folder; those outside every folder when there is none.
    Collections content(const std::optional<std::string>& folderIdentifier = std::nullopt);

    // Shorthands for setting up and looking.

    /// One asset as a change of its own; returns its identifier.
    std::string addAsset(const Asset& asset = {});
    std::string addAlbum(std::optional<std::string> title, const Identifiers& assets = {});
    void addToAlbum(const std::string& albumIdentifier, const Identifiers& assets);
    void setHidden(const std::string& assetIdentifier, bool hidden);
    void setTrashed(const std::string& assetIdentifier, bool trashed);
    std::optional<Asset> asset(const std::string& identifier);
    /// The first of them.
    std::optional<Collection> albumTitled(std::string_view title);
    /// What the Camera Roll shows.
    Assets visibleAssets() { return assets(); }
    /// Everything stored, for a person or a comparison: {"assets": [...], "collections": [...]}.
    nlohmann::json asJson();

  private:
    explicit PhotoLibrary(const std::filesystem::path& file);

    std::optional<Collection> collectionWithIdentifier(const std::string& identifier);
    Collections moments();

    Database m_database;
};

/// The library of the mounted device. Throws std::runtime_error when no device is mounted.
PhotoLibrary& sharedPhotoLibrary();

} // namespace simulator
