// The list of copied texts on a phone whose calendar shows 30 December 2024.
#pragma once

#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace tests {

class HistoryList : public testing::Test {
protected:
    HistoryList() {
        phone.message(phone.window(), "addSubview:", {phone.message(panel, "view")});
        phone.message(phone.window(), "layoutIfNeeded");
    }

    void press() {
        const Json button = phone.find({{"title", "全选文字"}}).at(0);
        phone.press(button, 0.15);
        phone.advance(1);
    }
    /// From here on the list stays alive and records, even when it is closed.
    void open() {
        press();
        list = controller();
        ASSERT_TRUE(list.is_object());
    }
    void close() {
        phone.tap(barButton("关闭"));
        phone.advance(1);
        EXPECT_FALSE(isOpen());
    }
    bool isOpen() {
        const Json screens = phone.result({{"do", "screens"}});
        return std::find(screens.begin(), screens.end(), "ClipboardTableViewController") !=
               screens.end();
    }
    Json table() { return phone.message(list, "tableView"); }
    Json barButton(const std::string& title) {
        return phone.find({{"title", title}, {"class", "UIButton"}, {"visible", true}}).at(0);
    }
    /// What the rows show that are on the screen.
    std::vector<std::string> shown() {
        std::vector<std::string> texts;
        for (const Json& cell : cells()) {
            texts.push_back(textOf(cell));
        }
        return texts;
    }
    Json row(const std::string& text) {
        for (const Json& cell : cells()) {
            if (textOf(cell) == text) {
                return cell;
            }
        }
        ADD_FAILURE() << "there is no row " << text;
        return nullptr;
    }
    /// The row's own, from left to right.
    std::vector<Json> buttonsOf(const std::string& text) {
        std::vector<Json> buttons;
        const Json content = phone.node(phone.message(row(text), "contentView"));
        for (const Json& view : content["children"]) {
            if (view["class"] == "UIButton") {
                buttons.push_back(view);
            }
        }
        return buttons;
    }

    [[nodiscard]] std::filesystem::path file() {
        const std::string documents = phone.result({{"do", "documents"}});
        return root.path().string() + documents + "/AddCopy.plist";
    }
    /// Stores records of these texts, one a second.
    void write(const std::vector<std::string>& texts, std::vector<std::string> times = {}) {
        std::string records;
        for (std::size_t index = 0; index < texts.size(); ++index) {
            const std::string time =
                times.empty() ? "2024/01/01 00:00:" + std::to_string(10 + index) : times[index];
            records += "<dict><key>content</key><string>" + texts[index] +
                       "</string><key>time</key><string>" + time + "</string></dict>";
        }
        std::ofstream(file()) << "<plist version=\"1.0\"><array>" + records + "</array></plist>";
    }
    /// That entry of each record in the file.
    std::vector<std::string> stored(const std::string& key) {
        const std::string documents = phone.result({{"do", "documents"}});
        const Json records = phone.message(
            {{"class", "NSArray"}}, "arrayWithContentsOfFile:", {documents + "/AddCopy.plist"});
        std::vector<std::string> entries;
        for (const Json& record : records.is_array() ? records : Json::array()) {
            entries.push_back(record.at(key));
        }
        return entries;
    }

    support::TemporaryFolder root;
    Phone phone{{"--app", "notes", "--root", root.path(), "--date", "2024-12-30T12:00:00"}};
    Json panel = phone.message({{"class", "ZKFloatingViewController"}}, "new");
    Json list;

private:
    Json controller() {
        Json at = phone.message(phone.window(), "rootViewController");
        while (true) {
            const Json next = phone.message(at, "presentedViewController");
            if (!next.is_object()) {
                return at;
            }
            at = next;
        }
    }
    /// Of the rows on the screen, from above.
    std::vector<Json> cells() {
        phone.node(table()); // which lays it out
        const Json cells = phone.message(table(), "visibleCells");
        return {cells.begin(), cells.end()};
    }
    std::string textOf(const Json& cell) {
        return phone.message(phone.message(cell, "textLabel"), "text");
    }
};

} // namespace tests
