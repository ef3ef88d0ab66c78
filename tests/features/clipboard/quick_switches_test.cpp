// The grid of quick switches behind the paste button.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

namespace {

using tests::Json;

class QuickSwitches : public testing::Test {
protected:
    QuickSwitches() {
        phone.message(phone.window(), "addSubview:", {phone.message(panel, "view")});
        phone.message(phone.window(), "layoutIfNeeded");
    }
    void open() {
        phone.press(phone.find({{"title", "写入粘板"}}).at(0), 0.25);
        phone.advance(1);
        switches = phone.message(phone.message(phone.window(), "rootViewController"),
                                 "presentedViewController");
        ASSERT_TRUE(switches.is_object());
    }
    Json button(const std::string& title) {
        return phone.find({{"title", title}, {"class", "UIButton"}, {"visible", true}}).at(0);
    }
    std::string status(const std::string& title) {
        constexpr int statusTag = 10086;
        return phone.node(phone.message(button(title), "viewWithTag:", {statusTag}))["text"];
    }
    Json preference(const std::string& key) {
        const Json all = phone.result({{"do", "preferences"}});
        return all.is_object() && all.contains(key) ? all[key] : Json();
    }

    tests::Phone phone{{"--app", "notes"}};
    Json panel = phone.message({{"class", "ZKFloatingViewController"}}, "new");
    Json switches;
};

const std::pair<const char*, const char*> all[]{
    {"查看本地文件", "查看本地文件"}, {"复制立马弹窗", "开启复制弹出"},
    {"网页Google", "网页Google"},     {"字符数量统计", "开启数量统计"},
    {"TikTok翻译", "TikTok翻译"},     {"Discord翻译", "Discord翻译"},
    {"复制弹球5秒", "kqjfzt"},        {"设置标题翻译", "系统设置翻译"},
    {"悬浮窗可移动", "kqxfyd"},       {"崩溃日志过滤", "崩溃日志过滤"},
    {"开文件夹浏览", "开文件夹浏览"}, {"中英对比样式", "中英对比样式"},
    {"显示触摸坐标", "显示触摸坐标"}, {"开启广告屏蔽", "开启广告屏蔽"},
    {"下载进阶解析", "解析"},
};

TEST_F(QuickSwitches, FlipsThePreferenceOfEachWithAFinger) {
    phone.set({{"other", 1}});
    open();
    for (const auto& [title, key] : all) {
        EXPECT_EQ(phone.node(button(title))["label"], key);
        EXPECT_EQ(status(title), "关闭❌") << title;
        phone.tap(button(title));
        EXPECT_EQ(preference(key), true) << title;
        EXPECT_EQ(status(title), "开启✅") << title;
    }
    EXPECT_EQ(preference("other"), 1);
    EXPECT_EQ(phone.events("sound").size(), 2 * std::size(all));
}

TEST_F(QuickSwitches, TwoTapsGiveTheFormerValueBackAndFourTicks) {
    phone.set({{"kqxfyd", "1"}});
    open();
    EXPECT_EQ(status("悬浮窗可移动"), "开启✅") << "a text that reads as on";
    phone.events("sound");
    phone.tap(button("悬浮窗可移动"));
    EXPECT_EQ(preference("kqxfyd"), false);
    phone.tap(button("悬浮窗可移动"));
    EXPECT_EQ(preference("kqxfyd"), true);
    EXPECT_EQ(status("悬浮窗可移动"), "开启✅");
    const auto ticks = phone.events("sound");
    ASSERT_EQ(ticks.size(), 4U);
    EXPECT_EQ(ticks[0]["id"], 1520);
}

TEST_F(QuickSwitches, WithoutAFileOnlyTheLabelChanges) {
    open();
    phone.tap(button("网页Google"));
    EXPECT_EQ(status("网页Google"), "开启✅");
    EXPECT_EQ(phone.result({{"do", "preferences"}}), nullptr);
    phone.tap(button("网页Google"));
    EXPECT_EQ(status("网页Google"), "开启✅") << "it was off, as far as the file says";
}

TEST_F(QuickSwitches, IsAPopoverAtTheButton) {
    open();
    constexpr int popover = 7;
    constexpr int none = -1;
    EXPECT_EQ(phone.message(switches, "modalPresentationStyle"), popover);
    EXPECT_EQ(phone.message(switches, "preferredContentSize"), (Json{{"size", {280, 400}}}));
    EXPECT_EQ(
        phone.message(switches, "adaptivePresentationStyleForPresentationController:", {nullptr}),
        none);
    const Json controller = phone.message(switches, "popoverPresentationController");
    EXPECT_EQ(phone.node(phone.message(controller, "sourceView"))["title"], "写入粘板");
    EXPECT_EQ(phone.message(controller, "permittedArrowDirections"), 15);
}

TEST_F(QuickSwitches, LooksAsDescribed) {
    open();
    const Json grid =
        phone.node(phone.find({{"class", "UICollectionView"}, {"visible", true}}).back());
    EXPECT_EQ(grid["frame"], (Json{45, 300, 346, 400}));
    const Json face = phone.node(button("查看本地文件"));
    EXPECT_EQ(face["frame"], (Json{7.5, 10, 97, 30}));
    EXPECT_EQ(face["backgroundColor"], "#ffffffff");
    const Json status = phone.node(phone.message(face, "viewWithTag:", {10086}));
    EXPECT_EQ(status["frame"], (Json{0, 36, 97, 15}));
    EXPECT_EQ(phone.message(switches, "collectionView:numberOfItemsInSection:", {nullptr, 0}), 15);
}

TEST_F(QuickSwitches, ReportsWhatIsMissingAndStaysUp) {
    open();
    phone.events("exception");
    phone.message(switches, "setKeysArray:", {Json::array({"kqxfyd"})});
    const Json grid = phone.find({{"class", "UICollectionView"}, {"visible", true}}).back();
    phone.message(grid, "reloadData");
    phone.message(grid, "layoutIfNeeded");
    EXPECT_EQ(phone.events("exception").size(), 14U);
    EXPECT_EQ(phone.find({{"title", "查看本地文件"}, {"class", "UIButton"}}).size(), 1U);
}

} // namespace
