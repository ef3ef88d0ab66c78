// What the library shows can be read on a light and on a dark phone, and reached when it is turned.
#include "tests/features/common/readable.hpp"
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

namespace {

using tests::Json;
using tests::Phone;

/// A phone of each appearance.
class Readable : public testing::TestWithParam<const char*> {
protected:
    Readable() { phone.result({{"do", "appearance"}, {"set", GetParam()}}); }

    /// Every text on the screen is readable, and there are some.
    void expectReadable(const std::string& shown) {
        std::vector<std::string> unreadable;
        std::size_t texts = 0;
        for (const Json& window : phone.result({{"do", "tree"}})) {
            tests::findUnreadable(window, {0, 0, 0, 1}, unreadable, texts);
        }
        EXPECT_EQ(unreadable, std::vector<std::string>()) << shown;
        EXPECT_GT(texts, 5U) << shown;
        EXPECT_FALSE(phone.find({{"text", shown}, {"visible", true}}).empty() &&
                     phone.find({{"title", shown}, {"visible", true}}).empty())
            << shown << " is not there";
    }
    void translate(const std::string& text, const std::string& shown) {
        phone.set({{"百度id", "desktop"}, {"百度key", "desktop-key"}});
        phone.message(phone.message({{"class", "ZKFloatingViewController"}}, "new"),
                      "translateText:", {text});
        phone.result({{"do", "wait"}, {"for", {{"text", shown}}}, {"seconds", 10}});
        phone.advance(1);
    }

    Phone phone{{"--app", "notes", "--settings-bundle"}};
};

TEST_P(Readable, RuleEditorWithItsFontPicker) {
    phone.press(phone.find({{"class", "UIStackView"}})[0], 0.6);
    expectReadable("确定");
    const Json editor = phone.find({{"class", "UITextView"}})[0];
    EXPECT_EQ(editor["style"], "light") << "its colours are those of white paper";
    phone.tap(phone.find({{"title", "字体"}})[0]);
    EXPECT_EQ(phone.find({{"class", "UIPickerView"}})[0]["style"], "light");
    expectReadable("字体");
    phone.message(phone.find({{"class", "UIStackView"}})[0], "ysButtonPressed:", {nullptr});
    phone.advance(1);
    expectReadable("选择颜色");
}

TEST_P(Readable, ToolboxPanel) {
    phone.set({{"kqwzfc", true}, {"开启数量统计", true}});
    phone.advance(0.31);
    phone.copy("Hello, 世界 one two");
    phone.advance(1);
    for (const Json& view : phone.find({{"class", "UIView"}})) {
        for (const Json& recognizer : view["recognizers"]) {
            if (recognizer.value("action", "") == "showTextPanel") {
                phone.tap(view);
            }
        }
    }
    phone.advance(1);
    expectReadable("世界");
    expectReadable("写入粘板");
}

TEST_P(Readable, ResultAlertAndEditAlertAndTextEditor) {
    phone.turnOn({"modify", "copyOriginal"});
    translate("hello", "翻译结果");
    expectReadable("复制原文");
    phone.choose("修改翻译");
    expectReadable("修改翻译结果？");
    phone.choose("窗口放大");
    expectReadable("清空文本");
}

TEST_P(Readable, DialogOfBothTextsAndItsNotice) {
    phone.turnOn({"中英对比样式"});
    translate("hello", "翻译结果");
    expectReadable("关闭窗口");
    phone.result({{"do", "tap"}, {"on", phone.find({{"title", "直接替换"}})[0]}});
    expectReadable("替换成功,切屏查看结果。");
}

TEST_P(Readable, DialogOfAnError) {
    phone.turnOn({"中英对比样式"});
    translate("!drop", "翻译错误");
    expectReadable("翻译错误");
}

INSTANTIATE_TEST_SUITE_P(Appearances, Readable, testing::Values("light", "dark"),
                         [](const auto& each) { return std::string(each.param); });

TEST(Turned, TheDialogsButtonsStayInItAndApart) {
    Phone phone({"--app", "notes"});
    phone.turnOn({"中英对比样式"});
    phone.set({{"百度id", ""}});
    ASSERT_EQ(phone.result({{"do", "rotate"}, {"to", "landscapeLeft"}}), "landscapeLeft");
    phone.message(phone.message({{"class", "ZKFloatingViewController"}}, "new"),
                  "translateText:", {"hello"});
    ASSERT_EQ(phone.result({{"do", "rotate"}, {"to", "portrait"}}), "portrait");
    const Json dialog = phone.node(phone.find({{"class", "MovableAlertViewzerk"}}).at(0));
    EXPECT_EQ(dialog["frame"][2], 350);
    double edge = 0;
    for (const char* title : {"复制原文", "复制翻译", "朗读原文", "朗读翻译"}) {
        const Json frame = phone.find({{"title", title}}).at(0)["frame"];
        EXPECT_GT(frame[0].get<double>(), edge) << title;
        edge = frame[0].get<double>() + frame[2].get<double>();
    }
    EXPECT_LT(edge, 350);
    EXPECT_EQ(phone.find({{"title", "分享翻译"}}).at(0)["frame"], (Json{260, 235.5, 80, 29}));
}

TEST(Turned, TheBallStaysOnTheScreen) {
    Phone phone({"--app", "notes", "--settings-bundle"});
    phone.set({{"kqwzfc", true}});
    phone.advance(0.31);
    for (const char* to : {"landscapeLeft", "portrait"}) {
        ASSERT_EQ(phone.result({{"do", "rotate"}, {"to", to}}), to);
        const Json window = phone.window();
        std::size_t balls = 0;
        for (const Json& view : window["children"]) {
            for (const Json& recognizer : view["recognizers"]) {
                if (recognizer.value("action", "") == "moveFloatingView:") {
                    ++balls;
                    EXPECT_GT(view["frame"][0], 0);
                    EXPECT_GT(view["frame"][1], 0);
                    EXPECT_LT(view["frame"][0].get<double>() + 34, window["frame"][2]);
                    EXPECT_LT(view["frame"][1].get<double>() + 34, window["frame"][3]);
                }
            }
        }
        EXPECT_EQ(balls, 1U) << to;
    }
}

} // namespace
