// Keys and titles in their places.
#include "desktop/uikit/keyboard/keyboard_layout.hpp"
#include "desktop/uikit/menus/callout_layout.hpp"

#include <gtest/gtest.h>

#include <cmath>

using namespace desktop;

namespace {

TEST(KeyboardLayout, KeysFillTheWidthWithoutOverlap) {
    for (const double width : {320.0, 390.0, 430.0}) {
        for (const KeyPage page : {KeyPage::letters, KeyPage::digits, KeyPage::symbols}) {
            const auto keys = keyboardKeys({width}, page, false, u"换行");
            ASSERT_GT(keys.size(), 28u);
            for (const Key& key : keys) {
                EXPECT_GE(key.box.x, 0);
                EXPECT_LE(key.box.x + key.box.width, width);
                EXPECT_LE(key.box.y + key.box.height, keyboardHeight(false, false));
                const Point middle{key.box.x + key.box.width / 2, key.box.y + 21};
                EXPECT_EQ(keyAt(keys, middle), &key);
            }
        }
    }
    EXPECT_EQ(keyboardHeight(false, true), 336);
    EXPECT_GE(keyboardHeight(false, false), 216);
}

TEST(KeyboardLayout, NearMissesHit) {
    const auto keys = keyboardKeys({390}, KeyPage::letters, true, u"换行");
    EXPECT_EQ(keys.front().label, u"Q");
    const double row = keys.front().box.y;
    EXPECT_EQ(keyAt(keys, {0, row - 3})->label, u"Q");
    EXPECT_EQ(keyAt(keys, {389, row + 40})->label, u"P");
    EXPECT_EQ(keyAt(keys, {5, row + 60})->label, u"A");
    EXPECT_EQ(keyAt(keys, {100, 5}), nullptr);
    EXPECT_EQ(keyAt(keys, {100, std::nan("")}), nullptr);
    for (const double width : {0.0, -1.0, std::nan(""), 1e300}) {
        EXPECT_TRUE(keyboardKeys({width}, KeyPage::letters, false, u"").empty());
    }
}

TEST(CalloutLayout, FewTitlesHaveOnePage) {
    const auto pages = calloutPages({28, 28, 42}, 370);
    ASSERT_EQ(pages.size(), 1u);
    EXPECT_EQ(pages[0].size(), 3u);
    EXPECT_EQ(widthOf(pages[0]), 28 + 28 + 42 + 6 * 12);
    EXPECT_TRUE(calloutPages({}, 370).empty());
}

TEST(CalloutLayout, ManyTitlesAreTurnedThrough) {
    const std::vector<double> titles(20, 28);
    const auto pages = calloutPages(titles, 370);
    ASSERT_GT(pages.size(), 1u);
    std::size_t next = 0;
    for (const CalloutPage& page : pages) {
        EXPECT_LE(widthOf(page), 370);
        double x = 0;
        for (const CalloutPart& part : page) {
            EXPECT_EQ(part.x, x);
            x += part.width;
            if (part.role == CalloutPart::Role::item) {
                EXPECT_EQ(part.item, next++);
            }
        }
        EXPECT_EQ(page.front().role == CalloutPart::Role::back, &page != &pages.front());
        EXPECT_EQ(page.back().role == CalloutPart::Role::forward, &page != &pages.back());
    }
    EXPECT_EQ(next, titles.size());
    EXPECT_LE(widthOf(calloutPages({5000}, 370).front()), 370);
}

TEST(CalloutLayout, TheBarStandsAboveOrBelowTheTarget) {
    const Rectangle screen{0, 0, 390, 844};
    const CalloutPlace above = placeCallout(200, {0, 400, 10, 20}, screen);
    EXPECT_TRUE(above.isAbove);
    EXPECT_EQ(above.box.y + above.box.height, 400);
    EXPECT_EQ(above.box.x, calloutMargin);
    const CalloutPlace below = placeCallout(200, {380, 50, 10, 20}, screen);
    EXPECT_FALSE(below.isAbove);
    EXPECT_EQ(below.box.y, 70);
    EXPECT_EQ(below.box.x + 200, 390 - calloutMargin);
    EXPECT_LE(placeCallout(900, {0, 0, 390, 844}, screen).box.y, 844 - below.box.height);
}

} // namespace
