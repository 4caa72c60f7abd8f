// The SQLite file of a photo library: one connection, and statements that are prepared once.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace simulator {

/// For one thread at a time. Errors are SQLite::Exception.
class Connection : public SQLite::Database {
  public:
    /// Makes the file and its tables where they are missing; a file that is no photo library is an error.
    explicit Connection(const std::filesystem::path& file);

    struct Reset {
        void operator()(SQLite::Statement* statement) const {
            statement->tryReset();
            statement->clearBindings();
        }
    };
    /// One run of a statement.
    using Query = std::unique_ptr<SQLite::Statement, Reset>;

    /// Binds the values in order, an empty optional as NULL. The same text is prepared once: do not ask for
    /// it while it runs.
    template <class... Values> Query query(const std::string& sql, const Values&... values) {
        const auto [found, isNew] = m_statements.try_emplace(sql);
        if (isNew) found->second = std::make_unique<SQLite::Statement>(*this, sql);
        Query query(found->second.get());
        int index = 0;
        (bind(*query, ++index, values), ...);
        return query;
    }
    /// Runs a statement that returns nothing; returns how many rows it changed.
    template <class... Values> int run(const std::string& sql, const Values&... values) {
        return query(sql, values...)->exec();
    }

  private:
    template <class Value> static void bind(SQLite::Statement& statement, int index, const Value& value) {
        statement.bind(index, value);
    }
    template <class Value>
    static void bind(SQLite::Statement& statement, int index, const std::optional<Value>& value) {
        value ? statement.bind(index, *value) : statement.bind(index);
    }

    std::map<std::string, std::unique_ptr<SQLite::Statement>> m_statements;
};

} // namespace simulator
