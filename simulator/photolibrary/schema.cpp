#include "photolibrary/schema.h"

#include "photolibrary/database.h"

namespace simulator {

namespace {

constexpr std::int64_t schemaVersion = 1;

// Dates are seconds since 1 January 2001, as on the platform. A membership's position gives the album's
// order; it need not be gapless.
constexpr const char* tables = R"sql(
    CREATE TABLE asset (
        row INTEGER PRIMARY KEY,
        identifier TEXT NOT NULL UNIQUE,
        mediaType INTEGER NOT NULL,
        mediaSubtypes INTEGER NOT NULL,
        traits INTEGER NOT NULL,
        created REAL,
        duration REAL NOT NULL,
        hidden INTEGER NOT NULL,
        favorite INTEGER NOT NULL,
        trashed INTEGER NOT NULL,
        width INTEGER NOT NULL,
        height INTEGER NOT NULL,
        seed INTEGER NOT NULL
    );
    CREATE INDEX assetByDate ON asset (created, row);

    CREATE TABLE picture (
        asset INTEGER PRIMARY KEY REFERENCES asset ON DELETE CASCADE,
        png BLOB NOT NULL
    );

    CREATE TABLE collection (
        row INTEGER PRIMARY KEY,
        identifier TEXT NOT NULL UNIQUE,
        kind INTEGER NOT NULL,
        subtype INTEGER NOT NULL,
        title TEXT,
        folder INTEGER REFERENCES collection ON DELETE CASCADE
    );
    CREATE INDEX collectionByFolder ON collection (folder, row);

    CREATE TABLE membership (
        album INTEGER NOT NULL REFERENCES collection ON DELETE CASCADE,
        asset INTEGER NOT NULL REFERENCES asset ON DELETE CASCADE,
        position INTEGER NOT NULL,
        PRIMARY KEY (album, asset)
    ) WITHOUT ROWID;
    CREATE INDEX membershipByPosition ON membership (album, position, asset);
    CREATE INDEX membershipByAsset ON membership (asset, album);
)sql";

std::int64_t versionOf(Connection& connection) {
    Statement statement = connection.prepare("PRAGMA user_version");
    statement.step();
    return statement.integer(0);
}

} // namespace

void prepareSchema(Connection& connection) {
    if (versionOf(connection) == schemaVersion) return;
    Transaction transaction(connection);
    const std::int64_t version = versionOf(connection);
    if (version == schemaVersion) return; // another process was first
    if (version != 0) throw DatabaseError("a photo library of version " + std::to_string(version));
    connection.execute(tables);
    connection.execute("PRAGMA user_version = " + std::to_string(schemaVersion));
    transaction.commit();
}

} // namespace simulator
