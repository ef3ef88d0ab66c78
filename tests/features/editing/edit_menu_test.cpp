// The edit menu's commands, on text views and text fields of an application.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace {

using tests::Json;
using Titles = std::vector<std::string>;

const Titles switches{"全选代码", "注释代码", "全部储存", "删除选中", "查找文本",
                      "复制文本", "粘贴文本", "剪切文本", "分享文本", "跳转开头",
                      "跳转结尾", "翻译文本", "朗读文本", "字转拼音"};
const Titles titles{"全选", "注释", "储存", "删选", "查找", "复制", "粘贴",
                    "剪切", "分享", "开头", "结尾", "翻译", "朗读", "拼音"};

class EditMenu : public testing::TestWithParam<const char*> {
protected:
    /// A text view or field with that text, of which a part is selected.
    Json input(const char* cls, const std::string& text, long location, long length) {
        const Json made = phone.make(cls, {20, 100, 300, 200});
        phone.message(phone.window(), "addSubview:", {made});
        phone.message(made, "setText:", {text});
        phone.message(made, "becomeFirstResponder");
        select(made, location, length);
        return made;
    }
    void select(const Json& input, long location, long length) {
        const Json start = phone.message(input, "beginningOfDocument");
        const auto position = [&](long offset) {
            return phone.message(input, "positionFromPosition:offset:", {start, offset});
        };
        phone.message(input, "setSelectedTextRange:",
                      {phone.message(input, "textRangeFromPosition:toPosition:",
                                     {position(location), position(location + length)})});
    }
    std::string selected(const Json& input) {
        return phone.message(input, "textInRange:", {phone.message(input, "selectedTextRange")});
    }
    Titles menu() { return phone.result({{"do", "menu"}}); }
    /// The titles in an order of their own: the menu's is nobody's promise.
    Titles sortedMenu() {
        Titles shown = menu();
        std::ranges::sort(shown);
        return shown;
    }
    void run(const Json& input, const std::string& command) {
        phone.message(input, command, {nullptr});
    }
    bool isShown(const std::string& text) {
        return !phone.find({{"text", text}, {"visible", true}}).empty();
    }

    tests::Phone phone{{"--app", "notes"}};
};

INSTANTIATE_TEST_SUITE_P(, EditMenu, testing::Values("UITextView", "UITextField"));

TEST_P(EditMenu, OffersWhatIsSwitchedOnBesideTheSystemsItems) {
    input(GetParam(), "一段文字", 0, 2);
    const Titles system = sortedMenu();
    phone.turnOn(switches);
    Titles all = system;
    all.insert(all.end(), titles.begin(), titles.end());
    std::ranges::sort(all);
    EXPECT_EQ(sortedMenu(), all);
    EXPECT_EQ(sortedMenu(), all) << "a second time";
    phone.set({{"关闭菜单", true}});
    Titles own = titles;
    std::ranges::sort(own);
    EXPECT_EQ(sortedMenu(), own);
}

TEST_P(EditMenu, IsEmptyWhenEverythingIsSwitchedOff) {
    input(GetParam(), "一段文字", 0, 2);
    phone.turnOn({"关闭菜单"});
    EXPECT_EQ(menu(), Titles{});
}

TEST_P(EditMenu, LeavesItemsOfTheApplicationAlone) {
    const Json view = input(GetParam(), "一段文字", 0, 2);
    const Json item =
        phone.message(phone.message({{"class", "UIMenuItem"}}, "alloc"),
                      "initWithTitle:action:", {"复制", {{"selector", "resignFirstResponder"}}});
    const Json controller = phone.message({{"class", "UIMenuController"}}, "sharedMenuController");
    phone.message(controller, "setMenuItems:", {Json::array({item})});
    phone.turnOn({"复制文本"});
    phone.message(controller, "update");
    const Json items = phone.message(controller, "menuItems");
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(phone.message(items[0], "action"), (Json{{"selector", "resignFirstResponder"}}));
}

TEST_P(EditMenu, CopiesCutsPastesAndDeletesTheSelection) {
    const Json view = input(GetParam(), "你好世界", 1, 2);
    run(view, "copyText:");
    EXPECT_EQ(phone.pasteboard(), "好世");
    phone.copy("before");
    run(view, "cutText:");
    EXPECT_EQ(phone.pasteboard(), "好世");
    EXPECT_EQ(phone.message(view, "text"), "你界");
    run(view, "pasteText:");
    EXPECT_EQ(phone.message(view, "text"), "你好世界");
    phone.copy(nullptr);
    run(view, "pasteText:");
    EXPECT_EQ(phone.message(view, "text"), "你好世界") << "nothing to paste";
    select(view, 0, 3);
    run(view, "deleteSelectedText:");
    EXPECT_EQ(phone.message(view, "text"), "界");
    run(view, "deleteSelectedText:");
    EXPECT_EQ(phone.message(view, "text"), "界") << "a caret selects nothing";
    run(view, "copyText:");
    EXPECT_EQ(phone.pasteboard(), "");
    run(view, "zkselectAllText:");
    EXPECT_EQ(selected(view), "界");
}

