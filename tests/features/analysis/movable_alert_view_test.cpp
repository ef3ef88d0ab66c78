// The movable dialog: its filters, copying, moving, and closing.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

namespace {

using tests::Json;

class MovableAlert : public testing::Test {
protected:
    MovableAlert() {
        dialog = phone.message(phone.message({{"class", "MovableAlertView"}}, "alloc"),
                               "initWithTitle:message:", {"标题", text});
        phone.message(phone.window(), "addSubview:", {dialog});
    }
    Json button(const std::string& title) { return phone.find({{"title", title}}).at(0); }

    const std::string text = "a1b2\na1\nsee https://a.example\n"
                             "  \"path\" : \"\\/usr\\/lib\\/libobjc.A.dylib\",";
    tests::Phone phone{{"--app", "notes"}};
    Json dialog;
};

TEST_F(MovableAlert, PlacesItsButtons) {
    const std::pair<const char*, std::vector<double>> frames[]{
        {"关闭窗口", {241.5, 505, 75, 30}},  {"复制全文", {3, 505, 80, 30}},
        {"过滤网站", {80, 505, 75, 30}},     {"过滤数字", {159, 505, 78, 30}},
        {"过滤库", {6, 470, 55, 30}},        {"过滤dylib", {160.5, 470, 75, 30}},
        {"过滤system", {67.3, 470, 95, 30}}, {"过滤异常", {240, 470, 80, 30}},
    };
    for (const auto& [title, frame] : frames) {
        EXPECT_EQ(phone.message(button(title), "frame"), (Json{{"rect", frame}})) << title;
    }
}

TEST_F(MovableAlert, ShowsWhatItsFiltersKeep) {
    const std::tuple<const char*, const char*, const char*> filters[]{
        {"过滤网站", "过滤网站结果", "see https://a.example\n\n"},
        {"过滤数字", "过滤数字结果", "a1b2\n"},
        {"过滤库", "可执行库结果", "  路径 : \"/usr/lib/libobjc.A.dylib\"\n\n"},
        {"过滤dylib", "dylib结果", "  路径 : \"/usr/lib/libobjc.A.dylib\"\n\n"},
        {"过滤system", "system可执行库", ""},
        {"过滤异常", "异常插件", ""},
    };
    for (const auto& [title, result, message] : filters) {
        phone.tap(button(title));
        phone.advance(1);
        const Json alert = phone.alert();
        ASSERT_TRUE(alert.is_object()) << title;
        constexpr int overFullScreen = 5;
        const Json controller = phone.message(dialog, "getCurrentViewController");
        EXPECT_EQ(phone.message(controller, "modalPresentationStyle"), overFullScreen);
        EXPECT_EQ(alert["title"], result);
        EXPECT_EQ(alert["message"], message);
        phone.choose("确定");
    }
}

TEST_F(MovableAlert, CopiesItsTextAsItStandsNow) {
    phone.message(phone.message(dialog, "allText"), "setText:", {"edited"});
    phone.tap(button("复制全文"));
    EXPECT_EQ(phone.pasteboard(), "edited");
}

TEST_F(MovableAlert, FollowsTheFingerAndCloses) {
    const Json before = phone.message(dialog, "center")["point"];
    phone.slide({{100, 160}, {100, 200}, {130, 260}});
    const Json after = phone.message(dialog, "center")["point"];
    EXPECT_GT(after[1], before[1]);
    phone.tap(button("关闭窗口"));
    EXPECT_TRUE(phone.find({{"class", "MovableAlertView"}}).empty());
}

} // namespace
