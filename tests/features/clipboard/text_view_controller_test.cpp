// The full-screen text editor, presented by itself.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

namespace {

using tests::Json;

class TextViewController : public testing::Test {
protected:
    TextViewController() {
        phone.message(editor, "setDisplayText:", {"text\nof the editor"});
        phone.message(editor, "showWithText:", {"comes too early"});
        phone.advance(1);
    }
    void press(const std::string& title) { phone.tap(phone.find({{"title", title}}).at(0)); }
    Json text() { return phone.message(phone.message(editor, "textView"), "text"); }
    bool isShown() {
        phone.advance(1);
        return phone.result({{"do", "screens"}}).back() == "TextViewController";
    }

    tests::Phone phone{{"--app", "notes"}};
    const Json editor =
        phone.message(phone.message({{"class", "TextViewController"}}, "alloc"), "init");
};

TEST_F(TextViewController, ItsTextFillsWhatItsButtonsLeave) {
    const Json view = phone.node(phone.message(editor, "view"));
    const double width = view["frame"][2];
    const double height = view["frame"][3];
    EXPECT_EQ(view["backgroundColor"], "#ffffffff");
    const std::pair<const char*, double> buttons[]{
        {"清空文本", 230}, {"确认编辑", 190}, {"取消编辑", 145}};
    for (const auto& [title, fromBottom] : buttons) {
        EXPECT_EQ(phone.find({{"title", title}}).at(0)["frame"],
                  (Json{20, height - fromBottom, width - 40, 30}))
            << title;
    }
    const Json field = phone.node(phone.message(editor, "textView"));
    EXPECT_EQ(field["frame"], (Json{15, 50, width - 30, height - 300}));
    const Json layer = phone.message(field, "layer");
    EXPECT_EQ(phone.message(layer, "borderWidth"), 2.3);
    EXPECT_EQ(phone.message(layer, "cornerRadius"), 5);
    EXPECT_EQ(phone.message(field, "clipsToBounds"), true);
}

TEST_F(TextViewController, ItsButtonsClearAndCancel) {
    EXPECT_EQ(text(), "text\nof the editor");
    press("清空文本");
    EXPECT_EQ(text(), "");
    EXPECT_TRUE(isShown());
    press("取消编辑");
    EXPECT_FALSE(isShown());
}

TEST_F(TextViewController, GoesWithoutACallbackToo) {
    EXPECT_EQ(phone.message(editor, "getCurrentViewController"), editor);
    EXPECT_EQ(phone.message(editor, "getWindow"),
              phone.message(phone.message(editor, "view"), "window"));
    press("确认编辑");
    EXPECT_FALSE(isShown());
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(TextViewController, ShowsAnotherTextOnceItsViewIsThere) {
    press("取消编辑");
    ASSERT_FALSE(isShown());
    phone.message(editor, "showWithText:", {"another"});
    EXPECT_TRUE(isShown());
    EXPECT_EQ(text(), "another");
}

TEST_F(TextViewController, KeepsItsTextClearOfTheKeyboard) {
    const Json field = phone.message(editor, "textView");
    const auto inset = [&](const char* message) {
        phone.message(field, message);
        phone.advance(1);
        return phone.message(field, "contentInset")["insets"][2].get<double>();
    };
    EXPECT_GT(inset("becomeFirstResponder"), 50);
    EXPECT_EQ(inset("resignFirstResponder"), 0);
    phone.message(field, "setFrame:", {{{"rect", {15, 50, 300, 100}}}});
    EXPECT_EQ(inset("becomeFirstResponder"), 0) << "it ends above the keyboard";
}

} // namespace
