// The panes: listing, rows, sorting, walking.
#include "tests/features/files/browser.hpp"

namespace {

using tests::Browser;
using tests::Json;
namespace fs = std::filesystem;

enum Tag : long { icon = 101, name, date, size, permissions };

TEST_F(Browser, ShowsTheNewestFirstAndWhatIsKnownOfEach) {
    file("old.txt", "12345", 1);
    file(".hidden", "", 2);
    write(files.media / "b.RMV", std::string(1024, 'x'), 1);
    chmod((files.documents / "old.txt").c_str(), 0640);
    start();
    EXPECT_EQ(list(left), (Json{".hidden", "old.txt"}));
    phone->result({{"do", "file"}, {"path", "/var/mobile/Documents/old.txt"}, {"created", 86400}});
    reload();
    EXPECT_EQ(text(left, 1, Tag::name), "old.txt");
    EXPECT_EQ(text(left, 1, Tag::date).get<std::string>().substr(0, 11), "1970/01/02 ");
    EXPECT_EQ(text(left, 1, Tag::size), "5.00 B");
    EXPECT_EQ(text(left, 1, Tag::permissions), "0640");
    EXPECT_EQ(text(right, 0, Tag::size), "1.00 KB");
    EXPECT_EQ(phone->message(cell(left, 0), "tag"), 1);
    EXPECT_EQ(phone->message(cell(right, 0), "tag"), 2);
    EXPECT_EQ(send("collectionView:numberOfItemsInSection:", {nullptr, 0}), 0);
}

TEST_F(Browser, PlacesWhatARowShows) {
    file("a.txt");
    start();
    const auto frame = [&](long tag) {
        return phone->message(inCell(left, 0, tag), "frame")["rect"];
    };
    EXPECT_EQ(frame(Tag::icon), (Json{0, 11, 30, 30}));
    EXPECT_EQ(frame(Tag::name), (Json{35, 0, 162, 44}));
    EXPECT_EQ(frame(Tag::date), (Json{35, 41, 160, 15}));
    EXPECT_EQ(frame(Tag::size), (Json{47, 42, 160, 15}));
    EXPECT_EQ(frame(Tag::permissions), (Json{-9, 42, 160, 15}));
    EXPECT_EQ(phone->message(cell(left, 0), "bounds")["rect"][3], 53.84);
    EXPECT_EQ(phone->message(left, "frame")["rect"][2], 195);
}

TEST_F(Browser, SortsBothPanesTheOtherWayAtEachPress) {
    file("a", "1", 3);
    file("b", "333", 1);
    file("c", "22", 2);
    write(files.media / "x", "1", 1);
    write(files.media / "y", "1", 2);
    start();
    send("selectAllLeftButtonTapped");
    EXPECT_EQ(list(left), (Json{"b", "c", "a"}));
    EXPECT_EQ(list(right), (Json{"x", "y"}));
    send("selectAllLeftButtonTapped");
    EXPECT_EQ(list(left), (Json{"a", "c", "b"}));
    send("selectAllRightButtonTapped");
    EXPECT_EQ(list(left), (Json{"a", "c", "b"})); // the smallest first
    const Json ascending = list(right);
    send("selectAllRightButtonTapped");
    EXPECT_EQ(list(left), (Json{"b", "c", "a"}));
    EXPECT_EQ(list(right), (Json{ascending[1], ascending[0]}));
    phone->advance(1);
    EXPECT_EQ(phone->events("sound").size(), 8U);
    send("reloadDataForTableView:", {left});
    EXPECT_EQ(list(left), (Json{"a", "c", "b"}));
}

TEST_F(Browser, WalksIntoFoldersAndBack) {
    fs::create_directories(files.documents / "inner/deep");
    fs::create_directory_symlink(".", files.documents / "inner/loop");
    start();
    send("backButtonPressed:", {nullptr}); // nothing was tapped yet
    EXPECT_EQ(send("path1"), "/var/mobile/Documents");
    phone->tap(cell(left, 0));
    EXPECT_EQ(send("path1"), "/var/mobile/Documents/inner");
    EXPECT_EQ(send("currentPath"), "/var/mobile/Documents/inner");
    EXPECT_EQ(send("path2"), "/var/mobile/Media");
    EXPECT_EQ(list(left).size(), 2U);
    for (const char* way : {"/var/mobile/Documents", "/var/mobile", "/var", "/", "/"}) {
        send("backButtonPressed:", {nullptr});
        EXPECT_EQ(send("path1"), way);
    }
}

TEST_F(Browser, StaysWhereItIsWhenTheFolderAboveHasGone) {
    fs::create_directories(files.documents / "inner/deep");
    start();
    phone->tap(cell(left, 0));
    phone->tap(cell(left, 0));
    fs::remove_all(files.documents / "inner");
    send("backButtonPressed:", {nullptr});
    EXPECT_EQ(send("path1"), "/var/mobile/Documents/inner/deep");
    EXPECT_EQ(list(left), Json::array());
}

TEST_F(Browser, SwipesBackToTheRight) {
    fs::create_directories(files.documents / "inner");
    start();
    phone->tap(cell(left, 0));
    phone->slide({{20, 500}, {60, 500}, {120, 500}});
    EXPECT_EQ(send("path1"), "/var/mobile/Documents");
}

TEST_F(Browser, SurvivesEntriesThatVanishAndFoldersThatAreNone) {
    file("a.txt", "a");
    start();
    fs::remove(files.documents / "a.txt");
    phone->message(left, "reloadData");
    phone->advance(0.1);
    EXPECT_EQ(text(left, 0, Tag::name), "未知文件");
    EXPECT_EQ(text(left, 0, Tag::date), "未知日期");
    EXPECT_EQ(text(left, 0, Tag::size), "未知大小");
    EXPECT_EQ(text(left, 0, Tag::permissions), "未知权限");
    phone->tap(cell(left, 0));
    send("setPath1:", {"/var/mobile/nowhere"});
    reload();
    EXPECT_EQ(list(left).size(), 0U);
    EXPECT_EQ(phone->swallowed().size(), 0U);
}

TEST_F(Browser, TakesEveryNameAndKind) {
    const std::vector<std::string> names{"-rf", "a\nb.txt", "📁 مرحبا.zip", std::string(255, 'n'),
                                         "\xFF\xFE.txt"};
    for (const std::string& name : names) {
        file(name, "x");
    }
    mkfifo((files.documents / "pipe.txt").c_str(), 0600);
    fs::create_symlink("loop.plist", files.documents / "loop.plist");
    start();
    EXPECT_EQ(list(left).size(), names.size() + 2);
    for (long row = 0; row < 7; ++row) { // a pipe has no text, a loop leads nowhere
        send("tableView:didSelectRowAtIndexPath:", {left, path(row)});
    }
    EXPECT_EQ(phone->swallowed().size(), 0U);
    const Json shown = text(left, 0, Tag::name);
    EXPECT_FALSE(shown.is_null());
}

TEST_F(Browser, ReadsTextsInThreeEncodings) {
    write(files.documents / "utf8.txt", "你好");
    write(files.documents / "euc.txt", "\xA4\xB3\xA4\xF3");
    write(files.documents / "none.txt", "\xFF\xFF\xFF");
    start();
    const auto content = [&](const std::string& name) {
        return send("contentForFileAtURL:",
                    {phone->message({{"class", "NSURL"}}, "fileURLWithPath:isDirectory:",
                                    {"/var/mobile/Documents/" + name, false})});
    };
    EXPECT_EQ(content("utf8.txt"), "你好");
    EXPECT_EQ(content("euc.txt"), "こん");
    EXPECT_EQ(content("none.txt"), "");
    EXPECT_EQ(content("gone.txt"), "");
}

TEST_F(Browser, TellsKindsByTheExtension) {
    start();
    for (const char* path : {"/a.JPG", "/a.jpeg", "/a.png"}) {
        EXPECT_EQ(send("isImagePath:", {path}), true) << path;
    }
    EXPECT_EQ(send("isImagePath:", {"/a.bmp"}), false);
    EXPECT_EQ(send("isTextFile:", {"/a.Plist"}), true);
    EXPECT_EQ(send("isTextFile:", {"/a.md"}), false);
    EXPECT_EQ(send("isDirectory:", {"/var/mobile"}), true);
    EXPECT_EQ(send("sizeFormatted:", {1023}), "1023.00 B");
}

TEST(UsedPhone, ShowsTheFilesOfAFreshOneToo) {
    tests::Phone phone{{"--app", "files", "--device-files"}};
    phone.advance(1);
    EXPECT_EQ(phone.find({{"text", "笔记"}}).size(), 1U);
    EXPECT_EQ(phone.find({{"text", "壁纸.png"}}).size(), 1U);
}

TEST_F(Browser, ClosesAndLeavesTheApplication) {
    start();
    pressToolbar("关闭");
    EXPECT_EQ(phone->result({{"do", "screens"}}), Json{"FilesController"});
    phone->tap(phone->find({{"title", "打开文件管理器"}})[0]);
    phone->advance(1);
    EXPECT_EQ(phone->result({{"do", "screens"}}).size(), 3U);
}

TEST_F(Browser, OpensTheTappedOneOfThePanesImages) {
    for (const char* name : {"a.png", "b.txt", "c.jpg"}) {
        file(name, "", -name[0]); // the first is the newest
    }
    start();
    phone->tap(cell(left, 2));
    phone->advance(1);
    const Json viewer =
        phone->message(phone->message(controller, "navigationController"), "topViewController");
    EXPECT_EQ(phone->message(viewer, "currentIndex"), 1);
}

} // namespace
