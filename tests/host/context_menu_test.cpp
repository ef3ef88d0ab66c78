// The command "context".
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using Json = nlohmann::json;
using support::HostProcess;

class ContextMenu : public testing::Test {
protected:
    ContextMenu() {
        host.result({{"do", "advance"}, {"seconds", 1}});
        const Json table = host.result({{"do", "find"}, {"where", {{"class", "UITableView"}}}})[0];
        const Json path =
            host.message({{"class", "NSIndexPath"}}, "indexPathForRow:inSection:", {0, 0});
        cell = host.message(table, "cellForRowAtIndexPath:", {path});
    }
    Json context(Json request) {
        request["do"] = "context";
        return host.result(request);
    }

    HostProcess host = tests::hostWith({"--automation", "--app", "files"});
    Json cell;
};

TEST_F(ContextMenu, StaysUntilItIsChosenFromOrPutAway) {
    EXPECT_TRUE(context(Json::object()).is_null());
    const Json menu = context({{"on", cell}});
    EXPECT_FALSE(menu["title"].get<std::string>().empty());
    EXPECT_EQ(menu["items"][1], (Json{{"title", "删除"}, {"symbol", "trash"}}));
    EXPECT_EQ(context(Json::object()), menu);
    EXPECT_EQ(context({{"choose", nullptr}}), menu);
    EXPECT_TRUE(context(Json::object()).is_null());
    context({{"on", cell}, {"choose", "复制路径"}});
    EXPECT_EQ(host.result({{"do", "pasteboard"}}).get<std::string>().find("/var/mobile/"), 0U);
    EXPECT_TRUE(context(Json::object()).is_null());
}

TEST_F(ContextMenu, BelongsToTheViewUnderAPoint) {
    const Json rect = host.result({{"do", "tree"}, {"of", cell}})["rect"];
    const Json place{rect[0].get<double>() + 50, rect[1].get<double>() + 20};
    EXPECT_EQ(context({{"at", place}, {"choose", nullptr}})["items"].size(), 12U);
    EXPECT_NE(host.error({{"do", "context"}, {"at", {380, 60}}}), "");
    EXPECT_NE(host.error({{"do", "context"}, {"at", "here"}}), "");
}

TEST_F(ContextMenu, ComesUpByAPressAndGoesByATapBesideIt) {
    host.result({{"do", "press"}, {"on", cell}, {"seconds", 0.6}});
    EXPECT_EQ(context(Json::object())["items"].size(), 12U);
    host.result({{"do", "tap"}, {"at", {380, 60}}});
    EXPECT_TRUE(context(Json::object()).is_null());
    host.result({{"do", "press"}, {"on", cell}, {"seconds", 0.6}});
    const Json row = host.result({{"do", "find"}, {"where", {{"text", "复制路径"}}}})[0];
    host.result({{"do", "tap"}, {"on", row}});
    EXPECT_TRUE(host.result({{"do", "pasteboard"}}).is_string());
}

TEST_F(ContextMenu, ScrollsWhereTheScreenIsLow) {
    host.result({{"do", "rotate"}, {"to", "landscapeLeft"}});
    host.result({{"do", "advance"}, {"seconds", 1}});
    context({{"on", cell}});
    const Json list = host.result({{"do", "find"}, {"where", {{"class", "UIScrollView"}}}}).back();
    EXPECT_LT(list["frame"][3], 390);
    host.result({{"do", "slide"}, {"path", {{100, 300}, {100, 200}, {100, 120}}}});
    EXPECT_GT(host.message(list, "contentOffset")["point"][1], 100);
    EXPECT_EQ(context(Json::object())["items"].size(), 12U); // nothing was chosen
}

TEST_F(ContextMenu, RefusesWhatIsNotThere) {
    const Json window = host.result({{"do", "tree"}})[0];
    EXPECT_NE(host.error({{"do", "context"}, {"on", window}}), "");
    EXPECT_NE(host.error({{"do", "context"}, {"choose", "删除"}}), "");
    EXPECT_NE(host.error({{"do", "context"}, {"on", cell}, {"choose", "飞"}}), "");
}

} // namespace
