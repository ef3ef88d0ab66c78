// The exports and the import of the system's databases, on real files.
#include "tests/features/utilities/utilities_phone.hpp"

#include <cstdio>
#include <fstream>
#include <sys/stat.h>

namespace {

using tests::Json;
using tests::sqlite;

class TextDatabases : public tests::Utilities {
protected:
    void write(const std::filesystem::path& file, const std::string& bytes) {
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << bytes;
    }
    /// Another process that keeps the database to itself until the test ends.
    void lock(const std::filesystem::path& file) {
        const std::string told = folder.path() / "locked";
        ASSERT_EQ(mkfifo(told.c_str(), 0600), 0);
        other = popen(("sqlite3 '" + file.string() + "'").c_str(), "w");
        std::fprintf(other, "BEGIN EXCLUSIVE;\n.shell echo >'%s'\n", told.c_str());
        std::fflush(other);
        std::ifstream(told).get(); // which waits for somebody who writes
    }
    ~TextDatabases() override {
        if (other != nullptr) {
            pclose(other);
        }
    }
    FILE* other = nullptr;
    const std::string bookmarkFile = "A1-safari书签.txt";
    const std::string exportFile = "自带输入法批量导出词库.txt";
    const std::string importFile = "自带输入法批量导入词库.txt";
    const std::string exportTool = "自带输入法批量导出词库";
    const std::string importTool = "自带输入法批量导入词库";
};

TEST_F(TextDatabases, WriteEverySecondBookmarkAndShareTheFile) {
    sqlite(bookmarks, std::string(bookmarkTable) +
                          "INSERT INTO bookmarks (url) VALUES (NULL),('a'),('b'),(NULL),('c'),"
                          "(x'FF'),('d');");
    choose("safari书签导出");
    EXPECT_EQ(output(bookmarkFile), "b\nd\n");
    EXPECT_EQ(screens().back(), "UIActivityViewController") << "it stays when the list has gone";
    EXPECT_TRUE(isListGone());
    const auto shared = phone.events("share");
    ASSERT_EQ(shared.size(), 1U);
    EXPECT_EQ(shared[0]["items"][0],
              "file:///var/mobile/Documents/A1-safari%E4%B9%A6%E7%AD%BE.txt");
    EXPECT_EQ(sqlite(bookmarks, "PRAGMA integrity_check"), "ok\n");
}

TEST_F(TextDatabases, LeaveTheTailOfALongerFile) {
    sqlite(bookmarks,
           std::string(bookmarkTable) + "INSERT INTO bookmarks (url) VALUES ('a'),('b');");
    write(documents / bookmarkFile, "former\n");
    choose("safari书签导出");
    EXPECT_EQ(output(bookmarkFile), "b\nrmer\n");
}

TEST_F(TextDatabases, ExportReplacementsThatHaveBothParts) {
    sqlite(replacements, std::string(replacementTable) +
                             "INSERT INTO ZTEXTREPLACEMENTENTRY (ZPHRASE, ZSHORTCUT) VALUES "
                             "('你好','nh'),(NULL,'x'),('y',NULL),(x'FF','z'),('a b','c'),"
                             "(x'E5A5BD','h');");
    choose(exportTool);
    EXPECT_EQ(output(exportFile), "你好 nh\n\na b c\n\n好 h\n\n");
    EXPECT_EQ(complaint(), "");
    EXPECT_TRUE(isListGone());
    EXPECT_TRUE(phone.events("share").empty());
}

TEST_F(TextDatabases, ImportWhatTheyHaveExported) {
    sqlite(replacements, std::string(replacementTable) +
                             "INSERT INTO ZTEXTREPLACEMENTENTRY (ZPHRASE, ZSHORTCUT) VALUES "
                             "('你好','nh'),('😀','xl');");
    choose(exportTool);
    write(documents / importFile, output(exportFile));
    choose(importTool);
    EXPECT_EQ(complaint(), "");
    EXPECT_EQ(
        sqlite(replacements,
               "SELECT ZPHRASE, ZSHORTCUT, Z_ENT, Z_OPT, ZWASDELETED, ZNEEDSSAVETOCLOUD, "
               "ZREMOTERECORDINFO IS NULL, length(ZUNIQUENAME), typeof(ZTIMESTAMP) <> 'text' FROM "
               "ZTEXTREPLACEMENTENTRY WHERE Z_PK > 2 ORDER BY Z_PK"),
        "你好|nh|1|3|0|0|1|36|1\n😀|xl|1|3|0|0|1|36|1\n");
    EXPECT_EQ(sqlite(replacements, "SELECT count(DISTINCT ZUNIQUENAME) FROM "
                                   "ZTEXTREPLACEMENTENTRY WHERE ZUNIQUENAME = upper(ZUNIQUENAME)"),
              "2\n");
    EXPECT_EQ(sqlite(replacements, "PRAGMA integrity_check"), "ok\n");
}

TEST_F(TextDatabases, StampTheirEntriesAheadOfTheTime) {
    sqlite(replacements, replacementTable);
    write(documents / importFile, "a b");
    choose(importTool);
    EXPECT_EQ(sqlite(replacements,
                     "SELECT ZTIMESTAMP - (strftime('%s', '2024-03-18 12:00:00', 'utc') - "
                     "978304000) BETWEEN 0 AND 10 FROM ZTEXTREPLACEMENTENTRY"),
              "1\n");
}

TEST_F(TextDatabases, ImportLinesOfEveryShape) {
    sqlite(replacements, replacementTable);
    write(documents / importFile,
          "\n\n \non my way omw\nalone\nwindows w\r\n'; DROP TABLE x; y\nlast l");
    choose(importTool);
    EXPECT_EQ(complaint(), "");
    EXPECT_EQ(
        sqlite(replacements, "SELECT quote(ZPHRASE), hex(ZSHORTCUT) FROM ZTEXTREPLACEMENTENTRY"),
        "''|\n'on'|6D79\n'windows'|770D\n''';'|44524F50\n'last'|6C\n");
}

TEST_F(TextDatabases, ImportNothingWithoutLinesOrText) {
    sqlite(replacements, replacementTable);
    choose(importTool); // no file
    write(documents / importFile, "\n\n\n");
    choose(importTool);
    write(documents / importFile, "a b\n\xFF c\n"); // no UTF-8
    choose(importTool);
    EXPECT_EQ(complaint(), "");
    EXPECT_EQ(sqlite(replacements, "SELECT count(*) FROM ZTEXTREPLACEMENTENTRY"), "0\n");
}

struct Fault {
    const char* tool;
    std::string sql; ///< of the database; "corrupt" and "missing" for those
    const char* message;
};

class Faults : public TextDatabases, public testing::WithParamInterface<Fault> {};

TEST_P(Faults, AreToldAndStay) {
    const auto& [tool, sql, message] = GetParam();
    const auto& file = std::string_view(tool).starts_with("safari") ? bookmarks : replacements;
    if (sql == "corrupt") {
        write(file, std::string(5000, 'x'));
    } else if (sql != "missing") {
        sqlite(file, sql);
    }
    write(documents / importFile, "a b\nc d\n");
    choose(tool);
    EXPECT_EQ(complaint(), message);
    EXPECT_EQ(complaint(), "") << "only once";
    EXPECT_TRUE(isListGone());
    EXPECT_TRUE(phone.swallowed().empty());
}

INSTANTIATE_TEST_SUITE_P(
    TextDatabases, Faults,
    testing::Values(
        Fault{"safari书签导出", "missing", "无法打开数据库: unable to open database file"},
        Fault{"safari书签导出", "corrupt", "查询错误: file is not a database"},
        Fault{"safari书签导出", "CREATE TABLE other (url TEXT)",
              "查询错误: no such table: bookmarks"},
        Fault{"safari书签导出", "CREATE TABLE bookmarks (address TEXT)",
              "查询错误: no such column: url"},
        Fault{"自带输入法批量导出词库", "missing", "无法打开数据库: unable to open database file"},
        Fault{"自带输入法批量导出词库", "CREATE TABLE ZTEXTREPLACEMENTENTRY (ZPHRASE TEXT)",
              "查询错误: no such column: ZSHORTCUT"},
        Fault{"自带输入法批量导入词库", "missing", "无法打开数据库: unable to open database file"},
        Fault{"自带输入法批量导入词库", "CREATE TABLE x (y)",
              "查询错误: no such table: ZTEXTREPLACEMENTENTRY"},
        Fault{"自带输入法批量导入词库",
              "CREATE TABLE ZTEXTREPLACEMENTENTRY (Z_PK INTEGER PRIMARY KEY, Z_ENT, Z_OPT, "
              "ZNEEDSSAVETOCLOUD, ZWASDELETED, ZTIMESTAMP, ZPHRASE TEXT CHECK (ZPHRASE = 'z'), "
              "ZSHORTCUT, ZUNIQUENAME, ZREMOTERECORDINFO)",
              "插入错误: CHECK constraint failed: ZPHRASE = 'z'"}));

TEST_F(TextDatabases, GoOnBehindALineThatCannotBePutIn) {
    sqlite(replacements, std::string(replacementTable) +
                             "CREATE UNIQUE INDEX once ON ZTEXTREPLACEMENTENTRY (ZSHORTCUT);");
    write(documents / importFile, "a x\nb x\nc y\n");
    choose(importTool);
    EXPECT_EQ(complaint(), "插入错误: UNIQUE constraint failed: ZTEXTREPLACEMENTENTRY.ZSHORTCUT");
    EXPECT_EQ(sqlite(replacements, "SELECT ZPHRASE FROM ZTEXTREPLACEMENTENTRY"), "a\nc\n");
}

TEST_F(TextDatabases, DoNotWaitForWhoeverHasLockedThem) {
    sqlite(replacements, replacementTable);
    write(documents / importFile, "a b\n");
    write(documents / exportFile, "former");
    lock(replacements);
    choose(importTool);
    EXPECT_EQ(complaint(), "查询错误: database is locked");
    choose(exportTool);
    EXPECT_EQ(complaint(), "查询错误: database is locked");
    EXPECT_EQ(output(exportFile), "former");
}

TEST_F(TextDatabases, TellThatTheFileCannotBeMade) {
    sqlite(replacements, replacementTable);
    std::filesystem::create_directories(documents / exportFile);
    choose(exportTool);
    EXPECT_EQ(complaint(), "无法创建文件");
}

TEST_F(TextDatabases, ShareTheFileOverWhatTheyComplainOf) {
    sqlite(bookmarks,
           std::string(bookmarkTable) + "INSERT INTO bookmarks (url) VALUES ('a'),('b');");
    std::filesystem::create_directories(documents / bookmarkFile);
    choose("safari书签导出");
    EXPECT_EQ(phone.events("share").size(), 1U);
    EXPECT_EQ(complaint(), "无法创建文件");
}

TEST_F(TextDatabases, ComplainOverTheListWhenNoRowWasChosen) {
    open();
    phone.message(list, "exportKeyboardReplacements");
    phone.advance(1);
    EXPECT_FALSE(isListGone());
    EXPECT_EQ(complaint(), "无法打开数据库: unable to open database file");
}

} // namespace
