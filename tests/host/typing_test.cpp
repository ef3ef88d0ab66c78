// Typing and choosing from the edit menu, as a script does it.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;

class TypingCommands : public testing::Test {
protected:
    TypingCommands() {
        view = host.message({{"class", "UITextView"}}, "new");
        host.message(view, "setFrame:", {{{"rect", {20, 200, 300, 100}}}});
        host.message(host.result({{"do", "tree"}}).at(0), "addSubview:", {view});
    }
    json text() { return host.message(view, "text"); }

    support::HostProcess host = tests::automatedHost({"--app", "plain"});
    json view;
};

TEST_F(TypingCommands, TextGoesWhereTheFocusIs) {
    EXPECT_NE(host.error({{"do", "type"}, {"text", "x"}}), "");
    host.result({{"do", "tap"}, {"on", view}});
    host.result({{"do", "type"}, {"text", "Hi 😀"}});
    host.result({{"do", "type"}, {"text", "你"}, {"compose", {"n", "ni"}}});
    EXPECT_EQ(text(), "Hi 😀你");
    host.result({{"do", "key"}, {"name", "delete"}});
    host.result({{"do", "key"}, {"name", "delete"}});
    host.result({{"do", "key"}, {"name", "return"}});
    EXPECT_EQ(text(), "Hi \n");
    host.result({{"do", "key"}, {"name", "hide"}});
    EXPECT_EQ(host.message(view, "isFirstResponder"), false);
    EXPECT_NE(host.error({{"do", "key"}, {"name", "delete"}}), "");
    EXPECT_NE(host.error({{"do", "menu"}}), "");
}

TEST_F(TypingCommands, TheMenuOffersWhatCanBeDone) {
    host.message(view, "becomeFirstResponder");
    EXPECT_EQ(host.result({{"do", "menu"}}), json::array());
    host.result({{"do", "type"}, {"text", "some words"}});
    EXPECT_EQ(host.result({{"do", "menu"}}), (json{"选择", "全选"}));
    host.result({{"do", "menu"}, {"choose", "选择"}});
    EXPECT_EQ(host.message(view, "selectedRange"), (json{{"range", {5, 5}}}));
    host.result({{"do", "menu"}, {"choose", "剪切"}});
    EXPECT_EQ(text(), "some ");
    EXPECT_EQ(host.result({{"do", "pasteboard"}}), "words");
    host.result({{"do", "menu"}, {"choose", "粘贴"}});
    EXPECT_EQ(text(), "some words");
    EXPECT_NE(host.error({{"do", "menu"}, {"choose", "拷贝"}}), "");
    const json shared = host.message({{"class", "UIMenuController"}}, "sharedMenuController");
    EXPECT_EQ(host.message(shared, "isMenuVisible"), false);
}

TEST_F(TypingCommands, BadArgumentsAreRefused) {
    host.message(view, "becomeFirstResponder");
    for (const json& request : std::vector<json>{
             {{"do", "type"}},
             {{"do", "type"}, {"text", 1}},
             {{"do", "type"}, {"text", "x"}, {"compose", "n"}},
             {{"do", "type"}, {"text", "x"}, {"compose", {1}}},
             {{"do", "key"}, {"name", "escape"}},
             {{"do", "menu"}, {"choose", 1}},
         }) {
        EXPECT_NE(host.error(request), "") << request;
    }
    EXPECT_EQ(text(), "");
}

} // namespace
