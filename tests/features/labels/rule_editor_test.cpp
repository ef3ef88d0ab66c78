// The rule editor, from the long press to the changed labels.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using tests::Json;
using tests::Phone;

/// A phone with the editor open over the notes.
class RuleEditor : public testing::Test {
protected:
    void open() {
        host = phone.find({{"class", "UIStackView"}})[0];
        phone.press(host, 0.6);
        const Json found = phone.find({{"class", "UITextView"}});
        ASSERT_EQ(found.size(), 1U);
        editor = found[0];
    }
    void tapButton(const std::string& title) {
        const Json buttons = phone.find({{"title", title}});
        ASSERT_EQ(buttons.size(), 1U) << title;
        phone.tap(buttons[0]);
    }
    std::string text() { return phone.message(editor, "text").get<std::string>(); }
    void setText(const std::string& text) { phone.message(editor, "setText:", {text}); }
    void select(int location, int length) {
        phone.message(editor, "setSelectedRange:", {{{"range", {location, length}}}});
    }
    Json selection() { return phone.message(editor, "selectedRange")["range"]; }
    std::size_t editorViews() {
        return phone.find({{"class", "UITextView"}}).size() +
               phone.find({{"class", "UIButton"}}).size();
    }
    /// The colour attribute of that unit of the text, as a view shows it.
    Json colourAt(int unit) {
        const Json storage = phone.message(editor, "textStorage");
        const Json color =
            phone.message(storage, "attribute:atIndex:effectiveRange:", {"NSColor", unit, nullptr});
        const Json view = phone.make("UIView");
        phone.message(view, "setBackgroundColor:", {color});
        return phone.node(view)["backgroundColor"];
    }

    Phone phone{{"--app", "notes"}};
    Json host;
    Json editor;
};

const std::string helpEnd = "换行即可继续输入，点确定或4次换行保存且关闭弹窗。\n";

