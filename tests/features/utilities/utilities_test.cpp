// The list of utilities, and the tools that show something.
#include "tests/features/utilities/utilities_phone.hpp"

#include <fstream>

namespace {

using tests::Json;

class UtilitiesList : public tests::Utilities {
protected:
    Json visible(const Json& where) {
        Json wanted = where;
        wanted["visible"] = true;
        return phone.find(wanted);
    }
    void press(const std::string& title) {
        phone.tap(visible({{"title", title}}).at(0));
        phone.advance(1);
    }
    std::vector<double> frameOf(const std::string& property) {
        return phone.message(phone.message(list, property), "frame")["rect"];
    }
};

TEST_F(UtilitiesList, ShowsItsTwelveRows) {
    open();
    const Json titles = phone.message(list, "menuData");
    ASSERT_EQ(titles.size(), 12U);
    EXPECT_EQ(titles.front(), "json排版");
    EXPECT_EQ(titles.back(), "自带输入法批量导出词库");
    EXPECT_EQ(phone.message(list, "preferredContentSize")["size"], (Json{140, 528}));
    EXPECT_EQ(phone.message(list, "title"), "功能列表-QF");
    const Json row = visible({{"text", "BASE64加解密"}}).at(0);
    EXPECT_EQ(phone.message(row, "adjustsFontSizeToFitWidth"), true);
    EXPECT_EQ(phone.message(list, "adaptivePresentationStyleForPresentationController:", {nullptr}),
              -1);
}

TEST_F(UtilitiesList, IsOpenedByHoldingTheToolboxsButton) {
    const Json toolbox = phone.message({{"class", "ZKFloatingViewController"}}, "new");
    phone.message(phone.window(), "addSubview:", {phone.message(toolbox, "view")});
    phone.message(phone.window(), "layoutIfNeeded");
    phone.press(visible({{"title", "U码转换"}}).at(0), 0.3);
    phone.advance(1);
    EXPECT_EQ(screens().back(), "UmacaTableViewController");
    phone.tap(visible({{"text", "BASE64加解密"}}).at(0));
    phone.advance(1);
    EXPECT_TRUE(isListGone());
    EXPECT_EQ(visible({{"title", "加密"}}).size(), 1U);
}

TEST_F(UtilitiesList, GoesForATitleThatItDoesNotKnow) {
    choose("没有");
    EXPECT_TRUE(isListGone());
    EXPECT_EQ(screens().size(), 1U);
}

struct Page {
    const char* title;
    const char* path; ///< with which its address ends
};

TEST_F(UtilitiesList, ShowsPagesUntilTheyAreClosed) {
    const Page pages[]{
        {"json排版", "/jsonviewernew/"},
        {"多进制转换", "/"},
        {"RGB颜色库", "/"},
        {"时间戳转换", "/tools/index?name=timestamptrans"},
        {"Unicode转换", "/front-end/3602/"},
    };
    for (const Page& page : pages) {
        choose(page.title);
        const auto loads = phone.events("webLoad");
        ASSERT_EQ(loads.size(), 1U) << page.title;
        const std::string url = loads[0]["url"];
        EXPECT_TRUE(url.starts_with("https://") && url.ends_with(page.path)) << url;
        EXPECT_TRUE(isListGone());
        EXPECT_EQ(frameOf("closeButton"), (std::vector<double>{150, 669, 90, 40}));
        EXPECT_EQ(visible({{"class", "WKWebView"}}).at(0)["frame"], (Json{0, 10, 390, 710}));
        press("关闭网页");
        EXPECT_EQ(screens().size(), 1U) << page.title;
    }
}

TEST_F(UtilitiesList, OpensTheSiteOfTools) {
    choose("多功能代码站点");
    EXPECT_EQ(screens().back(), "SFSafariViewController");
    EXPECT_EQ(phone.events("webLoad").size(), 1U);
}

TEST_F(UtilitiesList, LetsItsScreensGo) {
    choose("BASE64加解密");
    press("关闭窗口");
    phone.advance(1);
    EXPECT_TRUE(phone.message(list, "webViewController").is_null()) << "nobody keeps it";
}

TEST_F(UtilitiesList, OffersPathsOfTheFileManager) {
    choose("Filza常用路径");
    const Json sheet = phone.alert();
    EXPECT_EQ(sheet["title"], "常用路径");
    EXPECT_EQ(sheet["message"], "选择一个路径");
    ASSERT_EQ(sheet["actions"].size(), 10U);
    EXPECT_EQ(sheet["actions"].back(), (Json{{"title", "取消"}, {"style", "cancel"}}));
    phone.choose("dpkg-无根路径");
    EXPECT_EQ(phone.events("openURL").at(0)["url"], "filza:///var/jb/Library/dpkg/");
    EXPECT_TRUE(isListGone());
}

class Base64 : public UtilitiesList {
protected:
    Base64() { choose("BASE64加解密"); }
    Json text(const std::string& property) { return phone.message(view(property), "text"); }
    Json view(const std::string& property) { return phone.message(list, property); }
    Json encoded(const std::string& plain) {
        phone.message(view("inputBase64TextView"), "setText:", {plain});
        press("加密");
        return text("outputBase64TextView");
    }
    Json decoded(const std::string& base64) {
        phone.message(view("inputBase64TextView"), "setText:", {"former"});
        phone.message(view("outputBase64TextView"), "setText:", {base64});
        press("解密");
        return text("inputBase64TextView");
    }
};

TEST_F(Base64, GoesBothWays) {
    EXPECT_EQ(encoded("Hello"), "SGVsbG8=");
    EXPECT_EQ(encoded("你好😀"), "5L2g5aW98J+YgA==");
    EXPECT_EQ(encoded(""), "");
    EXPECT_EQ(encoded(std::string(100, 'a')).get<std::string>().find('\n'), std::string::npos);
    EXPECT_EQ(decoded("SGVsbG8="), "Hello");
    EXPECT_EQ(decoded("5L2g5aW98J+YgA=="), "你好😀");
    EXPECT_EQ(decoded(""), "");
}

TEST_F(Base64, IsStrict) {
    for (const char* wrong : {"SGVsbG8", "SGVs\nbG8=", "SGVs bG8=", "SGVsbG8=\n", "SGVsbG8-", "=",
                              "SG=sbG8=", "SGVsbG8==", "/w==", "你好"}) {
        EXPECT_EQ(decoded(wrong), "") << wrong;
    }
}

TEST_F(Base64, HasItsViewsAboutTheMiddle) {
    EXPECT_EQ(frameOf("inputBase64TextView"), (std::vector<double>{12.5, -18, 365, 200}));
    const Json input = phone.message(list, "inputBase64TextView");
    EXPECT_EQ(phone.message(input, "textContainerInset")["insets"], (Json{26, 0, 8, 0}));
    EXPECT_EQ(frameOf("outputBase64TextView"), (std::vector<double>{12.5, 223.2, 365, 320}));
    EXPECT_EQ(visible({{"title", "加密"}}).at(0)["frame"], (Json{80, 187, 100, 30}));
    EXPECT_EQ(visible({{"title", "解密"}}).at(0)["frame"], (Json{210, 187, 100, 30}));
    EXPECT_EQ(frameOf("closeButton"), (std::vector<double>{150, 589, 90, 40}));
}

TEST_F(UtilitiesList, CountsSymbols) {
    choose("代码符号计数器");
    phone.message(phone.message(list, "inputdmTextView"), "setText:", {"- (void)a {\nx = 1;\n}"});
    press("统计");
    const std::string report = phone.message(phone.message(list, "outputdmTextView"), "text");
    EXPECT_TRUE(report.starts_with("全文符号数量：\n\n   { 符号有1个\n"));
    EXPECT_NE(report.find("\n方法名: `- (void)a {`\n   {  符号有1个\n"), report.npos);
    EXPECT_EQ(frameOf("outputdmTextView"), (std::vector<double>{12.5, 222, 365, 380}));
    EXPECT_TRUE(phone.message(list, "countButton").is_null());
}

TEST_F(UtilitiesList, DumpsWhatRuns) {
    choose("运行环境dump");
    const std::string classes = output("父类方法属性.txt");
    const auto described = [&classes](const std::string& name) {
        const std::size_t place = classes.find("\n" + name + "\n");
        return classes.substr(std::min(place, classes.size()),
                              classes.find("\t@superclass", place) - place);
    };
    const std::string own = described("UmacaTableViewController");
    EXPECT_NE(own.find("\n\t@property menuData\n"), own.npos);
    EXPECT_NE(own.find("\n\tviewDidLoad\n"), own.npos);
    EXPECT_NE(classes.find(own + "\t@superclass UITableViewController\n"), classes.npos);
    const std::string unused = described("HexEditorViewController");
    EXPECT_NE(unused.find("\n\tviewDidLoad\n"), unused.npos);
    const std::string images = output("动态框架信息.txt");
    EXPECT_NE(images.find("Wentra.so"), images.npos);
    EXPECT_NE(images.find("\n\n/"), images.npos);
    EXPECT_FALSE(images.ends_with("\n"));
    const std::string times = output("程序运行时长.txt");
    EXPECT_NE(times.find("Wentra.so\n启动存活时长: "), times.npos);
    EXPECT_TRUE(times.ends_with(" 秒\n\n"));
    EXPECT_EQ(screens().size(), 1U);
}

TEST_F(UtilitiesList, LeavesTheFormerDumpWhereItCannotWrite) {
    std::filesystem::remove(documents);
    std::ofstream(documents) << "no folder";
    choose("运行环境dump");
    EXPECT_EQ(support::readFile(documents), "no folder");
    EXPECT_TRUE(phone.swallowed().empty());
}

class Numbers : public UtilitiesList {
protected:
    const std::string tool = "本机所有手机号";
    const std::filesystem::path accounts = home / "Library/Preferences/com.apple.itunescloud.plist";
    void write(const std::string& bytes) {
        std::filesystem::create_directories(accounts.parent_path());
        std::ofstream(accounts, std::ios::binary) << bytes;
    }
    Json shared() {
        const auto events = phone.events("share");
        return events.size() == 1 ? events[0]["items"][0] : Json();
    }
};

TEST_F(Numbers, AreFoundInXml) {
    write("<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\"><array>"
          "<string>+8613800138000</string><integer>1700000000000</integer></array></plist>");
    choose(tool);
    EXPECT_EQ(output("A手机号码.txt"), "8613800138000\n");
    EXPECT_EQ(shared(), "8613800138000\n");
    EXPECT_FALSE(std::filesystem::exists(documents / "All_phonenumber_parsing.plist"));
    EXPECT_TRUE(isListGone());
}

TEST_F(Numbers, AreFoundInOtherFormatsByWayOfXml) {
    write("{ phone = \"8613800138000\"; }");
    choose(tool);
    EXPECT_EQ(output("A手机号码.txt"), "8613800138000\n");
    EXPECT_NE(output("All_phonenumber_parsing.plist").find("<plist"), std::string::npos);
}

TEST_F(Numbers, AreNoneWithoutAccounts) {
    choose(tool);
    EXPECT_TRUE(std::filesystem::exists(documents / "A手机号码.txt"));
    EXPECT_EQ(shared(), "");
}

TEST_F(Numbers, StayAsTheyWereWhereTheAccountsAreNoPropertyList) {
    std::ofstream(documents / "A手机号码.txt") << "former";
    write("bplist00\x01\x02\x03 8613800138000");
    choose(tool);
    EXPECT_EQ(output("A手机号码.txt"), "former");
    EXPECT_TRUE(phone.events("share").empty());
    EXPECT_TRUE(isListGone());
}

TEST(UsedPhone, HasSomethingForEachTool) {
    const support::TemporaryFolder folder;
    const std::filesystem::path home = folder.path() / "var/mobile";
    tests::Phone phone{{"--app", "plain", "--root", folder.path(), "--device-files"}};
    const Json list = phone.message({{"class", "UmacaTableViewController"}}, "new");
    for (const char* tool : {"exportSafariBookmarks", "exportKeyboardReplacements",
                             "importKeyboardReplacements", "extractNumbers"}) {
        phone.message(list, tool);
    }
    const auto output = [&](const char* name) {
        return support::readFile(home / "Documents" / name);
    };
    EXPECT_NE(output("A1-safari书签.txt").find("https://"), std::string::npos);
    EXPECT_NE(output("自带输入法批量导出词库.txt").find("你好 nh\n\n"), std::string::npos);
    EXPECT_NE(output("A手机号码.txt").find("8675526013388\n"), std::string::npos);
    EXPECT_EQ(tests::sqlite(home / "Library/KeyboardServices/TextReplacements.db",
                            "SELECT ZSHORTCUT FROM ZTEXTREPLACEMENTENTRY WHERE Z_OPT = 3"),
              "zls\nshlx\n");
}

} // namespace
