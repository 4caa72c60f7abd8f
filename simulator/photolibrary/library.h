// The photo library of a device: one SQLite file that all processes of the device share. The Photos framework
// stands on it, and tests use it to set up and to look.
#pragma once

#include "photolibrary/change.h"
#include "photolibrary/records.h"

#include <filesystem>
#include <memory>
#include <mutex>
#include <string_view>

namespace simulator {

class Device;

enum class AssetOrder { own, oldestFirst, newestFirst };

/// Which assets a query leaves out, and their order. Assets in the trash are in the trash bin only.
struct AssetFilter {
    bool includeHidden = false;
    std::optional<MediaType> mediaType = std::nullopt;
    AssetOrder order = AssetOrder::own;
};

/// Every query reads what is committed at that moment. Any thread; do not carry one over a fork. Errors of
/// the store are std::runtime_error.
class PhotoLibrary {
  public:
    /// Opens the library, empty when the device has none yet.
    static std::unique_ptr<PhotoLibrary> open(const Device& device);
    explicit PhotoLibrary(const std::filesystem::path& file);
    ~PhotoLibrary();

    /// All or nothing.
    void apply(const Change& change);

    /// In their own order by creation date, oldest first.
    Assets assets(const AssetFilter& filter = {});
    /// In its own order a user album has that of its members; all other collections go by creation date. The
    /// smart album of hidden assets and the trash bin show hidden assets under any filter.
    Assets assetsIn(const Collection& collection, const AssetFilter& filter = {});
    /// nullopt for one that is not in the library; those in the trash and hidden ones are.
    std::optional<Asset> asset(const std::string& identifier);
    /// The stored PNG file of an asset that was made from an image.
    std::optional<std::string> storedPicture(const std::string& assetIdentifier);

    /// Albums and folders in the user's order, moments by date, the smart albums that the device's release
    /// has.
    Collections collections(CollectionKind kind, std::int64_t subtype = collectionSubtype::any);
    /// Albums, folders and smart albums in the order of the identifiers, without unknown ones.
    Collections collectionsWithIdentifiers(const Identifiers& identifiers);
    /// The albums of an asset, also while it is in the trash.
    Collections albumsContaining(const std::string& assetIdentifier);
    /// The albums and folders directly in a folder; those outside every folder when there is none.
    Collections content(const std::optional<std::string>& folderIdentifier = std::nullopt);

    // Shorthands for setting up and looking.

    /// One asset as a change of its own; returns its identifier.
    std::string addAsset(const Asset& asset = {});
    std::string addAlbum(std::optional<std::string> title, const Identifiers& assets = {});
    void setHidden(const std::string& assetIdentifier, bool hidden);
    void setTrashed(const std::string& assetIdentifier, bool trashed);
    /// The first of them.
    std::optional<Collection> albumTitled(std::string_view title);
    /// What the Camera Roll shows.
    Assets visibleAssets() { return assets(); }

  private:
    template <class... Values> Assets readAssets(const std::string& rest, const Values&... values);
    template <class... Values> Collections readCollections(const std::string& rest, const Values&... values);
    Collections moments();

    std::mutex m_mutex;
    std::unique_ptr<Connection> m_connection; // guarded by the mutex
};

/// The library of the mounted device. Throws std::runtime_error when no device is mounted.
PhotoLibrary& sharedPhotoLibrary();

} // namespace simulator
