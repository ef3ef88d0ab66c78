// What the menus do with files.
#include "tests/features/files/browser.hpp"

namespace {

using tests::Browser;
using tests::Json;
namespace fs = std::filesystem;

class Operations : public Browser {
protected:
    fs::path leftFile(const std::string& name) { return files.documents / name; }
    fs::path rightFile(const std::string& name) { return files.media / name; }
    /// Until the list is empty: each copy takes itself off when it is done.
    void awaitCopies() {
        EXPECT_TRUE(phone->until([this] { return send("copiedPaths").empty(); }));
    }
    /// The last of several copies shows the pane without what the others are still writing.
    void awaitList(const Json& pane, const Json& names) {
        EXPECT_TRUE(phone->until([&] { return list(pane) == names; })) << list(pane);
    }
};

TEST_F(Operations, AreOfferedForThePane) {
    start();
    holdBelowRows(left);
    EXPECT_EQ(phone->alertActions(),
              (std::vector<std::string>{"新建文件", "新建文件夹", "粘贴内容", "文件查重",
                                        "全选并复制", "全选并删除", "返回上一页", "取消"}));
    EXPECT_EQ(phone->alert()["style"], "actionSheet");
    phone->choose("返回上一页");
    EXPECT_EQ(send("path1"), "/var/mobile");
}

TEST_F(Operations, BelongToTheRightPaneFromTheMiddleOn) {
    start();
    phone->press(Json{195, 600}, 0.4);
    phone->advance(1);
    phone->choose("返回上一页");
    EXPECT_EQ(send("path1"), "/var/mobile/Documents");
    EXPECT_EQ(send("path2"), "/var/mobile");
}

TEST_F(Operations, AreOfferedForAnEntry) {
    file("a.txt", "a");
    start();
    const Json menu = phone->result({{"do", "context"}, {"on", cell(left, 0)}});
    std::vector<std::string> titles;
    for (const Json& item : menu["items"]) {
        titles.push_back(item["title"]);
        EXPECT_TRUE(item["symbol"].is_string()) << item;
    }
    EXPECT_EQ(titles,
              (std::vector<std::string>{"选择", "删除", "复制", "移动", "分享", "重命名",
                                        "复制路径", "直接发邮件附件", "图片转换为JPG",
                                        "图片转换为PNG", "转换为XML明文", "十六进制预览器"}));
    EXPECT_EQ(menu["items"][3]["symbol"], "arrow.left.and.right.circle");
    phone->result({{"do", "context"}, {"choose", "复制路径"}});
    EXPECT_EQ(phone->pasteboard(), "/var/mobile/Documents/a.txt");
    phone->press(cell(left, 0), 0.7); // the cell's menu comes before the pane's
    EXPECT_EQ(phone->result({{"do", "context"}})["items"].size(), 12U);
    EXPECT_TRUE(phone->alert().is_null());
}

TEST_F(Operations, CopyAllAndEmptyTheList) {
    file("a.txt", "a", 2);
    file("b", "b", 1);
    start();
    paneMenu(left, "全选并复制");
    paneMenu(left, "全选并复制");
    EXPECT_EQ(send("copiedPaths").size(), 4U);
    phone->copy(nullptr);
    paneMenu(right, "粘贴内容");
    EXPECT_TRUE(phone->alert().is_null());
    awaitCopies();
    awaitList(right, {"a.txt", "b"}); // with the dates of the originals
    EXPECT_EQ(read(rightFile("a.txt")), "a");
    EXPECT_EQ(send("copiedPaths").size(), 0U);
}

TEST_F(Operations, AskBeforeTheyReplaceAndCount) {
    file("a", "new");
    write(rightFile("a"), "old");
    start();
    paneMenu(left, "全选并复制");
    phone->copy(nullptr);
    for (const char* copy : {"a-1.", "a-2."}) {
        paneMenu(right, "粘贴内容");
        EXPECT_EQ(phone->alertActions(),
                  (std::vector<std::string>{"覆盖文件", "重命名粘贴", "取消"}));
        phone->choose("重命名粘贴");
        EXPECT_EQ(read(rightFile(copy)), "new");
    }
    EXPECT_EQ(read(rightFile("a")), "old");
    EXPECT_EQ(send("copiedPaths").size(), 1U);
    write(rightFile("a"), "longer than before");
    paneMenu(right, "粘贴内容");
    phone->choose("覆盖文件");
    awaitCopies();
    EXPECT_EQ(read(rightFile("a")), "new");
}

TEST_F(Operations, LeaveAFileAloneThatIsPastedOverItself) {
    file("a", "whole");
    start();
    paneMenu(left, "全选并复制");
    phone->copy(nullptr);
    paneMenu(left, "粘贴内容");
    phone->choose("覆盖文件");
    awaitCopies();
    EXPECT_EQ(read(leftFile("a")), "whole");
    EXPECT_EQ(list(left), Json{"a"});
}

TEST_F(Operations, TellWhatCannotBeCopied) {
    file("a", "a");
    write(rightFile("a"), "kept");
    start();
    paneMenu(left, "全选并复制");
    fs::remove(leftFile("a"));
    phone->copy(nullptr);
    paneMenu(right, "粘贴内容");
    phone->choose("覆盖文件");
    await("错误");
    EXPECT_EQ(phone->alert()["message"], "文件复制出错: 未能完成操作。No such file or directory");
    phone->choose("确定");
    EXPECT_EQ(read(rightFile("a")), "kept");
    EXPECT_EQ(send("copiedPaths").size(), 1U);
}

TEST_F(Operations, PasteTheFileThatThePasteboardNames) {
    write(files.mobile / "other.txt", "other");
    start();
    phone->copy("/var/mobile/other.txt");
    paneMenu(left, "粘贴内容");
    EXPECT_EQ(list(left), Json{"other.txt"});
    write(files.mobile / "other.txt", "changed");
    paneMenu(left, "粘贴内容");
    EXPECT_EQ(read(leftFile("other.txt")), "other");
    for (const char* nonsense : {"", "no such file\nanywhere", "/", "..", "/var/mobile"}) {
        phone->copy(nonsense);
        paneMenu(left, "粘贴内容");
    }
    EXPECT_EQ(list(left), Json{"other.txt"});
}

TEST_F(Operations, CopyAndMoveToTheOppositePane) {
    file("a", "a");
    start();
    contextMenu(left, 0, "复制");
    EXPECT_EQ(phone->alert()["title"], "复制完成"); // it is said before it is done
    EXPECT_FALSE(fs::exists(rightFile("a")));
    phone->choose("复制到对面");
    EXPECT_EQ(list(right), Json{"a"});
    contextMenu(left, 0, "复制");
    phone->choose("常规复制");
    EXPECT_EQ(phone->pasteboard(), "/var/mobile/Documents/a");
    write(leftFile("a"), "newer");
    contextMenu(left, 0, "移动");
    EXPECT_EQ(phone->alert()["message"], "对面已存在同名文件，是否覆盖？");
    phone->choose("确定覆盖");
    EXPECT_EQ(read(rightFile("a")), "newer");
    EXPECT_EQ(list(left).size(), 0U);
    contextMenu(right, 0, "移动");
    EXPECT_EQ(phone->alert()["title"], "移动完成");
    phone->choose("移动到对面");
    EXPECT_EQ(read(leftFile("a")), "newer");
}

TEST_F(Operations, LoseNothingWhenBothPanesShowOneFolder) {
    file("a", "a");
    start();
    send("setPath2:", {"/var/mobile/Documents"});
    reload();
    contextMenu(left, 0, "移动");
    phone->choose("确定覆盖");
    EXPECT_EQ(read(leftFile("a")), "a");
}

TEST_F(Operations, RenameAndKeepWhatIsThere) {
    file("a", "a", 2);
    file("b", "b", 1);
    start();
    for (const char* taken : {"b", "", ".", ".."}) {
        contextMenu(left, 0, "重命名");
        EXPECT_EQ(phone->alert()["fields"][0]["text"], "a");
        phone->choose("确认", {taken});
    }
    EXPECT_EQ(list(left), (Json{"a", "b"}));
    contextMenu(left, 0, "重命名");
    phone->choose("确认", {"新.txt"});
    EXPECT_EQ(list(left), (Json{"新.txt", "b"}));
    EXPECT_EQ(read(leftFile("b")), "b");
}

TEST_F(Operations, DeleteOneEntryAfterAsking) {
    file("keep/in.txt", "in", 1);
    fs::create_directory_symlink("keep", leftFile("link"));
    setDate(leftFile("link"), 100);
    setDate(leftFile("keep"), 1);
    start();
    contextMenu(left, 0, "删除");
    EXPECT_EQ(phone->alert()["message"], "确定删除文件：/var/mobile/Documents/link");
    phone->choose("确定删除");
    EXPECT_EQ(list(left), Json{"keep"});
    EXPECT_EQ(phone->message(left, "numberOfRowsInSection:", {0}), 1);
    EXPECT_EQ(read(leftFile("keep/in.txt")), "in");
}

TEST_F(Operations, SurviveAListingThatChangedBeforeTheAnswer) {
    file("a", "a", 2);
    file("b", "b", 1);
    start();
    contextMenu(left, 1, "删除");
    fs::remove(leftFile("a"));
    reload();
    phone->choose("确定删除");
    EXPECT_EQ(list(left).size(), 0U);
    EXPECT_EQ(phone->swallowed().size(), 0U);
}

TEST_F(Operations, DeleteNoFolderThatAListingNamesByDots) {
    file("a");
    start();
    for (const char* name : {"", ".", ".."}) {
        send("deleteAtIndex:tableView:contentArray:path:",
             {path(0), left, Json{name}, "/var/mobile/Documents"});
        EXPECT_TRUE(fs::exists(leftFile("a"))) << name;
    }
}

TEST_F(Operations, DeleteAllAfterAsking) {
    file("a");
    file("d/e");
    start();
    paneMenu(left, "全选并删除");
    EXPECT_EQ(phone->alert()["message"], "\"确定删除\" /var/mobile/Documents \"路径下所有内容？\"");
    phone->choose("取消操作");
    EXPECT_EQ(list(left).size(), 2U);
    paneMenu(left, "全选并删除");
    phone->choose("确定删除");
    EXPECT_TRUE(fs::is_empty(files.documents));
    EXPECT_EQ(list(left).size(), 0U);
}

TEST_F(Operations, RecycleOnlyWhatHasAFreeName) {
    file("a", "first");
    start();
    const auto recycle = [&] {
        send("moveToRecycleBinAtIndex:tableView:contentArray:path:",
             {path(0), left, send("content1"), "/var/mobile/Documents"});
    };
    phone->message(controller, "moveToRecycleBinAtIndex:tableView:contentArray:path:",
                   {path(0), left, nullptr, "/var/mobile/Documents"});
    EXPECT_TRUE(fs::exists(leftFile("a")));
    recycle();
    EXPECT_EQ(read(files.mobile / "huishou/a"), "first");
    write(leftFile("a"), "second");
    reload();
    recycle();
    EXPECT_EQ(read(files.mobile / "huishou/a"), "first");
    EXPECT_EQ(list(left), Json{"a"});
}

TEST_F(Operations, SwipeARowAwayOnlyWithItsFile) {
    file("a", "second", 2);
    file("b", "", 1);
    write(files.mobile / "huishou/a", "first");
    start();
    const auto swipe = [&](const char* action) {
        phone->result({{"do", "swipe"}, {"on", cell(left, 0)}, {"choose", action}});
    };
    EXPECT_EQ(phone->result({{"do", "swipe"}, {"on", cell(left, 0)}}), (Json{"删除", "回收站"}));
    swipe("回收站");
    EXPECT_EQ(list(left), (Json{"a", "b"}));
    EXPECT_EQ(read(files.mobile / "huishou/a"), "first");
    swipe("删除");
    EXPECT_EQ(list(left), Json{"b"});
    EXPECT_FALSE(fs::exists(leftFile("a")));
    swipe("回收站");
    EXPECT_EQ(list(left), Json::array());
    EXPECT_TRUE(fs::exists(files.mobile / "huishou/b"));
}

TEST_F(Operations, CreateInThePane) {
    file("a.txt", "kept");
    start();
    paneMenu(left, "新建文件");
    EXPECT_EQ(phone->alert()["message"], "请输入名称:");
    phone->choose("确认", {"a.txt"});
    EXPECT_EQ(read(leftFile("a.txt")), "kept");
    paneMenu(left, "新建文件");
    phone->choose("确认", {"b"});
    paneMenu(left, "新建文件夹");
    phone->choose("确认", {"c/d"});
    EXPECT_TRUE(fs::is_regular_file(leftFile("b")));
    EXPECT_TRUE(fs::is_directory(leftFile("c/d")));
    EXPECT_EQ(list(left).size(), 3U);
}

TEST_F(Operations, CreateBeneathTheLastTap) {
    fs::create_directories(leftFile("inner"));
    start();
    const auto create = [&](const char* action) {
        pressToolbar("新建");
        EXPECT_EQ(phone->alertActions(),
                  (std::vector<std::string>{".png", ".jpg", ".txt", "文件", "文件夹", "取消"}));
        phone->choose(action, {"x"});
    };
    create("文件"); // nothing was tapped yet
    EXPECT_EQ(list(left), Json{"inner"});
    phone->tap(cell(left, 0));
    create(".txt");
    create("文件夹");
    EXPECT_TRUE(fs::is_directory(leftFile("inner/x")));
    EXPECT_TRUE(fs::is_regular_file(leftFile("inner/x.txt")));
    EXPECT_EQ(list(left).size(), 2U);
}

TEST_F(Operations, FindFilesOfEqualSize) {
    file("ab.txt", "0123456789");
    file("deep/.abc.txt", "9876543210");
    file("other", "01234567890");
    start();
    paneMenu(left, "文件查重");
    await("查重结果");
    const std::string message = phone->alert()["message"];
    EXPECT_EQ(message.find("找到2个重复文件。\n\n文件组1 (大小：10 字节):\n"), 0U);
    EXPECT_NE(message.find("/var/mobile/Documents/deep/.abc.txt\n"), message.npos);
    phone->choose("保留文件名最长");
    EXPECT_FALSE(fs::exists(leftFile("ab.txt")));
    EXPECT_TRUE(fs::exists(leftFile("deep/.abc.txt")));
    paneMenu(left, "文件查重");
    await("没有发现重复文件");
}

TEST_F(Operations, KeepDuplicatesWhoseKeeperIsGone) {
    file("a", "1");
    start();
    const Json group{{{"path", "/var/mobile/Documents/long gone"}, {"size", 1}},
                     {{"path", "/var/mobile/Documents/a"}, {"size", 1}}};
    send("keepLongestNameInDuplicateFileGroups:", {Json{group}});
    EXPECT_TRUE(fs::exists(leftFile("a")));
    send("keepShortestNameInDuplicateFileGroups:", {Json{"nonsense", Json::array(), 5}});
    EXPECT_EQ(phone->swallowed().size(), 0U);
}

} // namespace
