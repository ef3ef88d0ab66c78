// Downloads from the panel: over real HTTP, from a server that can be slow, broken and rude.
#include "tests/features/toolbox/toolbox_panel.hpp"

namespace {

using tests::Json;
using tests::ToolboxPanel;

class Downloads : public testing::Test {
protected:
    void download(const std::string& address) {
        phone.copy(address);
        phone.panel("goxiazai");
    }
    /// The file that the share sheet offers, as an address; the sheet is closed.
    std::string shared() {
        const Json event =
            phone.result({{"do", "wait"}, {"for", {{"event", "share"}}}, {"seconds", 30}}).at(0);
        phone.result({{"do", "events"}});
        phone.advance(1);
        phone.tap("关闭");
        phone.advance(1);
        EXPECT_EQ(event["items"].size(), 1U);
        return event["items"].at(0);
    }
    Json waitFor(const Json& where) {
        return phone.result({{"do", "wait"}, {"for", where}, {"seconds", 30}}).at(0);
    }
    void expectFailure() {
        waitFor({{"text", "下载失败❗️"}, {"visible", true}});
        EXPECT_EQ(phone.panel("progressView"), nullptr);
        EXPECT_TRUE(phone.find({{"title", "取消下载"}, {"visible", true}}).empty());
        phone.advance(1.4);
        EXPECT_TRUE(phone.find({{"text", "下载失败❗️"}}).empty());
    }
    /// What the application's documents have under that name, in Base64; null when nothing.
    Json document(const std::string& name) {
        const Json data = phone.message({{"class", "NSData"}}, "dataWithContentsOfFile:",
                                        {documents.substr(std::string("file://").size()) + name});
        return data.is_null() ? data : data["data"];
    }
    /// The names of the application's documents.
    Json documentNames() {
        return phone.message(phone.message({{"class", "NSFileManager"}}, "defaultManager"),
                             "contentsOfDirectoryAtPath:error:",
                             {documents.substr(std::string("file://").size()), nullptr});
    }
    double progress() {
        return phone.message(phone.panel("progressView"), "progress").get<double>();
    }

    const std::string files = "https://files.example/";
    const std::string documents =
        "file:///var/mobile/Containers/Data/Application/com.hammerandchisel.discord/Documents/";
    const std::string hello = "aGVsbG8=";
    ToolboxPanel phone;
};

TEST_F(Downloads, AreSavedAndShared) {
    download(files + "a.txt?text=hello");
    EXPECT_EQ(shared(), documents + "a.txt");
    EXPECT_EQ(document("a.txt"), hello);
    EXPECT_EQ(phone.panel("progressView"), nullptr);
    EXPECT_TRUE(phone.find({{"title", "取消下载"}, {"visible", true}}).empty());
}

TEST_F(Downloads, ShowTheirProgressAndCanBeCancelled) {
    const Json holders = phone.panel("retainCount");
    download(files + "a.bin?size=200000&rate=100000");
    const Json bar = phone.node(phone.panel("progressView"));
    const double width = phone.node(phone.view())["frame"][2];
    EXPECT_EQ(bar["frame"], Json::array({20, 0, width - 40, 10}));
    const Json button = phone.node(phone.panel("canceldownloadButton"));
    EXPECT_EQ(button["frame"], Json::array({80, 6, width - 160, 30}));
    waitFor({{"title", "取消下载"}, {"visible", true}});
    EXPECT_GT(progress(), 0);
    EXPECT_LT(progress(), 1);
    phone.tap("取消下载");
    EXPECT_EQ(phone.panel("progressView"), nullptr);
    EXPECT_TRUE(phone.find({{"title", "取消下载"}, {"visible", true}}).empty());
    EXPECT_TRUE(phone.until([&] { return phone.panel("retainCount") == holders; }))
        << "the session keeps the panel until all is told";
    EXPECT_TRUE(phone.find({{"text", "下载失败❗️"}}).empty());
    EXPECT_EQ(document("a.bin"), nullptr);
}

TEST_F(Downloads, OfUnknownLengthShowAnEmptyBar) {
    phone.result(
        {{"do", "serve"}, {"service", "files"}, {"headers", {{"Content-Encoding", "identity"}}}});
    download(files + "a.bin?size=40000&rate=40000");
    waitFor({{"title", "取消下载"}, {"visible", true}});
    EXPECT_EQ(progress(), 0);
    EXPECT_EQ(shared(), documents + "a.bin");
}

TEST_F(Downloads, ReplaceTheEarlierFileOnlyWhenTheyAreWhole) {
    download(files + "a.txt?text=old");
    shared();
    for (const char* broken : {"?size=1000&cut=500", "?size=1000&length=2000"}) {
        download(files + "a.txt" + broken);
        expectFailure();
        EXPECT_EQ(document("a.txt"), "b2xk") << broken;
    }
    download(files + "a.txt?text=hello");
    EXPECT_EQ(shared(), documents + "a.txt");
    EXPECT_EQ(document("a.txt"), hello);
    EXPECT_EQ(documentNames(), Json::array({"a.txt"})) << "nothing is left of the others";
}

TEST_F(Downloads, LeaveAFolderOfThatNameAlone) {
    const std::string folder = documents.substr(std::string("file://").size()) + "a.txt";
    const Json manager = phone.message({{"class", "NSFileManager"}}, "defaultManager");
    phone.message(manager, "createDirectoryAtPath:withIntermediateDirectories:attributes:error:",
                  {folder + "/kept", true, nullptr, nullptr});
    download(files + "a.txt?text=hello");
    expectFailure();
    EXPECT_EQ(phone.message(manager, "fileExistsAtPath:", {folder + "/kept"}), true);
    EXPECT_EQ(documentNames(), Json::array({"a.txt"})) << "nothing is left of the download";
    const std::vector<Json> lines = phone.events("log");
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.back()["text"], "保存文件出错: 未能完成操作。Is a directory");
}

