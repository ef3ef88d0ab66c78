// Rows become lines, and lines rows.
#include "library/utilities/databases/text_databases.hpp"

#include "bindings/foundation/date.hpp"
#include "bindings/foundation/url.hpp"
#include "bindings/foundation/uuid.hpp"
#include "bindings/sqlite/database.hpp"
#include "library/common/text_encoding.hpp"
#include "library/utilities/databases/bookmark_lines.hpp"
#include "library/utilities/databases/replacement_line.hpp"
#include "library/utilities/documents.hpp"
#include "library/utilities/file_overwriting.hpp"

namespace wentra::utilities {
namespace {

using namespace ns::literals;

constexpr const char* bookmarkDatabase = "/var/mobile/Library/Safari/Bookmarks.db";
constexpr const char* replacementDatabase =
    "/var/mobile/Library/KeyboardServices/TextReplacements.db";
constexpr DocumentFile bookmarkFile{"/var/mobile/Documents/A1-safari书签.txt"};
constexpr DocumentFile exportFile{"/var/mobile/Documents/自带输入法批量导出词库.txt"};
constexpr DocumentFile importFile{"/var/mobile/Documents/自带输入法批量导入词库.txt"};

constexpr const char* insertion =
    "INSERT INTO ZTEXTREPLACEMENTENTRY (Z_PK, Z_ENT, Z_OPT, ZPHRASE, ZSHORTCUT, ZWASDELETED, "
    "ZNEEDSSAVETOCLOUD, ZTIMESTAMP, ZUNIQUENAME, ZREMOTERECORDINFO) VALUES (NULL, 1, 3, ?, ?, 0, "
    "0, ?, ?, NULL)";

/// A database for as long as one tool works on it, with the tool's way to complain.
class Source {
public:
    Source(const char* path, ToolScreens& screens) : database_(path), screens_(screens) {
        if (!database_.isOpen()) {
            complain("无法打开数据库: ");
        }
    }

    [[nodiscard]] bool isOpen() const { return database_.isOpen(); }
    [[nodiscard]] sqlite::Statement prepare(const char* sql) const {
        sqlite::Statement statement = database_.prepare(sql);
        if (!statement.isPrepared()) {
            complain("查询错误: ");
        }
        return statement;
    }
    /// Calls `take` at each row. A failure ends the rows and leaves those that came before.
    void read(const sqlite::Statement& statement, const auto& take) const {
        sqlite::Outcome outcome = statement.step();
        for (; outcome == sqlite::Outcome::row; outcome = statement.step()) {
            take();
        }
        if (outcome != sqlite::Outcome::done) {
            complain("读取记录错误: ");
        }
    }
    void complain(std::string_view what) const {
        screens_.showError(utf16FromUtf8(std::string(what) + database_.message()));
    }

private:
    sqlite::Database database_;
    ToolScreens& screens_;
};

void write(const DocumentFile& file, std::string_view lines, ToolScreens& screens) {
    if (!overwriteFile(file.path, lines)) {
        screens.showError(u"无法创建文件");
    }
}

/// False when nothing further can be put in.
bool insert(const TextReplacement& entry, const Source& source) {
    const sqlite::Statement statement = source.prepare(insertion);
    if (!statement.isPrepared()) {
        return false;
    }
    statement.bind(1, entry.phrase);
    statement.bind(2, entry.shortcut);
    statement.bind(3, timeStamp(ns::Date::date().timeIntervalSince1970()));
    statement.bind(4, ns::Uuid::uuid().uuidString().utf8());
    if (statement.step() != sqlite::Outcome::done) {
        source.complain("插入错误: ");
    }
    return true;
}

} // namespace

void TextDatabases::exportBookmarks() {
    const Source source(bookmarkDatabase, screens_);
    if (!source.isOpen()) {
        return;
    }
    const sqlite::Statement bookmarks = source.prepare("SELECT url FROM bookmarks");
    if (!bookmarks.isPrepared()) {
        return;
    }
    BookmarkLines lines;
    source.read(bookmarks, [&] {
        if (const auto address = bookmarks.text(0); address && isUtf8(*address)) {
            lines.add(*address);
        }
    });
    // The sheet reads the file when somebody has chosen where it goes.
    constexpr bool isDirectory = false;
    screens_.share(ns::Url::fileUrlWithPath(bookmarkFile.name(), isDirectory));
    write(bookmarkFile, lines.text(), screens_);
}

void TextDatabases::exportReplacements() {
    const Source source(replacementDatabase, screens_);
    if (!source.isOpen()) {
        return;
    }
    const sqlite::Statement entries =
        source.prepare("SELECT ZPHRASE, ZSHORTCUT FROM ZTEXTREPLACEMENTENTRY");
    if (!entries.isPrepared()) {
        return;
    }
    std::string lines;
    source.read(entries, [&] {
        const auto phrase = entries.bytes(0);
        const auto shortcut = entries.bytes(1);
        if (phrase && shortcut && isUtf8(*phrase) && isUtf8(*shortcut)) {
            lines += lineOf(*phrase, *shortcut);
        }
    });
    write(exportFile, lines, screens_);
}

void TextDatabases::importReplacements() {
    const Source source(replacementDatabase, screens_);
    if (!source.isOpen()) {
        return;
    }
    const auto file = ns::Data::withContentsOfFile(importFile.name());
    if (!isUtf8(file.bytes())) {
        return;
    }
    for (std::string_view rest = file.bytes(); !rest.empty();) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        const auto entry = replacementIn(rest.substr(0, end));
        if (entry && !insert(*entry, source)) {
            return;
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
}

} // namespace wentra::utilities
