// A thin C++ wrapper of SQLite: connections that any thread may borrow, statements that are prepared once,
// errors as exceptions.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace simulator {

/// What SQLite said, and of which statement or file.
class DatabaseError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// One run of a prepared statement. Parameters are bound in order; text that a column hands out is a copy.
class Statement {
  public:
    explicit Statement(sqlite3_stmt* statement) : m_statement(statement) {}
    ~Statement();
    Statement(Statement&& other) noexcept;
    Statement& operator=(Statement&&) = delete;

    Statement& bind(std::int64_t value);
    Statement& bind(double value);
    Statement& bind(std::string_view value);
    /// NULL when there is no value.
    template <class Value> Statement& bind(const std::optional<Value>& value) {
        return value ? bind(*value) : bindNull();
    }
    Statement& bindBlob(std::string_view bytes);

    /// Whether there is a (further) row.
    bool step();
    /// Runs a statement that returns no rows.
    void run();

    std::int64_t integer(int column) const;
    double real(int column) const;
    std::string text(int column) const;
    std::optional<double> optionalReal(int column) const;
    std::optional<std::string> optionalText(int column) const;

  private:
    Statement& bindNull();
    void check(int result) const;

    sqlite3_stmt* m_statement;
    int m_bound = 0;
};

/// One connection, for one thread at a time.
class Connection {
  public:
    explicit Connection(const std::filesystem::path& file);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Statements of the same text share one preparation: do not run one while it runs.
    Statement prepare(const std::string& sql);
    /// Runs any number of statements without parameters.
    void execute(const std::string& sql);
    std::int64_t lastInsertedRow() const;
    /// The rows that the last statement changed.
    std::int64_t changedRows() const;
    bool isInTransaction() const;

  private:
    sqlite3* m_database = nullptr;
    std::map<std::string, sqlite3_stmt*> m_statements;
};

/// Holds a write transaction that is taken back unless it was committed.
class Transaction {
  public:
    explicit Transaction(Connection& connection);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void commit();

  private:
    Connection& m_connection;
};

/// Connections to one file. Any thread; must not be carried over a fork.
class Database {
  public:
    explicit Database(std::filesystem::path file) : m_file(std::move(file)) {}

    struct Return {
        Database* database;
        void operator()(Connection* connection) const { database->giveBack(connection); }
    };
    using Lease = std::unique_ptr<Connection, Return>;

    Lease borrow();

  private:
    void giveBack(Connection* connection);

    std::filesystem::path m_file;
    std::mutex m_mutex;
    std::vector<std::unique_ptr<Connection>> m_idle;
};

} // namespace simulator
