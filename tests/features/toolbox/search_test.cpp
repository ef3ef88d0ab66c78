// Where the panel takes a text: the menu of targets, their addresses, the preview, pinyin.
#include "tests/features/toolbox/toolbox_panel.hpp"

namespace {

using tests::Json;
using tests::ToolboxPanel;

/// What a target opens, by its method.
struct Opened {
    const char* method;
    const char* url;
};

/// The picked words are "a b" and "中".
const Opened opened[]{
    {"goToAppStore", "itms-apps://search.itunes.apple.com/WebObjects/MZSearch.woa/wa/"
                     "search?media=software&term=a%20b%E4%B8%AD"},
    {"goTobaidusou", "https://www.baidu.com/s?word=a%20b%E4%B8%AD"},
    {"gobiying", "https://www.bing.com/search?q=a%20b%E4%B8%AD"},
    {"goGoogle", "https://www.google.com/search?q=a%20b%E4%B8%AD"},
    {"goToTwitter", "twitter://search?query=a%20b%E4%B8%AD"},
    {"goToweibo", "sinaweibo://searchall?q=a%20b%E4%B8%AD"},
    {"goTozhihu", "zhihu://search?q=a%20b%E4%B8%AD"},
    {"gotaobao", "taobao://s.taobao.com/?q=a%20b%E4%B8%AD"},
    {"gotoxhs", "xhsdiscover://search/result?keyword=a%20b%E4%B8%AD"},
    {"gotopdd", "pinduoduo://search/result?keyword=a%20b%E4%B8%AD"},
    {"goTopansousou", "https://m.pansoso.com/zh/a%20b%E4%B8%AD"},
    {"goyoutube", "youtube://search?q=a%20b%E4%B8%AD"},
    {"gotosaily", "apt-repo://a%20b%E4%B8%AD"},
    {"goTobilibili", "bilibili://search?keyword=a%20b%E4%B8%AD"},
    {"goToiOSmap", "maps://maps.apple.com/?q=a%20b%E4%B8%AD"},
    {"goTobaiduditu", "baidumap://map/place/search?query=a%20b%E4%B8%AD"},
    {"goTogaode", "iosamap://path?sourceApplication=launch&backScheme=launch:&dname="
                  "a%20b%E4%B8%AD&dev=0&m=0&t=0"},
    {"goTotubiao", "https://www.flaticon.com/search?word=a%20b%E4%B8%AD"},
    {"goTotianyanchawy", "https://m.tianyancha.com/search?key=a%20b%E4%B8%AD&checkFrom=searchBox"},
    {"goTohuaban", "https://m.huaban.com/search/?q=a%20b%E4%B8%AD"},
    {"goToyandex", "https://yandex.com/images/touch/"
                   "search?family=yes&isize=large&lr=11514&text=a%20b%E4%B8%AD"},
    {"goTodywy", "https://www.douyin.com/search/a%20b%E4%B8%AD"},
};

class Search : public ToolboxPanel {
public:
    using ToolboxPanel::ToolboxPanel;

