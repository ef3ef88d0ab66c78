// Typing and choosing from the edit menu, as a script does it.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

#include <chrono>

namespace {

using nlohmann::json;

/// With the library loaded, and without.
class TypingCommands : public testing::TestWithParam<bool> {
protected:
    TypingCommands() {
        view = host.message({{"class", "UITextView"}}, "new");
        host.message(view, "setFrame:", {{{"rect", {20, 200, 300, 100}}}});
        host.message(host.result({{"do", "tree"}}).at(0), "addSubview:", {view});
    }
    json text() { return host.message(view, "text"); }

    support::HostProcess host = GetParam() ? tests::hostWith({"--automation", "--app", "plain"})
                                           : tests::automatedHost({"--app", "plain"});
    json view;
};

TEST_P(TypingCommands, TextGoesWhereTheFocusIs) {
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

TEST_P(TypingCommands, AHundredThousandCharactersTakeFiveSecondsAtMost) {
    constexpr std::size_t many = 100'000;
    std::string typed;
    for (std::size_t characters = 0; characters < many; characters += 10) {
        typed += characters % 100 == 0 ? "A line 你\n" : "words 😀é, ";
    }
    host.result({{"do", "tap"}, {"on", view}});
    const auto start = std::chrono::steady_clock::now();
    host.result({{"do", "type"}, {"text", typed}});
    EXPECT_LE(std::chrono::steady_clock::now() - start,
              std::chrono::seconds(5) * support::patience());
    EXPECT_EQ(text(), typed);
}

TEST_P(TypingCommands, KeysMoveSelectAndErase) {
    host.message(view, "becomeFirstResponder");
    host.result({{"do", "type"}, {"text", "one two"}});
    const auto press = [this](json request) {
        request["do"] = "key";
        host.result(request);
    };
    press({{"name", "move"}, {"to", "wordLeft"}, {"select", true}});
    EXPECT_EQ(host.message(view, "selectedRange"), (json{{"range", {4, 3}}}));
    press({{"name", "cut"}});
    EXPECT_EQ(host.result({{"do", "pasteboard"}}), "two");
    press({{"name", "move"}, {"to", "start"}});
    press({{"name", "paste"}});
    EXPECT_EQ(text(), "twoone ");
    press({{"name", "delete"}, {"to", "end"}});
    EXPECT_EQ(text(), "two");
    press({{"name", "undo"}});
    press({{"name", "undo"}});
    EXPECT_EQ(text(), "one ");
    press({{"name", "redo"}});
    EXPECT_EQ(text(), "twoone ");
    press({{"name", "selectAll"}});
    EXPECT_EQ(host.message(view, "selectedRange"), (json{{"range", {0, 7}}}));
    press({{"name", "redo"}});
    EXPECT_EQ(text(), "two");
    EXPECT_EQ(host.error({{"do", "key"}, {"name", "redo"}}), "there is nothing to redo now");
}

TEST_P(TypingCommands, TextCanBeInsertedAsAWhole) {
    const json field = host.message({{"class", "UITextField"}}, "new");
    host.message(host.result({{"do", "tree"}}).at(0), "addSubview:", {field});
    host.message(field, "becomeFirstResponder");
    host.result({{"do", "type"}, {"text", "two\nlines"}, {"whole", true}});
    EXPECT_EQ(host.message(field, "text"), "two lines") << "no return key is pressed";
}

TEST_P(TypingCommands, TheKeyboardIsAwayWhileThereIsARealOne) {
    const auto keyboard = [this](json request = json::object()) {
        request["do"] = "keyboard";
        return host.result(request);
    };
    EXPECT_EQ(keyboard(), (json{{"hardware", false}, {"height", 0}}));
    host.message(view, "becomeFirstResponder");
    EXPECT_EQ(keyboard(), (json{{"hardware", false}, {"height", 336}}));
    EXPECT_EQ(keyboard({{"hardware", true}}), (json{{"hardware", true}, {"height", 0}}));
    host.result({{"do", "type"}, {"text", "x"}});
    EXPECT_EQ(text(), "x");
    EXPECT_EQ(keyboard({{"hardware", false}}), (json{{"hardware", false}, {"height", 336}}));
}

TEST_P(TypingCommands, TheMenuOffersWhatCanBeDone) {
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

TEST_P(TypingCommands, BadArgumentsAreRefused) {
    host.message(view, "becomeFirstResponder");
    for (const json& request : std::vector<json>{
             {{"do", "type"}},
             {{"do", "type"}, {"text", 1}},
             {{"do", "type"}, {"text", "x"}, {"compose", "n"}},
             {{"do", "type"}, {"text", "x"}, {"compose", {1}}},
             {{"do", "key"}, {"name", "escape"}},
             {{"do", "key"}, {"name", "move"}},
             {{"do", "key"}, {"name", "move"}, {"to", "there"}},
             {{"do", "key"}, {"name", "move"}, {"to", "left"}, {"select", 1}},
             {{"do", "key"}, {"name", "copy"}},
             {{"do", "keyboard"}, {"hardware", "yes"}},
             {{"do", "menu"}, {"choose", 1}},
         }) {
        EXPECT_NE(host.error(request), "") << request;
    }
    EXPECT_EQ(text(), "");
}

TEST_P(TypingCommands, ViewsAndFieldsAnswerForActions) {
    const json field = host.message({{"class", "UITextField"}}, "new");
    for (const json& input : {view, field}) {
        const auto can = [&](const char* action) {
            return host.message(input,
                                "canPerformAction:withSender:", {{{"selector", action}}, nullptr});
        };
        host.message(input, "setText:", {"words"});
        EXPECT_EQ(can("selectAll:"), true);
        EXPECT_EQ(can("cut:"), false);
        EXPECT_EQ(can("paste:"), false);
        host.result({{"do", "pasteboard"}, {"set", "copied"}});
        EXPECT_EQ(can("paste:"), true);
        host.result({{"do", "pasteboard"}, {"set", nullptr}});
    }
}

INSTANTIATE_TEST_SUITE_P(Library, TypingCommands, testing::Bool(),
                         [](const auto& loaded) { return loaded.param ? "Loaded" : "Absent"; });

} // namespace
