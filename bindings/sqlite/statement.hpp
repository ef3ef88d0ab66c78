// A statement of SQL that a database has prepared.
#pragma once

#include "bindings/sqlite/interface.hpp"

#include <bit>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace sqlite {

/// SQLite's numbers, as far as anybody asks for one of them.
enum class Outcome : int { ok = 0, row = 100, done = 101 };

/// Finalized at its end, which must come before its database's. Not prepared: it fails at each use.
class Statement {
public:
    explicit Statement(sqlite3_stmt* statement) : statement_(statement) {}
    Statement(Statement&& other) noexcept : statement_(std::exchange(other.statement_, nullptr)) {}
    Statement& operator=(Statement&&) = delete;
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    ~Statement() { sqlite3_finalize(statement_); }

    [[nodiscard]] bool isPrepared() const { return statement_ != nullptr; }
    /// The next row, the end, or a failure, which the database's message tells.
    Outcome step() const { return static_cast<Outcome>(sqlite3_step(statement_)); }

    /// The column (from 0) as text, up to its first NUL character; none for NULL. Valid until the
    /// next step.
    [[nodiscard]] std::optional<std::string_view> text(int column) const {
        const unsigned char* const text = sqlite3_column_text(statement_, column);
        return text == nullptr ? std::nullopt
                               : std::optional(std::string_view(
                                     std::bit_cast<const char*>(text))); // bytes are bytes
    }
    /// The column as it is stored; none for NULL and for no bytes. Valid until the next step.
    [[nodiscard]] std::optional<std::string_view> bytes(int column) const {
        const void* const bytes = sqlite3_column_blob(statement_, column);
        const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement_, column));
        return bytes == nullptr
                   ? std::nullopt
                   : std::optional(std::string_view(static_cast<const char*>(bytes), size));
    }
    /// A copy of the text, up to its first NUL character, for the parameter (from 1).
    void bind(int parameter, const std::string& text) const {
        constexpr int upToNul = -1;
        constexpr std::intptr_t copied = -1; // SQLite's sign for "make a copy"
        sqlite3_bind_text(statement_, parameter, text.c_str(), upToNul,
                          std::bit_cast<void (*)(void*)>(copied));
    }

private:
    sqlite3_stmt* statement_;
};

} // namespace sqlite