TEST_F(Downloads, AreCalledWhatAFileCanBeCalled) {
    const std::vector<std::pair<std::string, std::string>> names{
        {"x?text=hello&name=../../../evil.txt", "evil.txt"},
        {"x?text=hello&name=..", "x"},
        {"x.bin?text=hello&name=", "x.bin"},
        {"x?text=hello&name=%F0%9F%98%80%20photo.jpg", "%F0%9F%98%80%20photo.jpg"},
        {"x?text=hello&disposition=attachment;filename*=UTF-8%27%27%25E6%2596%2587.txt",
         "%E6%96%87.txt"},
        {"%E7%85%A7%E7%89%87.zip?text=hello", "%E7%85%A7%E7%89%87.zip"},
        {"page?text=hello&type=text/html", "page.html"},
    };
    for (const auto& [target, name] : names) {
        download(files + target);
        EXPECT_EQ(shared(), documents + name) << target;
    }
}

TEST_F(Downloads, FollowRedirections) {
    download(files + "old.txt?to=/new.txt%3Ftext%3Dhello");
    EXPECT_EQ(shared(), documents + "new.txt");
    EXPECT_EQ(document("new.txt"), hello);
}

TEST_F(Downloads, OfWhatIsNoAddressAreOnlyLogged) {
    for (const Json& text : std::vector<Json>{"files.example/a.txt", "ftp://files.example/a", "",
                                              "HTTP://files.example/a", "https://a b", nullptr}) {
        phone.result({{"do", "events"}});
        phone.copy(text);
        phone.panel("goxiazai");
        EXPECT_EQ(phone.panel("progressView"), nullptr) << text;
        EXPECT_EQ(phone.events("log").size(), 1U) << text;
    }
    download("no address");
    EXPECT_EQ(phone.events("log").at(0)["text"], "无效链接");
}

TEST_F(Downloads, FromNobodySayThatTheyFailed) {
    download("https://nobody.example/a.txt");
    expectFailure();
}

TEST_F(Downloads, TakeThePickedWordsFirst) {
    phone.copy("https://nobody.example/a.txt");
    phone.pick({"https://files.", "example/a.txt?text=hello"});
    phone.panel("goxiazai");
    EXPECT_EQ(shared(), documents + "a.txt");
}

TEST_F(Downloads, ALaterOneHasTheBar) {
    download(files + "slow.txt?size=40000&rate=40000");
    download(files + "fast.bin?size=400000&rate=100000");
    EXPECT_EQ(shared(), documents + "slow.txt");
    EXPECT_NE(phone.panel("progressView"), nullptr) << "the later one's";
    EXPECT_EQ(phone.find({{"class", "UIProgressView"}}).size(), 1U);
    EXPECT_EQ(phone.find({{"title", "取消下载"}}).size(), 1U);
    phone.tap("取消下载");
    EXPECT_EQ(phone.find({{"class", "UIProgressView"}}).size(), 0U);
}