TEST_P(EditMenu, StoresAllAndSaysSo) {
    const Json view = input(GetParam(), "全部文字", 1, 1);
    run(view, "selectAllAndCopy:");
    EXPECT_EQ(selected(view), "全部文字");
    EXPECT_EQ(phone.pasteboard(), "全部文字");
    const Json toast = phone.find({{"text", "QF：已全选且写入粘贴板❗️"}}).at(0);
    const bool isField = GetParam() == std::string("UITextField");
    EXPECT_EQ(toast["rect"], isField ? Json({60, 402, 260, 40}) : Json({65, 362, 260, 40}));
    phone.advance(1.5);
    EXPECT_TRUE(isShown("QF：已全选且写入粘贴板❗️"));
    phone.advance(0.2);
    EXPECT_FALSE(isShown("QF：已全选且写入粘贴板❗️"));
}

TEST_P(EditMenu, CommentsTheSelectionOut) {
    const Json view = input(GetParam(), "xabcy", 1, 3);
    run(view, "addComment:");
    const bool isField = GetParam() == std::string("UITextField");
    if (!isField) {
        EXPECT_EQ(phone.message(view, "text"), "x\n/*\nabc\n*/\ny");
        EXPECT_EQ(selected(view), "\n/*\nabc\n*/\n");
    } else {
        EXPECT_NE(phone.message(view, "text"), "xabcy");
    }
    const Json commented = phone.message(view, "text");
    select(view, 0, 0);
    run(view, "addComment:");
    EXPECT_EQ(phone.message(view, "text"), commented) << "nothing is selected";
}

TEST_P(EditMenu, ReadsTheSelectionAloudInPlaceOfWhatIsBeingRead) {
    const Json view = input(GetParam(), "一段很长的文字", 2, 2);
    run(view, "Readingtext:");
    select(view, 0, 1);
    run(view, "Readingtext:");
    const auto spoken = phone.events("speech");
    std::vector<std::string> texts;
    for (const Json& event : spoken) {
        texts.push_back(event.value("text", ""));
    }
    EXPECT_TRUE(std::ranges::count(texts, "很长") > 0 && std::ranges::count(texts, "一") > 0)
        << Json(spoken);
    select(view, 1, 0);
    run(view, "Readingtext:");
    EXPECT_TRUE(phone.events("speech").empty());
}

TEST_P(EditMenu, TranslatesTheSelection) {
    phone.set({{"百度id", "desktop"}, {"百度key", "desktop-key"}});
    const Json view = input(GetParam(), "say hello now", 4, 5);
    run(view, "Translatetext:");
    phone.result({{"do", "wait"}, {"for", {{"text", "翻译结果"}}}, {"seconds", 10}});
    EXPECT_EQ(phone.alert()["message"], "你好");
}

TEST_P(EditMenu, ShowsThePinyinOfTheSelection) {
    const Json view = input(GetParam(), "我说中文", 2, 2);
    run(view, "pinyin:");
    phone.advance(1);
    const Json alert = phone.alert();
    EXPECT_EQ(alert["title"], "文字转拼音结果");
    EXPECT_EQ(alert["message"], "\n中文\n\nzhong wen");
    EXPECT_EQ(phone.alertActions(), (Titles{"复制全部", "复制原文", "复制拼音", "关闭窗口"}));
    phone.choose("复制全部");
    EXPECT_EQ(phone.pasteboard(), "中文\n\nzhong wen");
}

TEST_P(EditMenu, SharesTheSelectionFromTheNextController) {
    const Json view = input(GetParam(), "分享这些", 2, 2);
    run(view, "shareText:");
    phone.advance(1);
    EXPECT_EQ(phone.result({{"do", "screens"}}).size(), 1U) << "a view of the window has none";
    const Json root = phone.message(phone.message(phone.window(), "rootViewController"), "view");
    phone.message(root, "addSubview:", {view});
    phone.message(view, "becomeFirstResponder");
    select(view, 2, 2);
    run(view, "shareText:");
    phone.advance(1);
    EXPECT_EQ(phone.result({{"do", "screens"}}).size(), 2U);
}

TEST_P(EditMenu, DoesNothingOnOtherResponders) {
    const Json label = phone.make("UILabel");
    EXPECT_EQ(phone.message(label,
                            "canPerformAction:withSender:", {{{"selector", "copyText:"}}, nullptr}),
              true);
    EXPECT_EQ(phone.message(label, "canPerformAction:withSender:",
                            {{{"selector", "highlightAndScrollToText:"}}, nullptr}),
              true)
        << "every responder has the method";
    phone.copy("before");
    run(label, "copyText:");
    EXPECT_EQ(phone.pasteboard(), "before");
}

class EditMenuItems : public testing::Test {
protected:
    Json item(const Json& title, const std::string& action) {
        return phone.message(phone.message({{"class", "UIMenuItem"}}, "alloc"),
                             "initWithTitle:action:", {title, {{"selector", action}}});
    }
    /// The actions under their titles after an update of those items.
    std::multimap<Json, Json> updated(const Json& items) {
        phone.message(controller, "setMenuItems:", {items});
        phone.message(controller, "update");
        std::multimap<Json, Json> actions;
        for (const Json& shown : phone.message(controller, "menuItems")) {
            actions.emplace(phone.message(shown, "title"),
                            phone.message(shown, "action")["selector"]);
        }
        return actions;
    }

