// A phone with the list of utilities open, on files of its own.
#pragma once

#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace tests {

/// Runs SQL on a file by SQLite's own tool; what it prints.
inline std::string sqlite(const std::filesystem::path& file, const std::string& sql) {
    std::filesystem::create_directories(file.parent_path());
    const std::string command = "sqlite3 '" + file.string() + "' \"" + sql + "\"";
    FILE* const output = popen(command.c_str(), "r");
    std::string text;
    for (int byte = std::fgetc(output); byte != EOF; byte = std::fgetc(output)) {
        text += static_cast<char>(byte);
    }
    EXPECT_EQ(pclose(output), 0) << sql;
    return text;
}

class Utilities : public testing::Test {
protected:
    static constexpr const char* bookmarkTable = "CREATE TABLE bookmarks (id INTEGER, url TEXT);";
    static constexpr const char* replacementTable =
        "CREATE TABLE ZTEXTREPLACEMENTENTRY (Z_PK INTEGER PRIMARY KEY, Z_ENT INTEGER, "
        "Z_OPT INTEGER, ZNEEDSSAVETOCLOUD INTEGER, ZWASDELETED INTEGER, ZTIMESTAMP TIMESTAMP, "
        "ZPHRASE VARCHAR, ZSHORTCUT VARCHAR, ZUNIQUENAME VARCHAR, ZREMOTERECORDINFO BLOB);";

    Utilities() { std::filesystem::create_directories(documents); }

    /// Shows the list as the toolbox does, in a popover.
    void open() {
        list = phone.message(phone.message({{"class", "UmacaTableViewController"}}, "alloc"),
                             "initWithStyle:", {0});
        const Json navigation =
            phone.message(phone.message({{"class", "UINavigationController"}}, "alloc"),
                          "initWithRootViewController:", {list});
        phone.message(navigation, "setModalPresentationStyle:", {7});
        const Json popover = phone.message(navigation, "popoverPresentationController");
        phone.message(popover, "setSourceView:", {phone.window()});
        phone.message(popover, "setDelegate:", {list});
        phone.message(phone.message(phone.window(), "rootViewController"),
                      "presentViewController:animated:completion:", {navigation, false, nullptr});
        phone.advance(1);
    }
    void choose(const std::string& title) {
        open();
        chooseAgain(title);
    }
    void chooseAgain(const std::string& title) {
        phone.message(list, "setMenuData:", {Json::array({title})});
        const Json path =
            phone.message({{"class", "NSIndexPath"}}, "indexPathForItem:inSection:", {0, 0});
        phone.message(
            list, "tableView:didSelectRowAtIndexPath:", {phone.message(list, "tableView"), path});
        phone.advance(1);
    }
    Json screens() { return phone.result({{"do", "screens"}}); }
    bool isListGone() { return phone.find({{"text", "功能列表-QF"}}).empty(); }
    std::string output(const std::string& name) { return support::readFile(documents / name); }
    /// What the one alert says, which is closed.
    std::string complaint() {
        const Json alert = phone.alert();
        if (alert.is_null()) {
            return "";
        }
        EXPECT_EQ(alert["title"], "错误");
        phone.choose("好的");
        return alert["message"];
    }

    support::TemporaryFolder folder;
    std::filesystem::path home = folder.path() / "var/mobile";
    std::filesystem::path documents = home / "Documents";
    std::filesystem::path bookmarks = home / "Library/Safari/Bookmarks.db";
    std::filesystem::path replacements = home / "Library/KeyboardServices/TextReplacements.db";
    Phone phone{{"--app", "notes", "--root", folder.path(), "--date", "2024-03-18T12:00:00"}};
    Json list;
};

} // namespace tests
