// The toolbox panel's body: its buttons, sizes, crosshair and the editor of the host filter.
#include "tests/features/toolbox/toolbox_panel.hpp"

namespace {

using tests::Json;
using tests::ToolboxPanel;

struct ExpectedButton {
    std::string property;
    std::string title;
    std::string symbol;
    int row;
    int column;
    bool pale;
    std::string press; ///< the long press's action, empty without one
    double seconds;
};

const std::vector<ExpectedButton>& buttons() {
    static const std::vector<ExpectedButton> table{
        {"wzjhButton", "文字翻译", "dongsign.square", 0, 0, true, "", 0},
        {"zzjsButton", "日志检索", "book", 0, 1, false, "handlerzLongPress:", 0.2},
        {"ljtzButton", "链接跳转", "network", 0, 2, false, "ljsslongPress:", 0.2},
        {"selectAllButton", "全选文字",
         "arrow.up.left.and.down.right.and.arrow.up.right.and.down.left", 0, 3, true,
         "showClipboard:", 0.1},
        {"shareButton", "分享文字", "arrowshape.turn.up.forward", 1, 0, false,
         "buttonLongPressed:", 0.2},
        {"umzhButton", "U码转换", "square.fill.text.grid.1x2", 1, 1, false, "longPress:", 0.2},
        {"pasteButton", "写入粘板", "square.grid.3x3", 1, 2, false,
         "handlePasteButtonLongPress:", 0.2},
        {"explodeButton", "视图变更", "arrow.down.forward.and.arrow.up.backward.circle", 1, 3,
         false, "qxhandleLongPress:", 0.2},
        {"startRecordButton", "应用录屏", "dot.viewfinder", 2, 1, false, "", 0},
        {"stopRecordButton", "结束录屏", "app.badge.checkmark", 2, 2, false,
         "longPressedStopRecordButton:", 0.5},
    };
    return table;
}

const Json sizes{{"上排功能位置", 329},
                 {"下排功能位置", 368},
                 {"三排功能位置", 407},
                 {"悬浮窗口高度", 610},
                 {"表格窗口高度", 320}};

Json added(Json values, int points) {
    for (auto& value : values) {
        value = value.get<int>() + points;
    }
    return values;
}

TEST(ToolboxPanelBody, HasTheTableOfButtons) {
    ToolboxPanel phone;
    EXPECT_EQ(phone.node(phone.view()).at("frame"), (Json{0, 150, 390, 1050}));
    constexpr double width = (390 - 22.5 - 30) / 4;
    for (const ExpectedButton& expected : buttons()) {
        const Json button = phone.node(phone.panel(expected.property));
        EXPECT_EQ(button.at("title"), expected.title);
        EXPECT_EQ(button.at("frame"), (Json{11.25 + expected.column * (width + 10),
                                            329 + 39 * expected.row, width, 30}))
            << expected.title;
        EXPECT_EQ(button.at("backgroundColor"), expected.pale ? "#fffafabf" : "#e6e6fabf")
            << expected.title;
        const Json recognizers = button.at("recognizers");
        ASSERT_EQ(recognizers.size(), expected.press.empty() ? 0U : 1U) << expected.title;
        if (!expected.press.empty()) {
            EXPECT_EQ(recognizers.at(0).at("action"), expected.press);
            EXPECT_EQ(recognizers.at(0).at("minimumPressDuration"), expected.seconds);
        }
        const Json image = phone.message(button, "imageForState:", {0});
        EXPECT_EQ(image.at("description"), "<UIImage symbol(system: " + expected.symbol + ")>");
        const Json layer = phone.message(button, "layer");
        EXPECT_EQ(phone.message(layer, "cornerRadius"), 6);
        EXPECT_EQ(phone.message(layer, "borderWidth"), 1);
        const Json label = phone.message(button, "titleLabel");
        EXPECT_EQ(phone.message(label, "adjustsFontSizeToFitWidth"), true);
        EXPECT_EQ(phone.message(label, "minimumScaleFactor"), 0.5);
    }
    EXPECT_EQ(phone.message(phone.panel("shareButton"), "imageEdgeInsets"),
              (Json{{"insets", {0, 0, 0, -3}}}));
    EXPECT_EQ(phone.swallowed().size(), 0U);
}

TEST(ToolboxPanelBody, TakesItsSizesFromThePreferencesAtEachLayout) {
    ToolboxPanel phone({{"触摸窗口起点", 10},
                        {"触摸窗口高度", 500},
                        {"表格窗口起点", 5},
                        {"总计数量位置", 300},
                        {"选中数量位置", 320},
                        {"功能透明调节", 1}});
    EXPECT_EQ(phone.node(phone.view()).at("frame"), (Json{0, 10, 390, 500}));
    EXPECT_EQ(phone.node(phone.panel("wordsCollectionView")).at("frame"), (Json{12, 5, 366, 320}));
    EXPECT_EQ(phone.node(phone.panel("totalWordsLabel")).at("frame"), (Json{15, 300, 180, 20}));
    EXPECT_EQ(phone.node(phone.panel("totalSymbolsLabel")).at("frame"), (Json{225, 300, 180, 20}));
    EXPECT_EQ(phone.node(phone.panel("selectedWordsLabel")).at("frame"), (Json{15, 320, 230, 20}));
    EXPECT_EQ(phone.node(phone.panel("selectedSymbolsLabel")).at("frame"),
              (Json{225, 320, 230, 20}));
    EXPECT_EQ(phone.node(phone.panel("wzjhButton")).at("backgroundColor"), "#fffafaff");

    phone.set({{"下排功能位置", 100}});
    phone.message(phone.view(), "setNeedsLayout");
    phone.message(phone.view(), "layoutIfNeeded");
    EXPECT_EQ(phone.node(phone.panel("shareButton")).at("frame").at(1), 100);
    EXPECT_EQ(phone.node(phone.panel("wzjhButton")).at("frame").at(1), 329);
}

TEST(ToolboxPanelBody, AnswersEveryButton) {
    ToolboxPanel phone;
    for (const ExpectedButton& button : buttons()) {
        if (!button.press.empty()) {
            EXPECT_EQ(phone.message(phone.controller(),
                                    "respondsToSelector:", {{{"selector", button.press}}}),
                      true)
                << button.press;
        }
    }
    const Json before = phone.result({{"do", "tree"}});
    phone.tap("日志检索");
    EXPECT_EQ(phone.result({{"do", "tree"}}), before);
    for (const char* title : {"链接跳转", "U码转换", "应用录屏", "结束录屏"}) {
        phone.tap(title);
        phone.advance(1);
    }
    for (const char* title :
         {"日志检索", "链接跳转", "全选文字", "分享文字", "U码转换", "写入粘板"}) {
        phone.press(title, 0.3);
    }
    EXPECT_EQ(phone.swallowed().size(), 0U);
}

TEST(ToolboxPanelBody, ListsTheTargetsThatAreOn) {
    ToolboxPanel phone({{"抖音网页搜索", true},
                        {"AppStore", true},
                        {"下载", 1},
                        {"百度", false},
                        {"谷歌", "1"},
                        {"必应", 2}});
    EXPECT_EQ(phone.panel("appList"), (Json{"AppStore", "下载", "抖音网页搜索"}));
    EXPECT_EQ(phone.panel("appMethods").size(), 25U);
    EXPECT_EQ(phone.panel("appMethods").at("saily+源"), "gotosaily");
    EXPECT_EQ(phone.panel("linkTitleDictionary").at("taobao://"), "在淘宝打开");
    EXPECT_EQ(phone.panel("linkTitleDictionary").size(), 5U);
}

TEST(ToolboxPanelSize, ToggledTwiceIsAsItWas) {
    ToolboxPanel phone(sizes);
    phone.result({{"do", "pasteboard"}, {"set", "text"}});
    const long changes = phone.pasteboardChanges();
    phone.tap("视图变更");
    EXPECT_EQ(phone.preferences(), added(sizes, 180));
    EXPECT_EQ(phone.node(phone.panel("wordsCollectionView")).at("frame"), (Json{12, 0, 366, 500}));
    EXPECT_EQ(phone.pasteboardChanges(), changes + 1);
    EXPECT_EQ(phone.result({{"do", "pasteboard"}}), "text");
    phone.tap("视图变更");
    EXPECT_EQ(phone.preferences(), sizes);
    EXPECT_EQ(phone.node(phone.panel("wordsCollectionView")).at("frame"), (Json{12, 0, 366, 320}));
}

TEST(ToolboxPanelSize, ToggledWithoutAFirstRowOnlyRewrites) {
    const Json withoutFirstRow{{"kqwzfc", false}, {"表格窗口高度", 200}};
    ToolboxPanel phone(withoutFirstRow);
    phone.result({{"do", "pasteboard"}, {"set", "text"}});
    const long changes = phone.pasteboardChanges();
    phone.set({{"later", 1}}); // the panel knows the file as it was
    phone.tap("视图变更");
    EXPECT_EQ(phone.preferences(), withoutFirstRow);
    EXPECT_EQ(phone.pasteboardChanges(), changes + 1);
}

TEST(ToolboxPanelSize, ShrinksDownToAGridOf142) {
    Json low = sizes;
    low["表格窗口高度"] = 141;
    {
        ToolboxPanel phone(low);
        phone.press("视图变更", 0.3);
        EXPECT_EQ(phone.preferences(), low);
    }
    low["表格窗口高度"] = 142;
    ToolboxPanel phone(low);
    phone.press("视图变更", 0.3);
    EXPECT_EQ(phone.preferences(), added(low, -180));
    EXPECT_EQ(phone.preferences().at("表格窗口高度"), -38);
    phone.press("视图变更", 0.3);
    EXPECT_EQ(phone.preferences(), added(low, -180));
}

TEST(ToolboxPanelCrosshair, FollowsAPressWhenItIsWanted) {
    for (const bool wanted : {false, true}) {
        ToolboxPanel phone(Json{{"显示触摸坐标", wanted}});
        phone.result(
            {{"do", "slide"}, {"path", {{120, 100}, {130, 100.5}}}, {"hold", 0.6}, {"stay", true}});
        phone.advance(0.2);
        const Json label = phone.node(phone.panel("coordinateLabel"));
        const Json across = phone.node(phone.panel("lineViewX"));
        const Json down = phone.node(phone.panel("lineViewY"));
        EXPECT_EQ(label.at("alpha"), wanted ? 1 : 0);
        EXPECT_EQ(across.at("alpha"), wanted ? 1 : 0);
        if (wanted) {
            EXPECT_EQ(label.at("text"), "X:130.00, Y:100.50");
            EXPECT_EQ(label.at("textColor"), "#ff0000e0");
            EXPECT_EQ(label.at("font").at("size"), 13);
            EXPECT_EQ(label.at("frame"), (Json{65, 67, 130, 30}));
            EXPECT_EQ(across.at("frame"), (Json{0, 100.5, 390, 1}));
            EXPECT_EQ(down.at("frame"), (Json{130, 0, 1, 844}));
        }
        phone.result({{"do", "touch"}, {"phase", "ended"}, {"points", {{0, 130, 100.5}}}});
        phone.advance(1);
        EXPECT_EQ(phone.node(phone.panel("lineViewY")).at("alpha"), 0);
    }
}

TEST(ToolboxPanelHostFilter, IsEditedAndSaved) {
    ToolboxPanel phone({{"Host过滤屏蔽", "ads.example,"}, {"kqwzgs", true}});
    const Json screens = phone.result({{"do", "screens"}});
    phone.press("结束录屏", 0.6);
    phone.advance(1);
    EXPECT_EQ(phone.result({{"do", "screens"}}).size(), screens.size() + 1) << "once a press";
    const Json over = phone.panel("getCurrentViewController");
    constexpr int overFullScreen = 5;
    EXPECT_EQ(phone.message(over, "modalPresentationStyle"), overFullScreen);
    const Json editor = phone.node(phone.panel("adstextView"));
    EXPECT_EQ(editor.at("frame"), (Json{0, 90, 390, 694}));
    EXPECT_EQ(editor.at("text"), "ads.example,");
    EXPECT_EQ(editor.at("font").at("size"), 14);
    EXPECT_EQ(phone.titled("保存内容").at("frame"), (Json{0, 45, 195, 45}));
    EXPECT_EQ(phone.titled("关闭窗口").at("frame"), (Json{195, 45, 195, 45}));
    EXPECT_EQ(phone.message(phone.titled("关闭窗口"), "imageForState:", {0}).at("description"),
              "<UIImage symbol(system: chevron.down.square)>");

    phone.message(editor, "setText:", {"a,\n中文,"});
    phone.tap("保存内容");
    EXPECT_EQ(phone.preferences(), (Json{{"Host过滤屏蔽", "a,\n中文,"}, {"kqwzgs", true}}));
    const Json saved{{"do", "find"}, {"where", {{"text", "已保存"}, {"visible", true}}}};
    ASSERT_EQ(phone.result(saved).size(), 1U);
    EXPECT_EQ(phone.result(saved).at(0).at("font").at("size"), 22);
    phone.advance(4);
    EXPECT_EQ(phone.result(saved).size(), 0U);

    phone.tap("关闭窗口");
    phone.advance(1);
    EXPECT_EQ(phone.panel("adstextView"), nullptr);
    EXPECT_FALSE(phone.titled("结束录屏").is_null());
    phone.panel("saveContent:", {nullptr}); // nothing is open
    EXPECT_EQ(phone.preferences().at("Host过滤屏蔽"), "a,\n中文,");
    EXPECT_EQ(phone.swallowed().size(), 0U);
}

/// Puts a folder where the preference file is, so that no file can be written there.
void obstructPreferences(const ToolboxPanel& phone) {
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(phone.temporaryFolder())) {
        if (entry.path().filename() == "cn.zerk.hovtanprefs.plist") {
            std::filesystem::remove(entry.path());
            std::filesystem::create_directories(entry.path() / "folder");
            return;
        }
    }
    ADD_FAILURE() << "there is no preference file";
}