    tests::Phone phone{{"--app", "notes"}};
    Json controller = phone.message({{"class", "UIMenuController"}}, "sharedMenuController");
};

TEST_F(EditMenuItems, ComeWhenAResponderIsAskedToBeTheFirst) {
    phone.turnOn({"复制文本"});
    const Json view = phone.make("UIView");
    EXPECT_EQ(phone.message(view, "canBecomeFirstResponder"), false);
    EXPECT_EQ(phone.message(controller, "menuItems").size(), 1U);
}

TEST_F(EditMenuItems, AreNoneAtFirst) {
    EXPECT_EQ(updated(nullptr), (std::multimap<Json, Json>{}));
    EXPECT_EQ(phone.message(controller, "menuItems"), Json::array());
}

TEST_F(EditMenuItems, OfOneTitleAreOneTheLast) {
    const Json own = Json::array({item("甲", "copy:"), item("乙", "cut:"), item("甲", "paste:")});
    EXPECT_EQ(updated(own), (std::multimap<Json, Json>{{"甲", "paste:"}, {"乙", "cut:"}}));
    phone.turnOn({"剪切文本"});
    EXPECT_EQ(updated(own),
              (std::multimap<Json, Json>{{"甲", "paste:"}, {"乙", "cut:"}, {"剪切", "cutText:"}}))
        << "one goes and one comes";
}

TEST_F(EditMenuItems, NeedNoTitle) {
    phone.turnOn({"剪切文本"});
    const Json own = Json::array({item(nullptr, "copy:"), item("", "paste:")});
    EXPECT_EQ(updated(own), (std::multimap<Json, Json>{{"", "paste:"}, {"剪切", "cutText:"}}));
}

class Finding : public EditMenu {};
INSTANTIATE_TEST_SUITE_P(, Finding, testing::Values("UITextView"));

TEST_P(Finding, HighlightsTheFirstOccurrence) {
    const Json view = input(GetParam(), "start 词 and 词 again", 0, 0);
    run(view, "showSearchAlert:");
    phone.advance(1);
    const Json alert = phone.alert();
    EXPECT_EQ(alert["title"], "查找文本");
    EXPECT_EQ(alert["actions"][0]["title"], "确定");
    EXPECT_EQ(alert["actions"][1]["title"], "取消");
    phone.choose("确定", {"词"});
    const auto colourAt = [&](long unit) {
        const Json text = phone.message(view, "attributedText");
        return phone.message(text, "attributesAtIndex:effectiveRange:", {unit, nullptr}).dump();
    };
    EXPECT_NE(colourAt(6), colourAt(0)) << "the first is highlighted";
    EXPECT_EQ(colourAt(12), colourAt(0)) << "the second is not";
    phone.message(view, "highlightAndScrollToText:", {"again"});
    EXPECT_EQ(colourAt(6), colourAt(0)) << "the former highlight is gone";
    EXPECT_NE(colourAt(14), colourAt(0));
}

TEST_P(Finding, ScrollsTheFoundTextToTheMiddle) {
    std::string text;
    for (int line = 0; line < 200; ++line) {
        text += "line " + std::to_string(line) + "\n";
    }
    const Json view = input(GetParam(), text, static_cast<long>(text.find("line 150")), 0);
    phone.message(view, "highlightAndScrollToText:", {"line 150"});
    phone.advance(1);
    const Json caret = phone.message(phone.message(view, "selectedTextRange"), "start");
    const double top = phone.message(view, "caretRectForPosition:", {caret})["rect"][1];
    const double scrolled = phone.message(view, "contentOffset")["point"][1];
    EXPECT_NEAR(top - scrolled, 100, 15); // half of the view's height
}

TEST_P(Finding, SaysWhatIsNotThere) {
    const Json view = input(GetParam(), "text", 0, 0);
    for (const Json& sought : {Json("TEXT"), Json(""), Json(nullptr)}) {
        phone.message(view, "highlightAndScrollToText:", {sought});
        EXPECT_TRUE(isShown("QF：未找到文本内容❗️")) << sought;
        phone.advance(2);
        EXPECT_FALSE(isShown("QF：未找到文本内容❗️"));
    }
}

TEST_P(Finding, JumpsToBothEnds) {
    std::string text;
    for (int line = 0; line < 200; ++line) {
        text += "line " + std::to_string(line) + "\n";
    }
    const Json view = input(GetParam(), text, 0, 0);
    run(view, "scrollToEnd:");
    phone.advance(1);
    EXPECT_GT(phone.message(view, "contentOffset")["point"][1], 1000);
    run(view, "scrollToBeginning:");
    phone.advance(1);
    EXPECT_LE(phone.message(view, "contentOffset")["point"][1], 0);
    phone.message(view, "highlightAndScrollToText:", {"line 150\n"});
    phone.advance(1);
    EXPECT_GT(phone.message(view, "contentOffset")["point"][1], 1000) << "to the middle";
}

} // namespace
