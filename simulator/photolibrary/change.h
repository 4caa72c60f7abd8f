// A change of a photo library: a list of requests that are carried out together or not at all.
#pragma once

#include "photolibrary/records.h"

#include <variant>

namespace simulator {

class Connection;

/// A new identifier in the platform's form, of an album unless the suffix says otherwise.
std::string newIdentifier(const char* suffix = "/L0/040");

/// Requests are carried out in their order. They name assets and collections by identifier, also those that
/// an earlier request of the same change makes.
class Change {
  public:
    struct AddAsset {
        Asset asset;
        std::optional<std::string> png; ///< without one, the picture is made from the seed
    };
    struct AddCollection {
        Collection collection;
        std::optional<std::string> folder;
    };
    /// At the end; assets that are in the album stay where they are.
    struct AddMembers {
        std::string album;
        Identifiers assets;
    };
    struct RemoveMembers {
        std::string album;
        Identifiers assets;
    };
    struct DeleteCollection {
        std::string collection;
    };
    /// Changes the properties that are set.
    struct EditAsset {
        std::string asset;
        std::optional<bool> hidden = std::nullopt;
        std::optional<bool> trashed = std::nullopt;
    };
    /// Moves an asset to the trash; one that is there leaves the library.
    struct DeleteAsset {
        std::string asset;
    };
    using Request = std::variant<AddAsset, AddCollection, AddMembers, RemoveMembers, DeleteCollection,
                                 EditAsset, DeleteAsset>;

    explicit Change(std::vector<Request> requests = {}) : m_requests(std::move(requests)) {}

    void add(Request request) { m_requests.push_back(std::move(request)); }

    /// Returns the new identifier.
    std::string addAsset(Asset asset, std::optional<std::string> png = std::nullopt);
    std::string addAlbum(std::optional<std::string> title, std::optional<std::string> folder = std::nullopt,
                         std::int64_t subtype = collectionSubtype::regularAlbum);
    std::string addFolder(std::optional<std::string> title);

    bool deletesCollection() const;

    /// Throws SQLite::Exception, naming what is not there, and leaves it to the caller to take everything
    /// back.
    void carryOut(Connection& connection) const;

  private:
    std::string add(Collection collection, std::optional<std::string> folder);

    std::vector<Request> m_requests;
};

} // namespace simulator