TEST(ToolboxPanelHostFilter, IsNotCalledSavedWhenNothingWasWritten) {
    ToolboxPanel phone(Json{{"Host过滤屏蔽", "ads.example,"}});
    phone.press("结束录屏", 0.6);
    phone.advance(1);
    obstructPreferences(phone);
    phone.tap("保存内容");
    EXPECT_EQ(phone.result({{"do", "find"}, {"where", {{"text", "已保存"}}}}).size(), 0U);
    EXPECT_EQ(phone.swallowed().size(), 0U);
}

TEST(ToolboxPanelSize, IsNotRememberedWhenNothingWasWritten) {
    ToolboxPanel phone(Json{{"上排功能位置", 100}});
    obstructPreferences(phone);
    phone.panel("explodeButtonClicked:", {nullptr});
    EXPECT_EQ(phone.message(phone.panel("currentValues"), "objectForKey:", {"上排功能位置"}), 100);
    EXPECT_EQ(phone.swallowed().size(), 0U);
}

TEST(ToolboxPanelHostFilter, MakesRoomForTheKeyboard) {
    ToolboxPanel phone;
    phone.press("结束录屏", 0.6);
    phone.advance(1);
    const Json editor = phone.panel("adstextView");
    const auto insets = [&phone, &editor] {
        return phone.message(editor, "contentInset").at("insets");
    };
    phone.message(editor, "becomeFirstResponder");
    phone.advance(1);
    EXPECT_EQ(insets(), (Json{47, 0, 336, 0}));
    phone.message(editor, "resignFirstResponder");
    phone.advance(1);
    EXPECT_EQ(insets(), (Json{47, 0, 0, 0}));

    phone.panel("viewWillDisappear:", {false});
    phone.message(editor, "becomeFirstResponder");
    phone.advance(1);
    EXPECT_EQ(insets(), (Json{47, 0, 0, 0})) << "a panel that is gone still listens";
    phone.panel("viewWillAppear:", {false});
    phone.message(editor, "resignFirstResponder");
    phone.message(editor, "becomeFirstResponder");
    phone.advance(1);
    EXPECT_EQ(insets(), (Json{47, 0, 336, 0}));
}

