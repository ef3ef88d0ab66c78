// Translation from end to end: the toolbox's methods, the loopback service, alerts, dialog, labels.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

namespace {

using tests::Json;

class Translation : public testing::Test {
protected:
    Translation() { phone.set({{"百度id", "desktop"}, {"百度key", "desktop-key"}}); }

    Json controller() {
        return phone.message(phone.message({{"class", "ZKFloatingViewController"}}, "alloc"),
                             "init");
    }
    /// Translates with a controller that was never shown, and waits for a text on the screen.
    void translate(const std::string& text, const std::string& shown = "翻译结果") {
        phone.message(controller(), "translateText:", {text});
        waitFor(shown);
    }
    void waitFor(const std::string& text) {
        phone.result({{"do", "wait"}, {"for", {{"text", text}}}, {"seconds", 10}});
        phone.advance(1); // until whatever moves has arrived
    }
    Json replacements() { return phone.result({{"do", "defaults"}, {"key", "zerk"}}); }
    Json textNode(const std::string& text) { return phone.find({{"text", text}}).at(0); }
    void press(const std::string& title) { phone.tap(phone.find({{"title", title}}).at(0)); }

    tests::Phone phone{{"--app", "notes"}};
};

TEST_F(Translation, TellsWhatIsMissing) {
    phone.set({{"百度key", ""}, {"网页Google", true}});
    translate("hello", "翻译错误");
    EXPECT_EQ(phone.alert()["message"], "百度翻译ID或key不存在，请检查你的输入");
    EXPECT_EQ(phone.alertActions(), std::vector<std::string>{"关闭窗口"});
    phone.choose("关闭窗口");
    EXPECT_EQ(phone.alert(), nullptr);

    phone.set({{"百度key", "desktop-key"}});
    translate("", "翻译错误");
    EXPECT_EQ(phone.alert()["message"], "没有需要翻译的文本");
    phone.choose("关闭窗口");
    phone.copy(nullptr);
    phone.message(controller(), "wzjhButtonClicked:", {nullptr});
    EXPECT_EQ(phone.alert()["message"], "没有需要翻译的文本");
    EXPECT_TRUE(phone.events("request").empty());
}

TEST_F(Translation, AsksForEachLineAndJoinsTheAnswersInTheirOrder) {
    translate("!late hello\nhello\n\nworld\r\n你好 & =");
    EXPECT_EQ(phone.alert()["title"], "翻译结果");
    const std::string message = phone.alert()["message"];
    EXPECT_EQ(message.substr(message.find('\n')), "\n你好\n\n世界\n\n⟦你好 & =⟧");
    EXPECT_EQ(phone.events("request").size(), 6U) << "one for each line, empty ones included";
}

TEST_F(Translation, TranslatesChineseToWhateverElseToChinese) {
    for (const auto& [text, target] : std::vector<std::pair<std::string, std::string>>{
             {"一", "&to=zh&"}, {"中", "&to=auto&"}, {"hello", "&to=zh&"}}) {
        translate(text);
        const std::string url = phone.events("request").at(0)["url"];
        EXPECT_NE(url.find(target), url.npos) << url;
        phone.choose("关闭窗口");
    }
}

TEST_F(Translation, AnErrorOfTheServiceIsAnEmptyLine) {
    translate("!error\nhello\n!json\n!500");
    EXPECT_EQ(phone.alert()["message"], "\n你好\n\n");
}

TEST_F(Translation, AFailedRequestShowsTheErrorAlone) {
    translate("hello\n!drop\n!late world", "翻译错误");
    EXPECT_NE(phone.alert()["message"], "");
    phone.choose("关闭窗口");
    phone.message(controller(), "translateText:", {"!late good morning"});
    waitFor("翻译结果"); // as late as the first text's last line
    EXPECT_EQ(phone.find({{"text", "翻译结果"}}).size(), 1U);
    phone.choose("关闭窗口");
    EXPECT_EQ(phone.alert(), nullptr);
}

TEST_F(Translation, TheResultOffersWhatThePreferencesAskFor) {
    phone.turnOn({"copyOriginal", "copyTranslated", "readOriginal", "readTranslated", "modify",
                  "useOriginalText", "Restoredefault"});
    translate("hello");
    EXPECT_EQ(phone.alertActions(),
              (std::vector<std::string>{"复制原文", "复制翻译", "朗读原文", "朗读翻译", "修改翻译",
                                        "直接替换", "恢复默认", "关闭窗口"}));
    phone.choose("复制翻译");
    EXPECT_EQ(phone.pasteboard(), "你好");
    translate("hello");
    phone.choose("复制原文");
    EXPECT_EQ(phone.pasteboard(), "hello");

    phone.events("request");
    translate("hello");
    phone.choose("朗读翻译");
    const Json speech = phone.events("speech");
    ASSERT_EQ(speech.size(), 1U);
    EXPECT_EQ(speech[0]["text"], "你好");
    EXPECT_EQ(speech[0]["delay"], 0.3);

    translate("hello\nworld");
    phone.choose("直接替换");
    EXPECT_EQ(replacements(), (Json{{"hello↲world", "你好↲世界"}}));
    EXPECT_EQ(phone.label("hello\nworld")["text"], "你好\n世界");

    translate("你好\n世界");
    phone.choose("恢复默认");
    EXPECT_EQ(replacements(), Json::object());
}

TEST_F(Translation, WhatIsRestoredIsToldInFrontOfThePanel) {
    phone.turnOn({"Restoredefault", "开启复制弹出", "kqwzfc"});
    phone.advance(1);
    phone.copy("hello");
    phone.advance(1);
    ASSERT_FALSE(phone.find({{"title", "文字翻译"}, {"visible", true}}).empty()) << "no panel";
    translate("hello");
    phone.result({{"do", "alert"}, {"choose", "恢复默认"}});
    const Json notice = phone.window()["children"].back();
    ASSERT_EQ(notice.value("text", Json()), "删除词汇,已恢复默认❗️");
    EXPECT_EQ(notice["frame"], (Json{60, 191, 260, 40}));
    phone.advance(0.7);
    EXPECT_TRUE(phone.find({{"text", "删除词汇,已恢复默认❗️"}}).empty());
}

TEST_F(Translation, AnErrorsActionsLeaveThePasteboardAndTheRulesAlone) {
    phone.copy("mine");
    phone.turnOn({"copyOriginal", "useOriginalText", "modify"});
    for (const char* action : {"复制原文", "直接替换", "修改翻译"}) {
        translate("", "翻译错误");
        phone.choose(action);
    }
    EXPECT_EQ(phone.pasteboard(), "mine");
    EXPECT_EQ(replacements(), nullptr);
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(Translation, ATranslationIsEditedInTheAlert) {
    phone.turnOn({"modify"});
    translate("hello");
    phone.choose("修改翻译");
    EXPECT_EQ(phone.alert()["title"], "修改翻译结果？");
    EXPECT_EQ(phone.alert()["message"], "\n原翻译为：\n\n你好");
    EXPECT_EQ(phone.alert()["fields"],
              (Json{{{"placeholder", "输入你的翻译结果"}, {"text", "你好"}}}));
    EXPECT_EQ(phone.alertActions(), (std::vector<std::string>{"窗口放大", "取消修改", "确定修改"}));
    phone.choose("确定修改", {""});
    EXPECT_EQ(phone.alert()["title"], "❌错误提示");
    phone.choose("好的");

    translate("hello");
    phone.choose("修改翻译");
    phone.choose("确定修改", {"您好"});
    EXPECT_EQ(replacements(), (Json{{"hello", "您好"}}));
}

TEST_F(Translation, ATranslationIsEditedOnAWholeScreen) {
    phone.turnOn({"modify"});
    translate("world");
    phone.choose("修改翻译");
    const Json field = phone.find({{"class", "UITextField"}}).at(0);
    phone.choose("窗口放大", {"天下"});
    EXPECT_EQ(phone.result({{"do", "screens"}}).back(), "TextViewController");
    const Json editor = phone.find({{"class", "UITextView"}, {"text", "天下"}}).at(0);
    press("清空文本");
    EXPECT_EQ(phone.message(editor, "text"), "");
    phone.message(editor, "setText:", {"人间"});
    press("确认编辑");
    phone.advance(1);
    EXPECT_NE(phone.result({{"do", "screens"}}).back(), "TextViewController");
    EXPECT_EQ(replacements(), (Json{{"world", "人间"}}));
    EXPECT_EQ(phone.message(field, "text"), "人间");
}

TEST_F(Translation, TheKeyboardIsDraggedOffTheButtonsOfTheEditor) {
    phone.turnOn({"modify"});
    translate("world");
    phone.choose("修改翻译");
    phone.choose("窗口放大", {"天下"});
    const Json editor = phone.find({{"class", "UITextView"}, {"text", "天下"}}).at(0);
    phone.tap(editor);
    phone.advance(1);
    const auto insetBelow = [&] {
        return phone.message(editor, "contentInset")["insets"][2].get<double>();
    };
    const Json area = phone.node(editor)["rect"];
    EXPECT_NEAR(insetBelow(), area[1].get<double>() + area[3].get<double>() - 508, 1e-6);
    EXPECT_EQ(phone.message(editor, "isFirstResponder"), true);
    phone.slide({{200, 300}, {200, 800}});
    phone.advance(1);
    EXPECT_EQ(phone.message(editor, "isFirstResponder"), false);
    EXPECT_EQ(insetBelow(), 0);
    press("取消编辑"); // what lay below the keyboard
    phone.advance(1);
    EXPECT_NE(phone.result({{"do", "screens"}}).back(), "TextViewController");

    const Json field = phone.make("UITextField");
    phone.message(phone.window(), "addSubview:", {field});
    phone.message(field, "becomeFirstResponder");
    phone.advance(1);
    EXPECT_EQ(insetBelow(), 0) << "an editor that is gone still listens";
}

TEST_F(Translation, PickedWordsGoFirstAndAreNoLongerPicked) {
    const Json toolbox = controller();
    const Json words =
        phone.message({{"class", "NSMutableArray"}}, "arrayWithArray:", {{"good", "morning"}});
    phone.message(toolbox, "setSelectedWords:", {words});
    phone.message(toolbox, "translateText:", {"hello"});
    waitFor("翻译结果");
    EXPECT_EQ(phone.alert()["message"], "早上好");
    EXPECT_EQ(phone.message(phone.message(toolbox, "selectedWords"), "count"), 0);
}

TEST_F(Translation, TheWebPageTakesTheTextInstead) {
    phone.turnOn({"网页Google"});
    phone.message(controller(), "translateText:", {"a b"});
    phone.advance(1);
    EXPECT_EQ(phone.result({{"do", "screens"}}).back(), "SFSafariViewController");
    const auto events = phone.events("webLoad");
    ASSERT_EQ(events.size(), 1U);
    const std::string url = events[0]["url"];
    EXPECT_EQ(url.substr(url.find('?')), "?sl=auto&tl=zh&text=a%20b");
}

TEST_F(Translation, TheDialogTellsOfErrorsWithoutTakingThemForText) {
    phone.set({{"中英对比样式", true}, {"百度id", ""}});
    translate("hello", "百度翻译ID或key不存在，请检查你的输入");
    const Json dialog = phone.find({{"class", "MovableAlertViewzerk"}}).at(0);
    EXPECT_EQ(phone.message(phone.message(dialog, "translatedTextView"), "text"), "");
    EXPECT_EQ(phone.find({{"text", "翻译错误"}}).size(), 1U);
    EXPECT_EQ(phone.alert(), nullptr);
}

class BilingualDialog : public Translation {
protected:
    BilingualDialog() {
        phone.turnOn({"中英对比样式"});
        translate("hello\nworld");
        dialog = phone.find({{"class", "MovableAlertViewzerk"}}).at(0);
    }
    Json frameOf(const std::string& title) { return phone.find({{"title", title}}).at(0)["frame"]; }

    Json dialog;
};

TEST_F(BilingualDialog, ShowsBothTextsWithTheirButtons) {
    EXPECT_EQ(dialog["frame"], (Json{20, 60, 350, 545}));
    const Json original = phone.message(dialog, "originalTextView");
    EXPECT_EQ(phone.node(original)["text"], "hello\nworld");
    EXPECT_EQ(phone.node(original)["frame"][1], 50);
    EXPECT_EQ(phone.node(phone.message(dialog, "translatedTextView"))["text"], "你好\n世界");
    EXPECT_EQ(frameOf("分享翻译"), (Json{260, 235.5, 80, 29}));
    EXPECT_EQ(frameOf("复制原文"), (Json{10, 465.5, 75, 29}));
    EXPECT_EQ(frameOf("关闭窗口"), (Json{265, 504.5, 75, 29}));
    EXPECT_EQ(phone.alert(), nullptr);
}

TEST_F(BilingualDialog, StoresWhatTheUserMadeOfTheTexts) {
    phone.message(phone.message(dialog, "translatedTextView"), "setText:", {"你好，世界"});
    press("直接替换");
    EXPECT_EQ(phone.find({{"text", "替换成功,切屏查看结果。"}}).at(0)["frame"],
              (Json{40, 116.25, 260, 40}));
    phone.advance(0.7);
    EXPECT_TRUE(phone.find({{"text", "替换成功,切屏查看结果。"}}).empty());
    EXPECT_EQ(phone.label("hello\nworld")["text"], "你好，世界");

    phone.message(phone.message(dialog, "originalTextView"), "setText:", {"你好，世界"});
    press("恢复默认");
    EXPECT_EQ(phone.label("hello\nworld")["text"], "hello\nworld");
}

TEST_F(BilingualDialog, RestoresOneTextOfThoseThatAreShownAlike) {
    phone.saveRules("one===数\ntwo===数\nthree===三");
    phone.message(phone.message(dialog, "originalTextView"), "setText:", {"数"});
    press("恢复默认");
    EXPECT_EQ(replacements().size(), 2U);
    EXPECT_TRUE(replacements().contains("three"));
    press("恢复默认");
    EXPECT_EQ(replacements(), (Json{{"three", "三"}}));
}

TEST_F(BilingualDialog, CopiesAndReadsAloudUntilItIsClosed) {
    press("复制翻译");
    EXPECT_EQ(phone.pasteboard(), "你好\n世界");
    press("复制原文");
    EXPECT_EQ(phone.pasteboard(), "hello\nworld");
    phone.events("request");
    press("朗读原文");
    phone.advance(0.5);
    press("关闭窗口");
    EXPECT_TRUE(phone.find({{"class", "MovableAlertViewzerk"}}).empty());
    std::vector<std::string> kinds;
    for (const Json& event : phone.result({{"do", "events"}})) {
        if (event["kind"] != "speechStarted") { // how soon each begins is the voice's affair
            kinds.push_back(event["kind"]);
        }
    }
    EXPECT_EQ(kinds, (std::vector<std::string>{"speech", "speech", "speechStopped"}));
}

TEST_F(BilingualDialog, SharesEitherText) {
    for (const auto& [button, text] : std::vector<std::pair<std::string, std::string>>{
             {"分享原文", "hello\nworld"}, {"分享翻译", "你好\n世界"}}) {
        phone.events("share");
        press(button);
        phone.advance(1);
        const auto shared = phone.events("share");
        ASSERT_EQ(shared.size(), 1U) << button;
        EXPECT_EQ(shared[0]["items"], Json{text});
        EXPECT_EQ(phone.result({{"do", "screens"}}).back(), "UIActivityViewController");
        phone.message(phone.message(phone.window(), "rootViewController"),
                      "dismissViewControllerAnimated:completion:", {false, nullptr});
        phone.advance(1);
    }
}

TEST_F(BilingualDialog, RetainsItsSynthesizer) {
    const Json synthesizer = phone.message(dialog, "synth");
    const auto owners = [&] { return phone.message(synthesizer, "retainCount").get<int>(); };
    const int withDialog = owners();
    phone.message(dialog, "setSynth:", {nullptr});
    EXPECT_EQ(owners(), withDialog - 1);
    press("朗读翻译"); // nobody reads
    phone.message(dialog, "setSynth:", {synthesizer});
    EXPECT_EQ(owners(), withDialog);
    phone.events("speech");
    press("朗读翻译");
    EXPECT_EQ(phone.events("speech").size(), 2U) << "a line at a time";
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(BilingualDialog, FollowsOneFingerAndScalesWithTwo) {
    phone.slide({{195, 80}, {195, 100}, {215, 180}});
    EXPECT_NEAR(phone.node(dialog)["frame"][0].get<double>(), 40, 10.1);
    EXPECT_NEAR(phone.node(dialog)["frame"][1].get<double>(), 160, 10.1);
    phone.result({{"do", "pinch"}, {"on", dialog}, {"scale", 0.5}});
    EXPECT_NEAR(phone.node(dialog)["frame"][2].get<double>(), 175, 12);
}

} // namespace
