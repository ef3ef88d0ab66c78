// The playground: its fields, its addresses and its list, used by fingers and keys.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;

class Playground : public testing::Test {
protected:
    void tap(const json& where) {
        host.result({{"do", "tap"}, {"on", found(where).at(0)}});
        host.result({{"do", "advance"}, {"seconds", 1}}); // until a screen has slid in
    }
    void type(const char* text) { host.result({{"do", "type"}, {"text", text}}); }
    void returnKey() { host.result({{"do", "key"}, {"name", "return"}}); }
    json found(json where) {
        where["visible"] = true;
        return host.result({{"do", "find"}, {"where", where}});
    }
    json events(const char* kind) {
        json some = json::array();
        for (const json& event : host.result({{"do", "events"}})) {
            if (event.at("kind") == kind) {
                some.push_back(event);
            }
        }
        return some;
    }
    json field(const char* placeholder) {
        for (const json& one : found({{"class", "UITextField"}})) {
            if (one.at("placeholder") == placeholder) {
                return one;
            }
        }
        return nullptr;
    }

    support::HostProcess host = tests::automatedHost({"--app", "playground"});
};

TEST_F(Playground, ItsFieldsTakeText) {
    host.result({{"do", "tap"}, {"on", field("姓名 Name")}});
    type("Ann");
    EXPECT_EQ(field("姓名 Name").at("text"), "Ann");
    tap({{"class", "UITextView"}});
    type("more");
    EXPECT_NE(found({{"class", "UITextView"}}).at(0).at("text").get<std::string>().find("more"),
              std::string::npos);
}

TEST_F(Playground, ItsAddressesAreOpenedInEachWay) {
    tap({{"text", "https://www.example.com/news"}});
    EXPECT_EQ(events("openURL").at(0).at("url"), "https://www.example.com/news");
    tap({{"text", "https://files.example/"}});
    EXPECT_EQ(events("webLoad").at(0).at("url"), "https://files.example/");
    EXPECT_EQ(found({{"class", "WKWebView"}}).size(), 1U);
}

TEST_F(Playground, AWrittenAddressIsOpened) {
    host.result({{"do", "tap"}, {"on", field("网址，回车打开 Address")}});
    type("nonsense");
    returnKey();
    EXPECT_EQ(events("webLoad"), json::array());
    host.result({{"do", "tap"}, {"on", field("网址，回车打开 Address")}});
    host.message(field("网址，回车打开 Address"), "setText:", {"https://www.example.com/a"});
    returnKey();
    EXPECT_EQ(events("webLoad").at(0).at("url"), "https://www.example.com/a");
}

TEST_F(Playground, ItsListGrowsAndShrinks) {
    const json things = found({{"class", "UITableView"}}).at(0);
    host.message(things, "setContentOffset:", {{{"point", {0, 500}}}});
    host.result({{"do", "advance"}, {"seconds", 1}});
    host.result({{"do", "tap"}, {"on", field("新项目，回车添加 New item")}});
    type("tea");
    returnKey();
    EXPECT_EQ(found({{"text", "tea"}}).size(), 1U);
    EXPECT_EQ(found({{"text", "✓"}}).size(), 1U);
    tap({{"text", "hello"}});
    EXPECT_EQ(found({{"text", "✓"}}).size(), 2U);
    host.result({{"do", "swipe"}, {"on", found({{"text", "hello"}}).at(0)}, {"choose", "删除"}});
    host.result({{"do", "advance"}, {"seconds", 1}});
    EXPECT_EQ(found({{"text", "hello"}}), json::array());
    EXPECT_EQ(found({{"text", "tea"}}).size(), 1U);
}

} // namespace
