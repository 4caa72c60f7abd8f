#include "photolibrary/database.h"

#include <sqlite3.h>

#include <utility>

namespace simulator {

namespace {

// Long enough for the biggest change of another process.
constexpr int busyTimeoutMilliseconds = 30'000;

DatabaseError errorOf(sqlite3* database, std::string_view subject) {
    return DatabaseError(std::string(sqlite3_errmsg(database)) + " (" + std::string(subject) + ")");
}

// A write-ahead log lets others read during a change. Of several processes that switch a new file over at
// once SQLite refuses all but one without waiting, since each holds what the others need: they ask again.
void useWriteAheadLog(sqlite3* database) {
    constexpr const char* sql = "PRAGMA journal_mode = WAL";
    int result = SQLITE_BUSY;
    for (int waited = 0; result == SQLITE_BUSY && waited < busyTimeoutMilliseconds;
         waited += sqlite3_sleep(1))
        result = sqlite3_exec(database, sql, nullptr, nullptr, nullptr);
    if (result != SQLITE_OK) throw errorOf(database, sql);
}

} // namespace

Statement::~Statement() {
    if (!m_statement) return;
    sqlite3_reset(m_statement);
    sqlite3_clear_bindings(m_statement);
}

Statement::Statement(Statement&& other) noexcept
    : m_statement(std::exchange(other.m_statement, nullptr)), m_bound(other.m_bound) {}

void Statement::check(int result) const {
    if (result == SQLITE_OK || result == SQLITE_ROW || result == SQLITE_DONE) return;
    throw errorOf(sqlite3_db_handle(m_statement), sqlite3_sql(m_statement));
}

Statement& Statement::bind(std::int64_t value) {
    check(sqlite3_bind_int64(m_statement, ++m_bound, value));
    return *this;
}

Statement& Statement::bind(double value) {
    check(sqlite3_bind_double(m_statement, ++m_bound, value));
    return *this;
}

Statement& Statement::bind(std::string_view value) {
    check(sqlite3_bind_text64(m_statement, ++m_bound, value.data(), value.size(), SQLITE_TRANSIENT,
                              SQLITE_UTF8));
    return *this;
}

Statement& Statement::bindNull() {
    check(sqlite3_bind_null(m_statement, ++m_bound));
    return *this;
}

Statement& Statement::bindBlob(std::string_view bytes) {
    check(sqlite3_bind_blob64(m_statement, ++m_bound, bytes.data(), bytes.size(), SQLITE_TRANSIENT));
    return *this;
}

bool Statement::step() {
    const int result = sqlite3_step(m_statement);
    check(result);
    return result == SQLITE_ROW;
}

void Statement::run() {
    while (step()) {
    }
}

std::int64_t Statement::integer(int column) const { return sqlite3_column_int64(m_statement, column); }

double Statement::real(int column) const { return sqlite3_column_double(m_statement, column); }

std::string Statement::text(int column) const {
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(m_statement, column));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(m_statement, column));
    return bytes ? std::string(bytes, size) : std::string();
}

std::optional<double> Statement::optionalReal(int column) const {
    if (sqlite3_column_type(m_statement, column) == SQLITE_NULL) return std::nullopt;
    return real(column);
}

std::optional<std::string> Statement::optionalText(int column) const {
    if (sqlite3_column_type(m_statement, column) == SQLITE_NULL) return std::nullopt;
    return text(column);
}

Connection::Connection(const std::filesystem::path& file) {
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
    if (sqlite3_open_v2(file.c_str(), &m_database, flags, nullptr) != SQLITE_OK) {
        const DatabaseError error = errorOf(m_database, file.native());
        sqlite3_close(m_database);
        throw error;
    }
    sqlite3_busy_timeout(m_database, busyTimeoutMilliseconds);
    try {
        // A killed process loses nothing that it committed; only this machine's own power failing could, and
        // a simulated device is not worth waiting for the disk.
        execute("PRAGMA synchronous = OFF; PRAGMA foreign_keys = ON;");
        useWriteAheadLog(m_database);
    } catch (...) {
        sqlite3_close(m_database);
        throw;
    }
}

Connection::~Connection() {
    for (const auto& [sql, statement] : m_statements)
        sqlite3_finalize(statement);
    sqlite3_close(m_database);
}

Statement Connection::prepare(const std::string& sql) {
    sqlite3_stmt*& statement = m_statements[sql];
    if (statement) return Statement(statement);
    if (sqlite3_prepare_v3(m_database, sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) !=
        SQLITE_OK) {
        m_statements.erase(sql);
        throw errorOf(m_database, sql);
    }
    return Statement(statement);
}

void Connection::execute(const std::string& sql) {
    if (sqlite3_exec(m_database, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw errorOf(m_database, sql);
}

std::int64_t Connection::lastInsertedRow() const { return sqlite3_last_insert_rowid(m_database); }

std::int64_t Connection::changedRows() const { return sqlite3_changes64(m_database); }

bool Connection::isInTransaction() const { return sqlite3_get_autocommit(m_database) == 0; }

Transaction::Transaction(Connection& connection) : m_connection(connection) {
    connection.execute("BEGIN IMMEDIATE");
}

Transaction::~Transaction() {
    // SQLite takes a transaction back by itself on some errors, such as a full disk.
    if (m_connection.isInTransaction()) m_connection.execute("ROLLBACK");
}

void Transaction::commit() { m_connection.execute("COMMIT"); }

Database::Lease Database::borrow() {
    {
        const std::lock_guard lock(m_mutex);
        if (!m_idle.empty()) {
            Lease lease(m_idle.back().release(), Return{this});
            m_idle.pop_back();
            return lease;
        }
    }
    return Lease(new Connection(m_file), Return{this});
}

void Database::giveBack(Connection* connection) {
    std::unique_ptr<Connection> owned(connection);
    const std::lock_guard lock(m_mutex);
    m_idle.push_back(std::move(owned));
}

} // namespace simulator