TEST_F(RuleEditor, OpensWithTheHelpAndTheStoredRules) {
    phone.saveRules("Name===名字\nhello#÷=16\n文本替换：hello===你好");
    open();
    EXPECT_TRUE(text().starts_with("\n悬浮文本替换器,"));
    EXPECT_TRUE(text().ends_with(helpEnd + "Name===名字\nhello#÷=16\n")) << text();
    EXPECT_EQ(colourAt(3), "#ff0000b3");
    const auto length = phone.message(phone.message(editor, "textStorage"), "length").get<int>();
    EXPECT_EQ(colourAt(length - 2), "#555555ff");
    EXPECT_EQ(editor["frame"], (Json{55, 83, 280, 627}));
    EXPECT_EQ(phone.message(editor, "textContainerInset")["insets"], (Json{15, 6, 6, 6}));
    EXPECT_EQ(phone.find({{"class", "UIButton"}}).size(), 17U);
    const auto frame = [this](const char* title) {
        return phone.find({{"title", title}})[0]["frame"];
    };
    EXPECT_EQ(frame("确定"), (Json{170, 738, 50, 30}));
    EXPECT_EQ(frame("上移")[1], 96);
    EXPECT_NEAR(frame("上移")[0].get<double>() + frame("上移")[2].get<double>(), 381, 1e-6);
    EXPECT_NEAR(frame("宽度")[0].get<double>(), 9, 1e-6);
    EXPECT_EQ(frame("宽度")[1], 454);
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(RuleEditor, RulesStandApartOnDemand) {
    phone.saveRules("Name===名字\nhello#÷=16");
    phone.turnOn({"kqghxs"});
    open();
    EXPECT_TRUE(text().ends_with(helpEnd + "Name===名字\n\nhello#÷=16\n\n")) << text();
}

TEST_F(RuleEditor, OpensOnlyWhereNothingElseListens) {
    const Json stack = phone.make("UIStackView", {0, 300, 200, 100});
    phone.message(stack, "addGestureRecognizer:",
                  {phone.message({{"class", "UITapGestureRecognizer"}}, "new")});
    phone.message(phone.window(), "addSubview:", {stack});
    phone.message(stack, "layoutIfNeeded");
    EXPECT_EQ(phone.node(stack)["recognizers"].size(), 1U);
    const Json other = phone.make("UIStackView", {0, 300, 200, 100});
    phone.message(other, "layoutSubviews");
    phone.message(other, "layoutSubviews");
    EXPECT_EQ(phone.node(other)["recognizers"].size(), 1U);
    EXPECT_EQ(phone.node(other)["recognizers"][0]["minimumPressDuration"], 0.5);

    phone.message(phone.window(), "addSubview:", {other});
    phone.message(other, "addSubview:", {phone.make("UITextView", {0, 0, 50, 50})});
    phone.press(Json{150, 350}, 0.6);
    EXPECT_EQ(phone.find({{"title", "确定"}}).size(), 0U) << "it has a text view of its own";
}

TEST_F(RuleEditor, NavigationBarsListenOnDemand) {
    const Json bar = phone.make("UINavigationBar");
    phone.message(bar, "layoutSubviews");
    EXPECT_EQ(phone.node(bar)["recognizers"].size(), 0U);
    phone.turnOn({"开启导航长按"});
    phone.message(bar, "layoutSubviews");
    EXPECT_EQ(phone.node(bar)["recognizers"].size(), 1U);
}

TEST_F(RuleEditor, MarkersGoBeforeTheSelection) {
    open();
    for (const auto& [title, marker] :
         std::vector<std::pair<std::string, std::string>>{{"等于", "==="},
                                                          {"大小", "#÷="},
                                                          {"透明", "#t="},
                                                          {"横向", "#x="},
                                                          {"纵向", "#y="},
                                                          {"高度", "#g="},
                                                          {"宽度", "#k="},
                                                          {"颜色", ""}}) {
        setText("你好hello");
        select(2, 3);
        tapButton(title);
        EXPECT_EQ(text(), "你好" + marker + "hello") << title;
        EXPECT_EQ(selection(), marker.empty() ? (Json{2, 3}) : (Json{5, 0})) << title;
    }
}

TEST_F(RuleEditor, AMarkerBetweenTheHalvesOfAPairLosesNothing) {
    open();
    setText("ab😀cd");
    select(3, 0);
    tapButton("等于");
    EXPECT_EQ(phone.message(editor, "text"),
              (Json{{"units", {'a', 'b', 0xD83D, '=', '=', '=', 0xDE00, 'c', 'd'}}}));
}

TEST_F(RuleEditor, TheCaretMovesByLines) {
    open();
    setText("aa\nbb\ncc\ndd\nee\nff\ngg");
    select(4, 0);
    tapButton("下移");
    EXPECT_EQ(selection(), (Json{7, 0}));
    tapButton("上移");
    EXPECT_EQ(selection(), (Json{4, 0}));
    phone.turnOn({"gbzq"});
    tapButton("下移");
    EXPECT_EQ(selection(), (Json{19, 0}));
    select(0, 0);
    tapButton("上移");
    EXPECT_EQ(selection(), (Json{0, 0}));
    select(20, 0);
    tapButton("下移");
    EXPECT_EQ(selection(), (Json{20, 0}));
}

TEST_F(RuleEditor, TheCaretsLineIsDeleted) {
    open();
    setText("one\ntwo\nthree");
    select(5, 0);
    tapButton("单删");
    EXPECT_EQ(text(), "one\nthree");
    EXPECT_EQ(selection(), (Json{4, 0}));
    tapButton("单删");
    tapButton("单删");
    EXPECT_EQ(text(), "one\n");
    select(0, 4);
    tapButton("单删");
    EXPECT_EQ(text(), "");
    tapButton("单删");
    EXPECT_EQ(text(), "");
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(RuleEditor, PagesStopAtTheContent) {
    open();
    setText("short");
    const auto top = [this] {
        return phone.message(editor, "contentOffset")["point"][1].get<double>();
    };
    tapButton("下页");
    EXPECT_LT(top(), 0);
    tapButton("上页");
    EXPECT_EQ(top(), 0);
    std::string lines;
    for (int i = 0; i < 200; ++i) {
        lines += "line\n";
    }
    setText(lines);
    tapButton("下页");
    EXPECT_EQ(top(), 627);
}

TEST_F(RuleEditor, TheWindowOfTextMovesAndZooms) {
    open();
    std::string lines;
    for (int i = 0; i < 200; ++i) {
        lines += "line\n";
    }
    setText(lines);
    const auto frame = [this] { return phone.node(editor)["frame"]; };
    phone.slide({{195, 500}, {205, 450}, {215, 400}});
    EXPECT_EQ(frame(), (Json{75, -17, 280, 627})) << "it is dragged, not scrolled";
    phone.result({{"do", "pinch"}, {"on", editor}, {"scale", 4}});
    EXPECT_NEAR(phone.node(editor)["transform"][0].get<double>(), 4, 1e-9) << "without bounds";
    phone.tap(editor, 2);
    EXPECT_FALSE(phone.node(editor).contains("transform"));
    EXPECT_EQ(phone.message(editor, "isFirstResponder"), false);
}

TEST_F(RuleEditor, TapsPlaceTheCaretAndSelectWords) {
    open();
    setText("hello#=ff0000,world");
    const double line = 83 + 15 + 7;
    phone.tap(Json{70, line});
    EXPECT_EQ(selection()[1], 0);
    EXPECT_LT(selection()[0], 5);
    phone.tap(Json{62, line});
    EXPECT_EQ(selection(), (Json{0, 0})) << "before the first character";
    phone.press(Json{70, line}, 0.7);
    EXPECT_EQ(phone.message(editor, "isFirstResponder"), true) << "a long press begins editing";
    phone.tap(Json{70, line}, 2);
    EXPECT_EQ(selection(), (Json{0, 6})) << "a word ends at delimiters only";
}

TEST_F(RuleEditor, SavingChangesTheLabels) {
    open();
    setText("a===b\n\"Close\"=\"关闭\";\ndock===码头\n");
    tapButton("确定");
    EXPECT_EQ(editorViews(), 0U);
    EXPECT_EQ(phone.label("a")["text"], "b");
    EXPECT_EQ(phone.label("Close")["text"], "关闭");
    EXPECT_EQ(phone.label("dock")["text"], "码头");
    phone.turnOn({"wbthxz"});
    open();
    tapButton("确定");
    EXPECT_EQ(phone.label("dock")["text"], "Dock") << "corrected on saving";
}

TEST_F(RuleEditor, FourLineBreaksSave) {
    open();
    setText("x===y");
    phone.message(editor, "becomeFirstResponder");
    select(5, 0);
    for (int breaks = 0; breaks < 3; ++breaks) {
        phone.result({{"do", "type"}, {"text", "\n"}});
    }
    EXPECT_EQ(phone.find({{"title", "确定"}}).size(), 1U);
    phone.result({{"do", "type"}, {"text", "\n"}});
    EXPECT_EQ(editorViews(), 0U);
    EXPECT_EQ(phone.label("x")["text"], "y");
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(RuleEditor, ExportLeavesTheHelpOut) {
    phone.saveRules("Name===名字");
    open();
    tapButton("导出");
    EXPECT_EQ(phone.pasteboard(), "Name===名字\n");
    const Json note = phone.find({{"text", "所有内容已经复制到剪贴板！"}});
    ASSERT_EQ(note.size(), 1U);
    EXPECT_EQ(note[0]["frame"], (Json{60, 402, 260, 40}));
    phone.advance(1.2);
    EXPECT_EQ(phone.find({{"text", "所有内容已经复制到剪贴板！"}}).size(), 0U);
}

TEST_F(RuleEditor, AKeywordTurnsOrange) {
    open();
    setText("Hello hello 世界 HELLO");
    phone.message(host, "highlightKeyword:", {"hello"});
    EXPECT_EQ(colourAt(0), "#ff8000ff");
    EXPECT_EQ(colourAt(5), nullptr);
    EXPECT_EQ(colourAt(6), "#ff8000ff");
    EXPECT_EQ(colourAt(15), "#ff8000ff");
    for (const Json& keyword : {Json(""), Json(nullptr), Json("absent")}) {
        phone.message(host, "highlightKeyword:", {keyword});
        EXPECT_EQ(colourAt(0), nullptr) << keyword;
    }
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(RuleEditor, TheSearchAsksForTheKeyword) {
    open();
    setText("find me");
    tapButton("搜索");
    phone.advance(0.5);
    EXPECT_EQ(phone.find({{"text", "请输入要搜索的关键词"}}).size(), 1U);
    phone.message(phone.find({{"class", "UITextField"}})[0], "setText:", {"me"});
    phone.result({{"do", "alert"}, {"choose", "确定"}});
    phone.advance(0.5);
    EXPECT_EQ(colourAt(5), "#ff8000ff");
}

/// The editor of a screen that goes while it is open.
class RuleEditorAlone : public RuleEditor {
protected:
    void SetUp() override {
        // Never asked for the host itself: who has a number lives on.
        title = phone.find({{"text", "今天"}})[0];
        phone.press(title, 0.6);
        editor = phone.find({{"class", "UITextView"}})[0];
        const Json other =
            phone.message(phone.message({{"class", "UIViewController"}}, "alloc"), "init");
        phone.message(phone.message(editor, "window"), "setRootViewController:", {other});
        ASSERT_EQ(phone.message(title, "window"), nullptr);
    }
    /// Only at the end of a test: the answer keeps the host.
    bool hostLives() { return !phone.message(title, "superview").is_null(); }

    Json title;
};

TEST_F(RuleEditorAlone, ButtonsStillWork) {
    for (const auto& [name, text] :
         std::vector<std::pair<std::string, std::string>>{{"等于", "a===b"},
                                                          {"大小", "a#÷=b"},
                                                          {"透明", "a#t=b"},
                                                          {"横向", "a#x=b"},
                                                          {"纵向", "a#y=b"},
                                                          {"高度", "a#g=b"},
                                                          {"宽度", "a#k=b"},
                                                          {"单删", ""}}) {
        setText("ab");
        select(1, 0);
        tapButton(name);
        EXPECT_EQ(this->text(), text) << name;
    }
    setText("aa\nbb");
    select(4, 0);
    tapButton("上移");
    EXPECT_EQ(selection(), (Json{1, 0}));
    tapButton("下移");
    EXPECT_EQ(selection(), (Json{4, 0}));
    tapButton("下页");
    tapButton("上页");
    tapButton("颜色");
    tapButton("导出");
    EXPECT_EQ(phone.pasteboard(), "aa\nbb");
    EXPECT_EQ(phone.find({{"text", "所有内容已经复制到剪贴板！"}}).size(), 1U);
    tapButton("搜索");
    phone.advance(0.5);
    phone.message(phone.find({{"class", "UITextField"}})[0], "setText:", {"bb"});
    phone.choose("确定");
    EXPECT_EQ(colourAt(3), "#ff8000ff");
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(RuleEditorAlone, GesturesAndFontsStillWork) {
    phone.slide({{195, 500}, {205, 450}, {215, 400}});
    EXPECT_EQ(phone.node(editor)["frame"], (Json{75, -17, 280, 627}));
    phone.result({{"do", "pinch"}, {"on", editor}, {"scale", 2}});
    EXPECT_TRUE(phone.node(editor).contains("transform"));
    phone.tap(editor, 2);
    EXPECT_FALSE(phone.node(editor).contains("transform"));
    setText("hello");
    select(5, 0);
    tapButton("字体");
    const Json picker = phone.find({{"class", "UIPickerView"}})[0];
    phone.message(picker, "layoutIfNeeded");
    EXPECT_GT(phone.message(picker, "numberOfRowsInComponent:", {0}).get<int>(), 2);
    const Json frame = phone.node(picker)["frame"];
    const double x = frame[0].get<double>() + frame[2].get<double>() / 2;
    const double y = frame[1].get<double>() + frame[3].get<double>() / 2;
    phone.slide({{x, y}, {x, y - 90}});
    phone.advance(3);
    EXPECT_TRUE(text().starts_with("hello#z=")) << text();
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(RuleEditorAlone, SavesAndLetsItsHostGo) {
    EXPECT_TRUE(phone.swallowed().empty());
    setText("x===y");
    phone.message(editor, "becomeFirstResponder");
    select(5, 0);
    phone.result({{"do", "type"}, {"text", "\n\n\n\n"}});
    EXPECT_EQ(editorViews(), 0U);
    EXPECT_EQ(phone.label("x")["text"], "y");
    EXPECT_FALSE(hostLives());
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(RuleEditorAlone, TheButtonSavesAndLetsItsHostGo) {
    setText("p===q");
    EXPECT_EQ(phone.find({{"class", "UIPickerView"}}).size(), 1U);
    tapButton("确定");
    EXPECT_EQ(editorViews(), 0U);
    EXPECT_TRUE(phone.find({{"class", "UIPickerView"}}).empty());
    EXPECT_EQ(phone.label("p")["text"], "q");
    EXPECT_FALSE(hostLives());
}

TEST_F(RuleEditorAlone, WhoeverRemovesItLetsItsHostGo) {
    phone.message(editor, "removeFromSuperview");
    EXPECT_FALSE(hostLives());
}

TEST_F(RuleEditor, AChosenFontIsInsertedAfterAMoment) {
    open();
    const Json picker = phone.message(host, "fontPickerView");
    EXPECT_EQ(phone.message(picker, "isHidden"), true);
    tapButton("字体");
    EXPECT_EQ(phone.message(picker, "isHidden"), false);
    const Json names = phone.message(host, "fontNames");
    ASSERT_GT(names.size(), 2U);
    setText("hello");
    select(5, 0);
    const auto choose = [&](int row) {
        phone.message(host, "pickerView:didSelectRow:inComponent:", {picker, row, 0});
    };
    choose(1);
    phone.advance(0.4);
    choose(2);
    phone.advance(0.4);
    EXPECT_EQ(text(), "hello") << "the first choice was taken back";
    phone.advance(0.2);
    EXPECT_EQ(text(), "hello#z=" + names[2].get<std::string>());
    EXPECT_EQ(phone.message(picker, "isHidden"), true);
    choose(-1);
    choose(100000);
    phone.advance(1);
    EXPECT_TRUE(phone.swallowed().empty());
}

} // namespace
