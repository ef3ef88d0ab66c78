// The file browser over real files.
#pragma once

#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>

namespace tests {

namespace fs = std::filesystem;

/// The device's files, made before the phone is started.
struct DeviceFiles {
    DeviceFiles() {
        fs::create_directories(documents);
        fs::create_directories(media);
    }
    support::TemporaryFolder folder;
    fs::path mobile = folder.path() / "var/mobile";
    fs::path documents = mobile / "Documents";
    fs::path media = mobile / "Media";
};

/// Documents on the left, Media on the right; empty at first.
class Browser : public testing::Test {
protected:
    /// Starts the phone with the files that are there.
    void start() {
        phone.emplace(std::vector<std::string>{"--app", "files", "--root", files.folder.path()});
        phone->advance(1);
        left = phone->find({{"class", "UITableView"}})[0];
        right = phone->find({{"class", "UITableView"}})[1];
        controller = phone->message(left, "dataSource");
    }
    /// A file on the left, that many seconds after the first.
    void file(const std::string& name, const std::string& bytes = "", long date = 0) {
        write(files.documents / name, bytes, date);
    }
    static void write(const fs::path& path, const std::string& bytes, long date = 0) {
        fs::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
        setDate(path, date);
    }
    static void setDate(const fs::path& path, long date) {
        const timespec times[2]{{1000000000 + date, 0}, {1000000000 + date, 0}};
        utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW);
    }
    static std::string read(const fs::path& path) { return support::readFile(path); }

    Json list(const Json& pane) {
        return phone->message(controller, pane == left ? "content1" : "content2");
    }
    Json send(const std::string& selector, std::initializer_list<Json> arguments = {}) {
        return phone->message(controller, selector, arguments);
    }
    void reload() {
        send("reloadData");
        phone->advance(0.1);
    }
    Json path(long row) {
        return phone->message({{"class", "NSIndexPath"}}, "indexPathForRow:inSection:", {row, 0});
    }
    /// Laid out first, for rows come when they are seen.
    Json cell(const Json& pane, long row) {
        phone->node(pane);
        return phone->message(pane, "cellForRowAtIndexPath:", {path(row)});
    }
    Json inCell(const Json& pane, long row, long tag) {
        return phone->message(cell(pane, row), "viewWithTag:", {tag});
    }
    Json text(const Json& pane, long row, long tag) {
        return phone->message(inCell(pane, row, tag), "text");
    }
    /// Holds a finger in the pane where there is no row, and chooses from its menu.
    void paneMenu(const Json& pane, const std::string& title) {
        holdBelowRows(pane);
        phone->choose(title);
    }
    void holdBelowRows(const Json& pane) {
        const Json rect = phone->node(pane)["rect"];
        phone->press(Json{rect[0].get<double>() + 60, rect[1].get<double>() + 480}, 0.4);
        phone->advance(0.5);
    }
    void contextMenu(const Json& pane, long row, const std::string& title) {
        phone->result({{"do", "context"}, {"on", cell(pane, row)}, {"choose", title}});
        phone->advance(1);
    }
    /// Taps the icon, for the caption reaches out of the bar.
    void pressToolbar(const std::string& title) {
        const Json rect = phone->find({{"text", title}})[0]["rect"];
        phone->tap(Json{rect[0].get<double>() + 15, rect[1].get<double>() - 20});
        phone->advance(1);
    }
    /// Until that text is seen: what runs in the background has come back.
    void await(const std::string& text) {
        phone->result({{"do", "wait"}, {"for", {{"text", text}}}});
        phone->advance(1);
    }

    DeviceFiles files;
    std::optional<Phone> phone;
    Json controller;
    Json left;
    Json right;
};

} // namespace tests