TEST_F(Downloads, AreSharedWhenThePanelHasGoneMeanwhile) {
    download(files + "a.bin?size=40000&rate=40000");
    phone.message(phone.view(), "removeFromSuperview");
    EXPECT_EQ(shared(), documents + "a.bin");
    download("https://nobody.example/a.txt");
    expectFailure();
}

TEST_F(Downloads, OfferTheLinksOfAPage) {
    phone.set({{"解析", true}});
    download(files);
    waitFor({{"text", "选择下载链接文件"}});
    const std::vector<std::string> all = phone.alertActions();
    EXPECT_EQ(all.front(), "取消");
    EXPECT_EQ(all.size(), 7U);
    EXPECT_NE(std::ranges::find(all, files + "page.css"), all.end());
    const std::string chosen = files + "report.pdf?size=200000";
    phone.choose(chosen);
    EXPECT_EQ(phone.pasteboard(), chosen);
    EXPECT_EQ(shared(), documents + "report.pdf");
}

TEST_F(Downloads, OfALinkThatIsNoPageFail) {
    phone.set({{"解析", true}});
    phone.result({{"do", "serve"}, {"service", "files"}, {"body", "write to a@example.com"}});
    download(files);
    waitFor({{"text", "选择下载链接文件"}});
    phone.result({{"do", "alert"}, {"choose", "mailto:a@example.com"}});
    EXPECT_EQ(phone.pasteboard(), "mailto:a@example.com");
    expectFailure();
}

TEST_F(Downloads, LeaveOutLinksByTheFilter) {
    phone.set({{"解析", true}, {"解析过滤", true}});
    download(files);
    waitFor({{"text", "选择下载链接文件"}});
    const std::vector<std::string> all = phone.alertActions();
    EXPECT_EQ(all.size(), 4U);
    for (const char* left : {"https://files.example/page.css", "https://files.example/page.js",
                             "https://www.example.com"}) {
        EXPECT_EQ(std::ranges::find(all, left), all.end()) << left;
    }
}

TEST_F(Downloads, OfAPageThatDoesNotComeSaySo) {
    phone.set({{"解析", true}});
    download("https://nobody.example/");
    expectFailure();
    EXPECT_EQ(phone.alert(), nullptr);
}

TEST_F(Downloads, OfAGivenAddressComeWithoutABar) {
    const Json session = phone.message({{"class", "NSURLSession"}}, "sharedSession");
    for (const char* text : {"one", "two"}) {
        phone.panel("downloadWithUrl:session:", {files + "a.txt?text=" + text, session});
        EXPECT_EQ(phone.panel("progressView"), nullptr);
        const std::string file = shared();
        EXPECT_TRUE(file.ends_with("/tmp/a.txt")) << file;
    }
    phone.panel("downloadWithUrl:session:", {"HTTPS://files.example/b.txt?text=b", session});
    EXPECT_TRUE(shared().ends_with("/tmp/b.txt")) << "whatever loads is loaded";
    const Json nobody = "https://nobody.example/a";
    for (const auto& [address, with] : std::vector<std::pair<Json, Json>>{{nullptr, session},
                                                                          {7, session},
                                                                          {"", session},
                                                                          {nobody, session},
                                                                          {nobody, nullptr},
                                                                          {nobody, "x"}}) {
        phone.panel("downloadWithUrl:session:", {address, with});
    }
    phone.panel("downloadWithUrl:session:", {files + "last.txt?text=last", session});
    EXPECT_TRUE(shared().ends_with("/tmp/last.txt")) << "the session tells of one after the other";
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(Downloads, APartOfAVideoIsDownloaded) {
    phone.set({{"抖音链接解析", true}});
    phone.copy("打开抖音 https://v.douyin.com/whole/ 看");
    phone.tap("链接跳转");
    phone.advance(0.6);
    phone.choose("https://v.douyin.com/whole/");
    waitFor({{"text", "请选择下载内容"}});
    phone.choose("下载音频");
    const std::string file = shared();
    EXPECT_TRUE(file.ends_with("/tmp/whole.mp3")) << file;
}

} // namespace
