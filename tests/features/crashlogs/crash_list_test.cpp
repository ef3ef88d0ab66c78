// The list of crash reports: what it shows, searches, shares and deletes.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <map>
#include <sys/stat.h>

namespace {

using tests::Json;
namespace fs = std::filesystem;

class CrashList : public testing::Test {
protected:
    CrashList() { fs::create_directories(reports); }

    /// A file of the past: the lower the number, the longer ago.
    void write(const fs::path& file, const std::string& bytes, long number) {
        fs::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << bytes;
        const timespec time{1'700'000'000 + 86400 * number, 0};
        const timespec times[]{time, time};
        utimensat(AT_FDCWD, file.c_str(), times, 0);
    }
    void report(const std::string& name, long number, const std::string& bytes = "report\n") {
        write(reports / name, bytes, number);
    }
    /// By holding the toolbox's button.
    void open() {
        const Json toolbox = phone.message({{"class", "ZKFloatingViewController"}}, "new");
        phone.message(phone.window(), "addSubview:", {phone.message(toolbox, "view")});
        phone.message(phone.window(), "layoutIfNeeded");
        phone.press(visible({{"title", "日志检索"}}).at(0), 0.3);
        phone.advance(1);
        const Json table = visible({{"class", "UITableView"}}).at(0);
        list = phone.message(table, "delegate");
    }
    Json visible(Json where) {
        where["visible"] = true;
        return phone.find(where);
    }
    std::vector<std::string> names() {
        std::vector<std::string> found;
        for (const Json& entry : phone.message(list, "ipsFiles")) {
            const std::string url = phone.message(entry["fileURL"], "lastPathComponent");
            found.push_back(url);
        }
        return found;
    }
    Json table() { return phone.message(list, "tableView"); }
    Json path(long row) {
        return phone.message({{"class", "NSIndexPath"}}, "indexPathForItem:inSection:", {row, 0});
    }
    void search(const std::string& text) {
        const Json search = phone.message(list, "searchController");
        phone.message(phone.message(search, "searchBar"), "setText:", {text});
        phone.message(list, "updateSearchResultsForSearchController:", {search});
    }
    /// The screen that a tap on the row pushes.
    Json tapped(const std::string& name) {
        phone.tap(visible({{"text", name}}).at(0));
        phone.advance(1);
        return phone.message(navigation(), "topViewController");
    }
    Json navigation() { return phone.message(list, "navigationController"); }
    void goBack() {
        phone.message(navigation(), "popViewControllerAnimated:", {false});
        phone.advance(1);
    }
    enum class Tool { selectAll, share, remove };
    /// On the toolbar, which the first picked row brings.
    void tapTool(Tool tool) {
        const Json bar = phone.node(visible({{"class", "UIToolbar"}}).at(0));
        phone.tap(bar["children"].at(static_cast<std::size_t>(tool)));
    }
    void commitDeletion(long row) {
        phone.message(list,
                      "tableView:commitEditingStyle:forRowAtIndexPath:", {table(), 1, path(row)});
        phone.advance(1);
    }
    std::size_t pickedCount() {
        const Json picked = phone.message(table(), "indexPathsForSelectedRows");
        return picked.is_null() ? 0 : picked.size();
    }

    support::TemporaryFolder folder;
    fs::path home = folder.path() / "var/mobile";
    fs::path reports = home / "Library/Logs/CrashReporter";
    tests::Phone phone{{"--app", "notes", "--root", folder.path()}};
    Json list;
};
using Names = std::vector<std::string>;

TEST_F(CrashList, ShowsReportsTheNewestFirst) {
    report("a.ips", 1);
    report("b.IPS", 2);
    report("c.txt", 3);
    report("d.ips.ca.synced", 4);
    report(".e.ips", 5);
    fs::create_directories(reports / "Retired.ips");
    open();
    EXPECT_EQ(names(), (Names{"d.ips.ca.synced", "a.ips"}));
    EXPECT_EQ(phone.message(list, "title"), "错误日志列表");
    EXPECT_EQ(phone.message(list, "tableView:heightForRowAtIndexPath:", {table(), path(0)}), 68);
}

TEST_F(CrashList, StandsBesideTheNotchInLandscape) {
    report("a.ips", 1);
    open();
    phone.result({{"do", "rotate"}, {"to", "landscapeLeft"}});
    constexpr double notch = 47;
    EXPECT_EQ(visible({{"title", "关闭"}}).at(0)["frame"][0], notch + 16);
    const Json edit = visible({{"title", "编辑"}}).at(0)["frame"];
    EXPECT_EQ(edit[0].get<double>() + edit[2].get<double>(), 844 - notch - 16);
    EXPECT_EQ(visible({{"class", "UITextField"}}).at(0)["frame"][0], notch + 8);
    EXPECT_EQ(phone.node(phone.message(visible({{"class", "UITableViewCell"}}).at(0),
                                       "contentView"))["frame"][0],
              notch);
    phone.message(list, "setEditing:animated:", {true, false});
    phone.message(table(), "selectRowAtIndexPath:animated:scrollPosition:", {path(0), false, 0});
    phone.message(list, "tableView:didSelectRowAtIndexPath:", {table(), path(0)});
    phone.advance(1);
    const Json bar = phone.node(visible({{"class", "UIToolbar"}}).at(0));
    EXPECT_NEAR(bar["children"].at(0)["frame"][0].get<double>(), notch + 16, 1e-6);
}

TEST_F(CrashList, ShowsDocumentsAndFoldersWhenAskedTo) {
    write(home / "Documents/a.json", "{}", 1);
    write(home / "Documents/b.ips", "", 2);
    write(home / "Documents/folder/c.txt", "", 3);
    write(home / "Documents/d.zip", "", 4);
    phone.turnOn({"查看本地文件", "开文件夹浏览"});
    open();
    auto found = names();
    std::ranges::sort(found);
    EXPECT_EQ(found, (Names{"a.json", "b.ips", "folder"}));
    EXPECT_EQ(phone.message(list, "title"), "/var/mobile/Documents");
}

TEST_F(CrashList, TellsOfEachFile) {
    report("a.ips", 0, std::string(1 << 20, 'x'));
    fs::permissions(reports / "a.ips", fs::perms(0600));
    open();
    EXPECT_EQ(visible({{"text", "访问权限: 600"}}).size(), 1U);
    EXPECT_EQ(visible({{"text", "文件大小: 1.0000 MB"}}).size(), 1U);
    const Json name = visible({{"text", "a.ips"}}).at(0);
    EXPECT_EQ(phone.message(phone.message(name, "font"), "pointSize"), 17);
    const Json size = visible({{"text", "文件大小: 1.0000 MB"}}).at(0);
    EXPECT_EQ(size["frame"], (Json{240, 52, 195, 20}));
}

TEST_F(CrashList, HintsWhyItIsEmpty) {
    fs::remove(reports);
    open();
    EXPECT_EQ(names(), Names());
    EXPECT_EQ(phone.message(table(), "numberOfRowsInSection:", {0}), 1);
    EXPECT_EQ(phone.message(list, "tableView:heightForRowAtIndexPath:", {table(), path(0)}), 136);
    const Json hint = visible({{"class", "UITextView"}}).at(0);
    EXPECT_TRUE(hint["text"].get<std::string>().starts_with("显示为空：\n\n1、"));
    phone.message(list, "tableView:didSelectRowAtIndexPath:", {table(), path(0)});
    commitDeletion(0);
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(CrashList, FindsNamesWhateverTheirCaseAndAccents) {
    report("JetsamEvent-2023.ips", 1);
    report("Café.ips", 2);
    open();
    search("JetSam");
    EXPECT_EQ(names(), Names{"JetsamEvent-2023.ips"});
    search("cafe");
    EXPECT_EQ(names(), Names{"Café.ips"});
    search("nowhere");
    EXPECT_EQ(names(), Names());
    search("");
    EXPECT_EQ(names().size(), 2U);
}

TEST_F(CrashList, PicksAllAndNoneAndShares) {
    report("a.ips", 1);
    report("b.ips", 2);
    open();
    phone.message(list, "shareFiles:", {nullptr});
    EXPECT_TRUE(phone.events("share").empty()) << "not in editing mode";
    phone.tap(visible({{"title", "编辑"}}).at(0));
    phone.advance(1);
    EXPECT_EQ(visible({{"title", "完成"}}).size(), 1U);
    phone.tap(visible({{"text", "a.ips"}}).at(0));
    phone.advance(1);
    EXPECT_EQ(pickedCount(), 1U);
    tapTool(Tool::selectAll);
    EXPECT_EQ(pickedCount(), 2U);
    tapTool(Tool::selectAll);
    EXPECT_EQ(pickedCount(), 0U);
    tapTool(Tool::share);
    EXPECT_TRUE(phone.events("share").empty());
    tapTool(Tool::selectAll);
    tapTool(Tool::share);
    phone.advance(1);
    const auto shared = phone.events("share");
    ASSERT_EQ(shared.size(), 1U);
    EXPECT_EQ(shared[0]["items"].size(), 2U);
}

TEST_F(CrashList, DeletesOneFile) {
    report("a.ips", 1);
    report("b.ips", 2);
    open();
    commitDeletion(0);
    EXPECT_EQ(names(), Names{"a.ips"});
    EXPECT_FALSE(fs::exists(reports / "b.ips"));
    commitDeletion(0);
    EXPECT_EQ(names(), Names());
    EXPECT_EQ(visible({{"class", "UITextView"}}).size(), 1U) << "the hint";
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(CrashList, DeletesWhatIsPicked) {
    report("a.ips", 1);
    report("b.ips", 2);
    report("c.ips", 3);
    open();
    phone.tap(visible({{"title", "编辑"}}).at(0));
    EXPECT_TRUE(visible({{"class", "UIToolbar"}}).empty());
    for (const char* name : {"c.ips", "a.ips"}) {
        phone.tap(visible({{"text", name}}).at(0));
    }
    tapTool(Tool::remove);
    EXPECT_EQ(names(), Names{"b.ips"});
    EXPECT_FALSE(fs::exists(reports / "a.ips"));
    EXPECT_TRUE(fs::exists(reports / "b.ips"));
    EXPECT_EQ(pickedCount(), 0U);
}

TEST_F(CrashList, SaysWhyAFileStays) {
    report("a.ips", 1);
    open();
    fs::remove(reports / "a.ips"); // by somebody else
    commitDeletion(0);
    const Json alert = phone.alert();
    EXPECT_EQ(alert["title"], "错误");
    EXPECT_TRUE(alert["message"].get<std::string>().starts_with("删除文件时出错： "));
    EXPECT_EQ(names(), Names{"a.ips"});
}

TEST_F(CrashList, DropsTheWholeListsRowWhileASearchShows) {
    report("a.ips", 1);
    report("b.ips", 2);
    open();
    search("a.ips");
    commitDeletion(0);
    EXPECT_FALSE(fs::exists(reports / "a.ips"));
    EXPECT_EQ(names(), Names{"a.ips"}) << "the first row of the whole list went";
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(CrashList, WalksIntoFolders) {
    report("Retired/old.txt", 1);
    report("Retired/.hidden", 1);
    report("a.ips", 2);
    phone.turnOn({"开文件夹浏览"});
    open();
    const auto found = names();
    const long row = std::ranges::find(found, "Retired") - found.begin();
    phone.message(list, "tableView:didSelectRowAtIndexPath:", {table(), path(row)});
    EXPECT_EQ(names(), Names{"old.txt"});
    phone.advance(1);
    EXPECT_EQ(visible({{"text", "日期: "}}).size(), 1U);
    fs::remove_all(reports / "Retired");
    phone.message(list, "reloadFiles");
    EXPECT_EQ(names(), Names{"old.txt"}) << "what cannot be read leaves the list";
    search("");
    EXPECT_EQ(names().size(), 2U);
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(CrashList, OpensReportsWhateverIsInThem) {
    const std::string withNul("a\0b.dylib\n", 10);
    report("nul.ips", 1, withNul);
    report("euc.ips", 2, "\xC6\xFC\xCB\xDC");
    report("none.ips", 3, "\xFF\xFE");
    report("gone.ips", 4);
    open();
    fs::remove(reports / "gone.ips");
    const std::map<std::string, Json> texts{
        {"nul.ips", withNul}, {"euc.ips", "日本"}, {"none.ips", nullptr}, {"gone.ips", nullptr}};
    for (const auto& [name, text] : texts) {
        const Json viewer = tapped(name);
        EXPECT_EQ(viewer["class"], "FileContentViewController");
        EXPECT_EQ(phone.message(viewer, "fileContent"), text) << name;
        EXPECT_EQ(phone.message(phone.message(viewer, "fileURL"), "lastPathComponent"), name);
        goBack();
    }
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(CrashList, OpensAllPicturesOfTheListAtOnce) {
    for (const char* name : {"a.png", "b.txt", "c.jpg", "d.jpeg"}) {
        write(home / "Documents" / name, "", *name);
    }
    phone.turnOn({"查看本地文件"});
    open();
    phone.message(navigation(), "setToolbarHidden:animated:", {false, false});
    const Json viewer = tapped("c.jpg");
    Names pictures;
    for (const Json& url : phone.message(viewer, "imageURLs")) {
        pictures.push_back(phone.message(url, "lastPathComponent"));
    }
    EXPECT_EQ(pictures, (Names{"d.jpeg", "c.jpg", "a.png"}));
    EXPECT_EQ(phone.message(viewer, "currentIndex"), 1);
    EXPECT_EQ(phone.message(navigation(), "isToolbarHidden"), true);
}

TEST_F(CrashList, ClosesByItsButton) {
    open();
    phone.tap(visible({{"title", "关闭"}}).at(0));
    phone.advance(1);
    EXPECT_TRUE(visible({{"text", "错误日志列表"}}).empty());
}

} // namespace
