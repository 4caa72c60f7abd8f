#include "photolibrary/database.h"

#include <sqlite3.h>

namespace simulator {

namespace {

// Long enough for the biggest change of another process.
constexpr int busyTimeoutMilliseconds = 30'000;

constexpr int schemaVersion = 2;

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
        hidden INTEGER NOT NULL,
        favorite INTEGER NOT NULL,
        trashed INTEGER NOT NULL,
        width INTEGER NOT NULL,
        height INTEGER NOT NULL,
        seed INTEGER NOT NULL,
        png BLOB
    );
    CREATE INDEX assetByDate ON asset (created, row);

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

int versionOf(SQLite::Database& database) { return database.execAndGet("PRAGMA user_version").getInt(); }

// A write-ahead log lets others read during a change. Of several processes that switch a new file over at
// once SQLite refuses all but one without waiting, since each holds what the others need: they ask again.
void useWriteAheadLog(SQLite::Database& database) {
    int result = SQLITE_BUSY;
    for (int waited = 0; result == SQLITE_BUSY && waited < busyTimeoutMilliseconds;
         waited += sqlite3_sleep(1))
        result = database.tryExec("PRAGMA journal_mode = WAL");
    database.check(result);
}

void makeTables(SQLite::Database& database) {
    if (versionOf(database) == schemaVersion) return;
    SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
    const int version = versionOf(database);
    if (version == schemaVersion) return; // another process was first
    if (version != 0) throw SQLite::Exception("a photo library of version " + std::to_string(version));
    database.exec(tables);
    database.exec("PRAGMA user_version = " + std::to_string(schemaVersion));
    transaction.commit();
}

} // namespace

Connection::Connection(const std::filesystem::path& file)
    : Database(file, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE | SQLite::OPEN_NOMUTEX,
               busyTimeoutMilliseconds) {
    // A killed process loses nothing that it committed; only this machine's own power failing could, and a
    // simulated device is not worth waiting for the disk.
    exec("PRAGMA synchronous = OFF; PRAGMA foreign_keys = ON;");
    useWriteAheadLog(*this);
    makeTables(*this);
}

} // namespace simulator
