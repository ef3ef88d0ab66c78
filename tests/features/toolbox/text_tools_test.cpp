// What the panel finds out about a text: escapes, links, libraries of a crash report.
#include "tests/features/toolbox/toolbox_panel.hpp"

namespace {

using tests::Json;
using tests::ToolboxPanel;

class TextTools : public testing::Test {
protected:
    void findLinks(const std::string& text) {
        phone.copy(text);
        phone.tap("链接跳转");
        phone.advance(0.6);
    }
    std::vector<std::string> openedUrls() {
        std::vector<std::string> urls;
        for (const Json& event : phone.events("openURL")) {
            urls.push_back(event["url"]);
        }
        return urls;
    }

    ToolboxPanel phone;
};

TEST_F(TextTools, ConvertToEscapesAndBack) {
    phone.copy("A中");
    phone.tap("U码转换");
    phone.advance(1);
    EXPECT_EQ(phone.alert()["title"], "U码转换结果");
    EXPECT_EQ(phone.alert()["message"], "A中\n\n\n\\u41\\u4e2d");
    EXPECT_EQ(phone.alertActions(), (std::vector<std::string>{"关闭窗口", "复制结果"}));
    phone.choose("复制结果");
    EXPECT_EQ(phone.pasteboard(), "\\u41\\u4e2d");
    phone.tap("U码转换");
    phone.advance(1);
    EXPECT_EQ(phone.alert()["message"], "\\u41\\u4e2d\n\n\nA中");
    phone.choose("关闭窗口");
    phone.copy("\\u41\"broken");
    phone.tap("U码转换");
    phone.advance(1);
    EXPECT_EQ(phone.alert()["message"], "\\u41\"broken\n\n\n") << "no text: empty";
    EXPECT_EQ(phone.panel("replaceUnicode:", {"\\u41\"broken"}), nullptr);
}

TEST_F(TextTools, OfferLinksPathsAndShareCodes) {
    findLinks("【淘宝】https://m.tb.cn/h.abc 在/var/mobile 看 https://m.tb.cn/h.abc");
    EXPECT_EQ(phone.alert()["title"], "选择链接");
    EXPECT_EQ(phone.alertActions(),
              (std::vector<std::string>{"https://m.tb.cn/h.abc", "filza:///var/mobile",
                                        "在淘宝打开", "取消"}));
    phone.choose("在淘宝打开");
    EXPECT_EQ(openedUrls(), std::vector<std::string>{"taobao://"});
}

TEST_F(TextTools, OfferEachAddressOnce) {
    findLinks("filza:///var/x www.example.com");
    EXPECT_EQ(phone.alertActions(),
              (std::vector<std::string>{"filza:///var/x", "http://www.example.com", "取消"}));
}

TEST_F(TextTools, OpenTheOnlyLinkAtOnceAndCopyIt) {
    findLinks("见www.example.com。");
    EXPECT_EQ(openedUrls(), std::vector<std::string>{"http://www.example.com"});
    EXPECT_EQ(phone.pasteboard(), "http://www.example.com");
    EXPECT_EQ(phone.alert(), nullptr);
}

TEST_F(TextTools, OpenLinksWithChineseInThem) {
    findLinks("百科https://a.example/中");
    EXPECT_EQ(openedUrls(), std::vector<std::string>{"https://a.example/%E4%B8%AD"});
}

TEST_F(TextTools, SayWhenThereIsNoLink) {
    findLinks("没有");
    const Json notice = phone.find({{"text", "未检测到链接❗️"}, {"visible", true}}).at(0);
    EXPECT_EQ(notice["rect"][2], 260);
    phone.advance(1.4);
    EXPECT_TRUE(phone.find({{"text", "未检测到链接❗️"}}).empty());
}

TEST_F(TextTools, AskForThePartsOfAVideo) {
    phone.set({{"抖音链接解析", true}});
    findLinks("打开抖音 https://v.douyin.com/whole/ 看");
    EXPECT_EQ(phone.alertActions(),
              (std::vector<std::string>{"https://v.douyin.com/whole/", "在抖音打开", "取消"}));
    phone.choose("https://v.douyin.com/whole/");
    EXPECT_TRUE(openedUrls().empty());
    phone.result({{"do", "wait"}, {"for", {{"text", "请选择下载内容"}}}, {"seconds", 10}});
    EXPECT_EQ(
        phone.alertActions(),
        (std::vector<std::string>{"下载视频", "下载音频", "下载视频封面", "下载音频封面", "取消"}));
}

TEST_F(TextTools, OfferThePartsOfAnUnknownVideo) {
    phone.set({{"抖音链接解析", true}});
    findLinks("打开抖音 https://v.douyin.com/unknown/ 看");
    phone.choose("https://v.douyin.com/unknown/");
    phone.result({{"do", "wait"}, {"for", {{"text", "请选择下载内容"}}}, {"seconds", 10}});
    EXPECT_EQ(phone.alertActions().size(), 5U);
}

TEST_F(TextTools, SortTheLibrariesOfACrashReport) {
    EXPECT_EQ(phone.panel("dylibLinesInString:",
                          {"x\nOdd.dylib\n\"path\" : \"\\/usr\\/lib\\/libobjc.A.dylib\""}),
              Json::array({"路径 : \"/usr/lib/libobjc.A.dylib\"", "Odd.dylib"}));
    EXPECT_EQ(phone.panel("isSystemDylib:", {"libdns_services.dylib"}), false);
    EXPECT_EQ(phone.panel("isSystemDylib:", {"TCC.framework"}), true);
    EXPECT_EQ(phone.panel("isSystemDylib:", {nullptr}), false);
    phone.copy("Odd.dylib\nUIKitCore.framework\nOther.dylib");
    phone.panel("zzjsButtonClicked:", {nullptr});
    phone.advance(1);
    const Json text = phone.find({{"class", "UITextView"}, {"visible", true}}).at(0)["text"];
    const std::string shown = text;
    EXPECT_NE(shown.find("✅系统或越狱必备的可执行库:\n\nUIKitCore.framework\n\n\n"
                         "❌异常或越狱插件的可执行库:\n\nOdd.dylib\n\nOther.dylib\n\n"),
              std::string::npos)
        << shown;
}

TEST_F(TextTools, AnalyseThePickedWordsAndForgetThem) {
    phone.pick({"Odd.dylib"});
    phone.panel("zzjsButtonClicked:", {nullptr});
    phone.advance(1);
    const std::string shown =
        phone.find({{"class", "UITextView"}, {"visible", true}}).at(0)["text"];
    EXPECT_NE(shown.find("Odd.dylib"), std::string::npos);
    EXPECT_EQ(phone.panel("selectedWords"), Json::array());
}

} // namespace
