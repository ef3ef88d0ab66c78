// A database file of the system's SQLite.
#pragma once

#include "bindings/sqlite/statement.hpp"

namespace sqlite {

/// A connection of its own, closed at its end. It waits for nobody: what another process has locked
/// fails at once.
class Database {
public:
    /// The path is NUL-terminated UTF-8. Makes an empty file where there is none.
    explicit Database(const char* path)
        : isOpen_(static_cast<Outcome>(sqlite3_open(path, &database_)) == Outcome::ok) {}
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    ~Database() { sqlite3_close(database_); }

    [[nodiscard]] bool isOpen() const { return isOpen_; }
    /// Why the latest call failed: UTF-8, in English.
    [[nodiscard]] std::string message() const { return sqlite3_errmsg(database_); }
    /// The SQL is NUL-terminated.
    [[nodiscard]] Statement prepare(const char* sql) const {
        constexpr int upToNul = -1;
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(database_, sql, upToNul, &statement, nullptr);
        return Statement(statement);
    }

private:
    sqlite3* database_ = nullptr;
    bool isOpen_;
};

} // namespace sqlite
