// A change of a photo library: a list of requests that are carried out together or not at all.
#pragma once

#include "photolibrary/records.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace simulator {

class Connection;

using Identifiers = std::vector<std::string>;

/// New identifiers in the platform's form, from the system's random numbers.
std::string newAssetIdentifier();
std::string newAlbumIdentifier();
std::string newFolderIdentifier();

/// Members are requests in the order in which they are carried out. They name assets and collections by
/// identifier, also those that an earlier request of the same change makes.
class Change {
  public:
    struct AddAsset {
        Asset asset;
        std::string png; ///< empty: the picture is made from the seed
    };
    struct AddCollection {
        Collection collection;
        std::optional<std::string> folder;
    };
    struct AddMembers {
        std::string album;
        Identifiers assets;
        std::optional<std::size_t> index; ///< at the end when not set
    };
    struct RemoveMembers {
        std::string album;
        Identifiers assets;
    };
    struct SetTitle {
        std::string collection;
        std::optional<std::string> title;
    };
    struct DeleteCollection {
        std::string collection;
    };
    /// Changes the properties that are set.
    struct EditAsset {
        std::string asset;
        std::optional<bool> hidden = std::nullopt;
        std::optional<bool> favorite = std::nullopt;
        std::optional<bool> trashed = std::nullopt;
        std::optional<double> created = std::nullopt;
    };
    /// Moves an asset to the trash; one that is there leaves the library.
    struct DeleteAsset {
        std::string asset;
    };
    using Request = std::variant<AddAsset, AddCollection, AddMembers, RemoveMembers, SetTitle,
                                 DeleteCollection, EditAsset, DeleteAsset>;

    void add(Request request) { m_requests.push_back(std::move(request)); }

    /// Returns the new identifier.
    std::string addAsset(Asset asset, std::string png = {});
    std::string addAlbum(std::optional<std::string> title, std::optional<std::string> folder = std::nullopt,
                         std::int64_t subtype = collectionSubtype::regularAlbum);
    std::string addFolder(std::optional<std::string> title, std::optional<std::string> folder = std::nullopt);

    bool empty() const { return m_requests.empty(); }
    /// Throws DatabaseError, naming what is not there, and leaves it to the caller to take everything back.
    void carryOut(Connection& connection) const;

  private:
    std::vector<Request> m_requests;
};

} // namespace simulator
