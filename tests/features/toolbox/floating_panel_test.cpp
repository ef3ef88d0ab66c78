// The floating button, the panel behind it, and the pasteboard that they follow.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

namespace {

using tests::Json;
using tests::Phone;

/// A phone whose toolbox has just come up, under these preferences.
class Toolbox : public Phone {
public:
    explicit Toolbox(const Json& preferences) {
        set(preferences);
        advance(0.31);
    }
    /// The view on the screen with a recognizer for that action, or null.
    Json viewWith(const std::string& action) {
        for (const Json& view : find({{"class", "UIView"}})) {
            for (const Json& recognizer : view["recognizers"]) {
                if (recognizer.value("action", "") == action) {
                    return view;
                }
            }
        }
        return nullptr;
    }
    Json ball() { return viewWith("moveFloatingView:"); }
    Json panel() { return viewWith("moveContentView:"); }
    Json dimming() { return viewWith("hideTextPanel"); }
    bool ballIsVisible() { return !ball().is_null() && ball()["alpha"] == 1.0; }
    void openPanel() {
        tap(ball());
        advance(0.3);
    }
};

/// The preference that shows the button.
const Json buttonShown{{"kqwzfc", true}};

TEST(FloatingButton, IsShownAndPlacedByPreference) {
    EXPECT_EQ(Toolbox(Json::object()).ball(), nullptr);
    for (const auto& [preferences, side] :
         std::vector<std::pair<Json, double>>{{{{"kqwzfc", true}}, 34},
                                              {{{"kqwzfc", true}, {"悬浮球长宽比", 0}}, 34},
                                              {{{"kqwzfc", true}, {"悬浮球长宽比", 60}}, 60}}) {
        Toolbox phone(preferences);
        EXPECT_EQ(phone.ball()["frame"],
                  (Json{390 - side - 15, 844 / 2 - 200 - side / 2, side, side}));
        EXPECT_EQ(phone.ball()["alpha"], 1);
    }
}

TEST(FloatingButton, GoesAfterFiveSecondsUnlessSomethingIsCopied) {
    Toolbox phone(Json{{"kqwzfc", true}, {"kqjfzt", true}});
    phone.advance(4.8);
    EXPECT_TRUE(phone.ballIsVisible());
    phone.advance(0.3);
    EXPECT_FALSE(phone.ballIsVisible());

    phone.copy("first");
    EXPECT_TRUE(phone.ballIsVisible());
    phone.advance(3);
    phone.copy("second");
    phone.advance(4.9);
    EXPECT_TRUE(phone.ballIsVisible()) << "the second copy starts the time anew";
    phone.advance(0.2);
    EXPECT_FALSE(phone.ballIsVisible());
}

TEST(FloatingButton, FollowsTheFinger) {
    Toolbox phone(buttonShown);
    const Json before = phone.ball()["frame"];
    phone.slide({{358, 222}, {300, 322}, {258, 422}});
    const Json after = phone.ball()["frame"];
    EXPECT_NEAR(after[0].get<double>(), before[0].get<double>() - 100, 1e-6);
    EXPECT_NEAR(after[1].get<double>(), before[1].get<double>() + 200, 1e-6);
}

TEST(FloatingPanel, OpensAfterATapOnTheBall) {
    Toolbox phone(buttonShown);
    phone.tap(phone.ball());
    phone.advance(0.3);
    EXPECT_EQ(phone.panel()["frame"], (Json{0, 60, 390, 610}));
    EXPECT_EQ(phone.panel()["alpha"], 1);
    EXPECT_EQ(phone.panel()["backgroundColor"], "#ffffffff");
    EXPECT_EQ(phone.dimming()["frame"], (Json{0, 0, 390, 844}));
    EXPECT_EQ(phone.dimming()["backgroundColor"], "#00000014");
    EXPECT_EQ(phone.ball()["alpha"], 0);

    phone.tap(Json{200, 800});
    EXPECT_EQ(phone.panel(), nullptr);
    EXPECT_EQ(phone.dimming(), nullptr);
    EXPECT_EQ(phone.ball()["alpha"], 1);
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST(FloatingPanel, TakesTheHostsKeyboardAway) {
    Toolbox phone(buttonShown);
    const Json field = phone.make("UITextField", {10, 600, 200, 30});
    phone.message(phone.window(), "addSubview:", {field});
    phone.message(field, "becomeFirstResponder");
    EXPECT_EQ(phone.message(field, "isFirstResponder"), true);
    phone.openPanel();
    EXPECT_EQ(phone.message(field, "isFirstResponder"), false);
}

TEST(FloatingPanel, WaitsThreeTenthsOfASecond) {
    Toolbox phone(buttonShown);
    phone.result({{"do", "tap"}, {"on", phone.ball()}});
    phone.advance(0.29);
    EXPECT_EQ(phone.panel(), nullptr);
    phone.advance(0.02);
    EXPECT_NE(phone.panel(), nullptr);
}

TEST(FloatingPanel, IsSizedAndColouredByPreference) {
    Toolbox phone(Json{{"kqwzfc", true},
                       {"编辑窗口起点", 9},
                       {"编辑窗口高度", 99},
                       {"分词窗口底色", "#102030-0.5"}});
    phone.set({{"悬浮窗口起点", 100}, {"悬浮窗口高度", 400}});
    phone.openPanel();
    EXPECT_EQ(phone.panel()["frame"], (Json{0, 100, 390, 400}));
    EXPECT_EQ(phone.panel()["backgroundColor"], "#10203080");
    const Json editor = phone.find({{"class", "UITextView"}})[0];
    EXPECT_EQ(editor["frame"], (Json{12, 9, 360, 99}));
}

TEST(FloatingPanel, StaysOpenOnDemandWithoutTheBall) {
    Toolbox phone(Json{{"kqwzfc", true}, {"dbjbgc", true}});
    phone.openPanel();
    phone.tap(Json{200, 800});
    EXPECT_EQ(phone.dimming(), nullptr);
    EXPECT_EQ(phone.panel()["alpha"], 1);
    EXPECT_EQ(phone.ball()["alpha"], 0);
}

TEST(FloatingPanel, IsDraggedOnlyOnDemand) {
    Toolbox phone(buttonShown);
    phone.openPanel();
    const Json path{{4, 650}, {4, 600}, {4, 550}};
    phone.slide(path);
    EXPECT_EQ(phone.panel()["frame"], (Json{0, 60, 390, 610}));
    phone.turnOn({"kqxfyd"});
    phone.slide(path);
    EXPECT_EQ(phone.panel()["frame"], (Json{0, -40, 390, 610}));
}

TEST(FloatingPanel, TakesOverWhatIsCopied) {
    Toolbox phone(buttonShown);
    phone.copy("Hello, 世界!");
    EXPECT_EQ(phone.panel(), nullptr) << "it opens by itself on demand only";
    phone.openPanel();
    const Json editor = phone.find({{"class", "UITextView"}})[0];
    EXPECT_EQ(editor["text"], "Hello, 世界!");
    const Json marker = phone.find({{"title", "修改"}})[0];
    EXPECT_EQ(marker["frame"], (Json{347, -152, 40, 20}));
    EXPECT_EQ(marker["enabled"], false);

    phone.turnOn({"开启复制弹出"});
    phone.tap(Json{200, 800});
    phone.copy("again");
    phone.advance(0.31);
    EXPECT_NE(phone.panel(), nullptr);
    EXPECT_EQ(phone.find({{"class", "UITextView"}})[0]["text"], "again");
}

TEST(FloatingPanel, HandsTheTokensOver) {
    Phone phone;
    const Json model = phone.message({{"class", "ZKViewModel"}}, "new");
    phone.copy("Hello, 世界!");
    const Json body = phone.message(model, "floatingVC");
    EXPECT_EQ(phone.message(body, "wordsArray"), (Json{"Hello", ",", " ", "世界", "!"}));
    phone.copy(nullptr);
    EXPECT_EQ(phone.message(body, "wordsArray").size(), 5U) << "nothing is copied";
    EXPECT_EQ(phone.message(phone.message(model, "copiedTextView"), "text"), "Hello, 世界!");
}

TEST(FloatingPanel, EditedTextIsCopied) {
    Phone phone;
    const Json model = phone.message({{"class", "ZKViewModel"}}, "new");
    const Json editor = phone.message(model, "copiedTextView");
    const Json marker = phone.message(model, "button");
    phone.message(editor, "setText:", {"edited"});
    phone.message(model, "textViewDidBeginEditing:", {editor});
    EXPECT_EQ(phone.message(marker, "isEnabled"), true);
    phone.message(model, "textViewDidEndEditing:", {editor});
    EXPECT_EQ(phone.message(marker, "isEnabled"), false);
    EXPECT_EQ(phone.pasteboard(), "edited");
}

} // namespace