    std::string openedUrl() {
        const auto urls = events("openURL");
        EXPECT_EQ(urls.size(), 1U);
        return urls.empty() ? "" : urls[0].value("url", "");
    }
};

TEST(SearchTargets, OpenTheirAddressesAndUnpickTheWords) {
    Search phone;
    for (const Opened& target : opened) {
        phone.pick({"a b", "中"});
        phone.panel(target.method);
        EXPECT_EQ(phone.openedUrl(), target.url);
        EXPECT_EQ(phone.panel("selectedWords"), Json::array()) << target.method;
        EXPECT_EQ(phone.message(phone.panel("selectedIndexPaths"), "count"), 0);
        const Json chosen =
            phone.message(phone.panel("wordsCollectionView"), "indexPathsForSelectedItems");
        EXPECT_TRUE(chosen.is_null() || chosen.empty()) << chosen;
    }
}

TEST(SearchTargets, TakeThePasteboardWhenNothingIsPicked) {
    Search phone;
    phone.copy("pasted");
    phone.panel("gobiying");
    EXPECT_EQ(phone.openedUrl(), "https://www.bing.com/search?q=pasted");
    phone.copy(nullptr);
    phone.panel("gobiying");
    EXPECT_EQ(phone.openedUrl(), "https://www.bing.com/search?q=");
    phone.pick({"word"});
    phone.copy("pasted");
    phone.panel("goTojingdong");
    EXPECT_NE(phone.openedUrl().find("%22keyWord%22:%22pasted%22"), std::string::npos);
    EXPECT_EQ(phone.panel("selectedWords"), Json::array({"word"})) << "stays picked";
}

TEST(SearchTargets, OpenPagesInTheApplicationWhenThatIsSwitchedOn) {
    Search phone(Json{{"btzllq", true}});
    phone.copy("x");
    phone.panel("goTobaidusou");
    phone.advance(1);
    EXPECT_TRUE(phone.events("openURL").empty());
    EXPECT_EQ(phone.result({{"do", "screens"}}).back(), "SFSafariViewController");
    phone.panel("goToTwitter");
    EXPECT_EQ(phone.openedUrl(), "twitter://search?query=x") << "applications stay outside";
}

TEST(SearchMenu, ShowsWhatIsSwitchedOnAndGoesWithTheChoice) {
    Search phone(
        Json{{"百度", true}, {"必应", true}, {"推特", 1}, {"微博", "1"}, {"btzllq", true}});
    phone.copy("text");
    phone.press("链接跳转", 0.3);
    phone.advance(1);
    const Json table = phone.find({{"class", "UITableView"}, {"visible", true}}).at(0);
    EXPECT_EQ(table["rect"][2], 140);
    const Json rows = phone.find({{"class", "UITableViewCell"}});
    ASSERT_EQ(rows.size(), 3U) << "a text is no switch";
    phone.Phone::tap(phone.find({{"text", "必应"}, {"visible", true}}).at(0));
    phone.advance(1);
    EXPECT_TRUE(phone.find({{"class", "UITableView"}}).empty());
    const auto loads = phone.events("webLoad");
    ASSERT_EQ(loads.size(), 1U);
    EXPECT_EQ(loads[0]["url"], "https://www.bing.com/search?q=text");
    EXPECT_EQ(phone.result({{"do", "screens"}}).back(), "SFSafariViewController")
        << "the page stays when the menu has gone";
}

TEST(SearchMenu, StaysWhiteInTheDark) {
    Search phone(Json{{"百度", true}});
    phone.result({{"do", "appearance"}, {"set", "dark"}});
    phone.press("链接跳转", 0.3);
    phone.advance(1);
    const Json table = phone.find({{"class", "UITableView"}, {"visible", true}}).at(0);
    EXPECT_EQ(table["backgroundColor"], "#ffffffff");
    EXPECT_EQ(phone.find({{"text", "百度"}, {"visible", true}}).at(0)["style"], "light");
}

TEST(SearchMenu, IsEmptyWhenNothingIsSwitchedOn) {
    Search phone;
    phone.press("链接跳转", 0.3);
    phone.advance(1);
    EXPECT_EQ(phone.find({{"class", "UITableView"}, {"visible", true}}).size(), 1U);
    EXPECT_TRUE(phone.find({{"class", "UITableViewCell"}}).empty());
}

TEST(WebPreview, LoadsThePageTwiceAndCloses) {
    Search phone;
    phone.copy("a.example/b");
    phone.panel("goyulan");
    phone.advance(1);
    const auto loads = phone.events("webLoad");
    ASSERT_EQ(loads.size(), 2U);
    EXPECT_EQ(loads[1]["url"], "https://a.example/b");
    EXPECT_EQ(loads[0]["headers"].value("Cache-Control", ""), "");
    EXPECT_EQ(loads[1]["headers"].value("Cache-Control", ""), "no-cache");
    const Json page = phone.find({{"class", "WKWebView"}, {"visible", true}}).at(0);
    EXPECT_EQ(page["rect"][2], 390);
    phone.tap("关闭预览");
    phone.advance(1);
    EXPECT_TRUE(phone.find({{"class", "WKWebView"}, {"visible", true}}).empty());
    EXPECT_EQ(phone.result({{"do", "screens"}}).size(), 1U);
    EXPECT_EQ(phone.panel("webView"), nullptr);
    EXPECT_EQ(phone.panel("webViewController"), nullptr);
    phone.copy("中 文");
    phone.panel("goyulan");
    EXPECT_TRUE(phone.events("webLoad").empty()) << "no URL";
}

TEST(WebPreview, OfAnotherPageIsTheSameOne) {
    Search phone;
    for (const char* const page : {"first.example", "second.example"}) {
        phone.copy(page);
        phone.panel("goyulan");
        phone.advance(1);
    }
    EXPECT_EQ(phone.events("webLoad").back()["url"], "https://second.example");
    EXPECT_EQ(phone.result({{"do", "screens"}}).size(), 2U);
    phone.tap("关闭预览");
    phone.advance(1);
    EXPECT_EQ(phone.result({{"do", "screens"}}).size(), 1U);
    EXPECT_EQ(phone.panel("webViewController"), nullptr);
    phone.panel("goyulan");
    phone.advance(1);
    EXPECT_EQ(phone.result({{"do", "screens"}}).size(), 2U) << "a new one when that has gone";
}

TEST(PinyinAlert, StopsReadingWhenItIsClosed) {
    Search phone;
    phone.copy("一段很长很长的文字，读起来要花许多时间，直到有人把窗口关上");
    phone.press("分享文字", 0.3);
    phone.advance(1);
    phone.choose("朗读文字");
    phone.press("分享文字", 0.3);
    phone.advance(1);
    EXPECT_TRUE(phone.events("speechStopped").empty());
    phone.choose("关闭窗口");
    EXPECT_EQ(phone.events("speechStopped").size(), 1U);
    EXPECT_EQ(phone.alert(), nullptr) << "a press shows one alert";
}

TEST(PinyinAlert, OffersBothTextsCodingAndSpeech) {
    Search phone;
    phone.copy("中文 abc\n好");
    phone.press("分享文字", 0.3);
    phone.advance(1);
    const Json alert = phone.alert();
    EXPECT_EQ(alert["title"], "文字转拼音结果");
    EXPECT_EQ(alert["message"], "\n中文 abc\n好\n\nzhong wen abc\nhao");
    std::vector<std::string> titles;
    for (const Json& action : alert["actions"]) {
        titles.push_back(action["title"]);
    }
    EXPECT_EQ(titles, (std::vector<std::string>{"URL编码", "URL解码", "复制全部", "复制原文",
                                                "复制拼音", "朗读文字", "关闭窗口"}));
    phone.choose("朗读文字");
    EXPECT_EQ(phone.events("speech").size(), 2U) << "one a line";
    const std::pair<const char*, const char*> copied[]{
        {"URL编码", "%E4%B8%AD%20%25"}, {"URL解码", "中 %"}, {"复制原文", "中 %"}};
    for (const auto& [title, text] : copied) {
        phone.copy("中 %");
        phone.press("分享文字", 0.3);
        phone.advance(1);
        phone.choose(title);
        if (title != std::string("URL解码")) {
            EXPECT_EQ(phone.pasteboard(), text);
        }
    }
    phone.copy(nullptr);
    phone.press("分享文字", 0.3);
    phone.advance(1);
    EXPECT_EQ(phone.alert(), nullptr) << "nothing to convert";
}

} // namespace
