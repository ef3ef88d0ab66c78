// Labels whose text a long press copies.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

namespace {

using tests::Json;
using tests::Phone;

Json addLabel(Phone& phone, const Json& superview, const std::string& text = "copied") {
    const Json label = phone.make("UILabel", {20, 200, 200, 40});
    phone.message(label, "setText:", {text});
    phone.message(superview, "addSubview:", {label});
    return label;
}

std::size_t gestures(Phone& phone, const Json& view) {
    return phone.node(view)["recognizers"].size();
}

const Json copying{{"开启文字复制", true}};

TEST(LongPressCopy, CopiesAndBuzzesTwice) {
    Phone phone;
    phone.set(copying);
    const Json label = addLabel(phone, phone.window(), "复制 😀");
    EXPECT_EQ(phone.node(label)["recognizers"][0]["minimumPressDuration"], 0.3);
    phone.press(label, 0.25);
    EXPECT_EQ(phone.pasteboard(), nullptr);
    phone.press(label, 0.35);
    EXPECT_EQ(phone.pasteboard(), "复制 😀");
    phone.advance(0.1);
    const auto sounds = phone.events("sound");
    ASSERT_EQ(sounds.size(), 2U);
    EXPECT_EQ(sounds[0]["id"], 1520);
    EXPECT_EQ(sounds[1]["id"], 1520);
}

TEST(LongPressCopy, IsOffWithoutItsSwitch) {
    Phone phone;
    const Json label = addLabel(phone, phone.window());
    EXPECT_EQ(gestures(phone, label), 0U);
    phone.set(copying);
    phone.message(label, "removeFromSuperview");
    phone.message(phone.window(), "addSubview:", {label});
    EXPECT_GT(gestures(phone, label), 0U) << "it takes effect at the next move";
}

TEST(LongPressCopy, IsAttachedOnceAtEachMove) {
    Phone phone;
    phone.set(copying);
    const Json label = addLabel(phone, phone.window());
    EXPECT_EQ(gestures(phone, label), 1U);
    const Json other = phone.make("UIView");
    phone.message(phone.window(), "addSubview:", {other});
    phone.message(other, "addSubview:", {label}); // straight from one superview to the other
    EXPECT_EQ(gestures(phone, label), 2U);
}

TEST(LongPressCopy, MessengersAreLeftOutOnDemand) {
    for (const auto& [bundle, blocked, expected] :
         std::vector<std::tuple<std::string, bool, std::size_t>>{{"com.tencent.xin", true, 0},
                                                                 {"com.tencent.xin", false, 1},
                                                                 {"com.example", true, 1}}) {
        Phone phone({"--app", "plain", "--bundle", bundle});
        phone.set({{"开启文字复制", true}, {"弹出异常屏蔽", blocked}});
        EXPECT_EQ(gestures(phone, addLabel(phone, phone.window())), expected) << bundle << blocked;
    }
}

TEST(LongPressCopy, LeavesControlsAndNamedClassesAlone) {
    Phone phone;
    phone.set({{"开启文字复制", true}, {"异常视图过滤", "UIScrollView，UIStackView"}});
    for (const auto& [cls, expected] :
         std::vector<std::pair<std::string, std::size_t>>{{"UIView", 1},
                                                          {"UIButton", 0},
                                                          {"UINavigationBar", 0},
                                                          {"UIScrollView", 0},
                                                          {"UIStackView", 0}}) {
        const Json container = phone.make(cls);
        phone.message(phone.window(), "addSubview:", {container});
        const Json between = phone.make("UIView");
        phone.message(container, "addSubview:", {between});
        EXPECT_EQ(gestures(phone, addLabel(phone, between)), expected) << cls;
    }
    EXPECT_EQ(gestures(phone, addLabel(phone, phone.window(), "按住 说话")), 0U);
}

TEST(LongPressCopy, CopiesTheTextOfOtherViewsToo) {
    Phone phone;
    phone.set(copying);
    const auto copied = [&phone](const Json& view) {
        phone.copy("before");
        phone.message(phone.window(), "addSubview:", {view});
        phone.message(view, "setupLongPressCopy");
        phone.press(view, 0.4);
        return phone.pasteboard();
    };
    const Json field = phone.make("UITextField", {20, 200, 200, 40});
    phone.message(field, "setText:", {"field"});
    EXPECT_EQ(copied(field), "field");
    const Json button = phone.message({{"class", "UIButton"}}, "buttonWithType:", {1});
    phone.message(button, "setFrame:", {{{"rect", {20, 300, 200, 40}}}});
    phone.message(button, "setTitle:forState:", {"button", 0});
    EXPECT_EQ(copied(button), "button");
    EXPECT_EQ(copied(phone.make("UIView", {20, 400, 200, 40})), "before");
    EXPECT_EQ(copied(phone.make("UILabel", {20, 500, 200, 40})), "before") << "it has no text";
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST(LongPressCopy, SurvivesCallsFromAnywhere) {
    Phone phone;
    phone.set(copying);
    const Json view = phone.make("UIView");
    phone.message(view, "longPress:", {nullptr});
    phone.message(view, "handlePan:", {nullptr});
    phone.message(view, "handlePinch:", {nullptr});
    phone.message(view, "handleDoubleTap:", {nullptr});
    phone.message(view, "makeDraggableAndZoomableWithTrashButton:", {nullptr});
    phone.advance(1);
    EXPECT_TRUE(phone.swallowed().empty());
    phone.message(view, "longPress:", {"no recognizer"});
    EXPECT_EQ(phone.events("exception").size(), 1U);
}

} // namespace
