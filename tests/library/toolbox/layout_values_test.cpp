// How the panel's sizes grow, shrink and come back.
#include "library/toolbox/panel/layout_values.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace wentra::toolbox {
namespace {

constexpr auto largest = std::numeric_limits<long long>::max();
constexpr auto smallest = std::numeric_limits<long long>::min();

/// Every value stored, as it was at first.
LayoutValues stored(const std::array<long long, 5>& sizes) {
    LayoutValues values;
    for (std::size_t at = 0; at < sizes.size(); ++at) {
        values[at] = {sizes[at], sizes[at]};
    }
    return values;
}

LayoutValues after(LayoutValues values, const NewLayout& change) {
    for (std::size_t at = 0; at < change.size(); ++at) {
        values[at].current = change[at] ? change[at] : values[at].current;
    }
    return values;
}

const LayoutValues usual = stored({329, 368, 407, 610, 320});

TEST(LayoutValues, ToggledTwiceAreAsAtFirst) {
    const NewLayout enlarged = toggledLayout(usual);
    EXPECT_EQ(enlarged, (NewLayout{509, 548, 587, 790, 500}));
    EXPECT_EQ(toggledLayout(after(usual, enlarged)), (NewLayout{329, 368, 407, 610, 320}));
}

TEST(LayoutValues, TheFirstRowAloneDecides) {
    LayoutValues values = usual;
    values[3].current = 9999;
    EXPECT_EQ(toggledLayout(values)[3], 10179);
    values[0].current = 330;
    EXPECT_EQ(toggledLayout(values), (NewLayout{329, 368, 407, 610, 320}));
}

TEST(LayoutValues, MissingOnesStayMissing) {
    LayoutValues values = usual;
    values[2] = {};
    EXPECT_EQ(toggledLayout(values), (NewLayout{509, 548, std::nullopt, 790, 500}));
    EXPECT_EQ(toggledLayout({}), NewLayout{});
    values[4] = {};
    EXPECT_EQ(shrunkLayout(values), NewLayout{});
}

TEST(LayoutValues, WithoutTheFirstRowTheOthersStay) {
    LayoutValues values = usual;
    values[0] = {};
    EXPECT_EQ(toggledLayout(values), NewLayout{});
    EXPECT_EQ(shrunkLayout(values), (NewLayout{std::nullopt, 188, 227, 430, 140}));
}

TEST(LayoutValues, ShrinkDownToAGridOf142) {
    LayoutValues values = stored({0, 10, 407, 610, 141});
    EXPECT_EQ(shrunkLayout(values), NewLayout{});
    values[4].current = 142;
    EXPECT_EQ(shrunkLayout(values), (NewLayout{-180, -170, 227, 430, -38}));
}

TEST(LayoutValues, ShrinkToWhatTheyWereWhenMuchWasAdded) {
    LayoutValues values = usual;
    values[0].current = 329 + 180;
    values[1].current = 368 + 181;
    EXPECT_EQ(shrunkLayout(values), (NewLayout{329, 368, 227, 430, 140}));
    values[1].current = 368 + 180 + 1000;
    EXPECT_EQ(shrunkLayout(values)[1], 368);
}

TEST(LayoutValues, DoNotOverflow) {
    const LayoutValues values = stored({largest, smallest, largest, smallest, largest});
    EXPECT_EQ(toggledLayout(values)[0], largest);
    EXPECT_EQ(shrunkLayout(values)[1], smallest);
}

} // namespace
} // namespace wentra::toolbox