TEST(ToolboxPanelScreens, AreThoseOfTheHost) {
    ToolboxPanel phone;
    EXPECT_EQ(phone.panel("getWindow"), phone.panel("keyWindow"));
    EXPECT_FALSE(phone.panel("getCurrentViewController").is_null());
    EXPECT_EQ(phone.panel("getCurrentViewController"),
              phone.message(phone.window(), "rootViewController"));
    EXPECT_EQ(phone.panel("adaptivePresentationStyleForPresentationController:", {nullptr}), -1);
    const Json container = phone.node(phone.panel("createContainerView"));
    EXPECT_EQ(container.at("frame"), (Json{220, 50, 140, 60}));
    EXPECT_EQ(container.at("recognizers").at(0).at("action"), "dragContainer:");
}

TEST(ToolboxPanelCapture, ItsContainerFollowsTheFinger) {
    ToolboxPanel phone;
    const Json container = phone.panel("createContainerView");
    phone.message(phone.window(), "addSubview:", {container});
    const auto touch = [&phone](const char* phase, double x, double y) {
        phone.result({{"do", "touch"}, {"phase", phase}, {"points", {{0, x, y}}}});
    };
    touch("began", 290, 80);
    touch("moved", 290, 95);
    touch("moved", 300, 130);
    touch("ended", 310, 150);
    EXPECT_EQ(phone.node(container).at("frame"), (Json{240, 120, 140, 60}));
}

TEST(ToolboxPanelUnseen, ANeverShownControllerTakesEveryMessage) {
    ToolboxPanel phone;
    const Json fresh = phone.message({{"class", "ZKFloatingViewController"}}, "new");
    for (const char* selector :
         {"explodeButtonClicked:", "selectAllButtonClicked:", "pasteButtonClicked:",
          "selectItemAtIndexPath:", "deselectItemAtIndexPath:", "longPressGestureRecognized:",
          "longPressGestureAction:", "qxhandleLongPress:", "longPressedStopRecordButton:",
          "saveContent:", "close1ButtonPressed:", "keyboardWillShow:", "keyboardWillHide:",
          "dragContainer:", "updateWordsArray:"}) {
        phone.message(fresh, selector, {nullptr});
    }
    phone.message(fresh, "updateStatistics");
    phone.message(fresh, "updateViewSize");
    phone.message(fresh, "selectWordsFromStartIndexPath:toEndIndexPath:", {nullptr, nullptr});
    EXPECT_EQ(phone.swallowed().size(), 0U);
}

} // namespace
