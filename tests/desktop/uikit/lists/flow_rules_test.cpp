// Where a flow layout puts its items.
#include "desktop/uikit/lists/flow_rules.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace desktop;

FlowSection words(std::vector<double> widths) {
    FlowSection section;
    section.itemSpacing = 2;
    section.lineSpacing = 4;
    for (const double width : widths) {
        section.items.push_back({width, 20});
    }
    return section;
}

FlowPlacement placed(const std::vector<FlowSection>& sections, double width = 100) {
    FlowPlacement placement(width);
    for (const FlowSection& section : sections) {
        placement.add(section);
    }
    return placement;
}
FlowPlacement placed(const FlowSection& section, double width = 100) {
    return placed(std::vector{section}, width);
}

FlowSection grid(std::size_t items, double width) {
    FlowSection section = words({});
    section.gridItems = items;
    section.gridItemSize = {width, 20};
    return section;
}

TEST(FlowRules, FullLinesAreSpreadAndTheLastBeginsAtTheLeft) {
    const auto placement = placed(words({30, 30, 30, 40, 20}));
    EXPECT_EQ(placement.frame({0, 0}), (CGRect{{0, 0}, {30, 20}}));
    EXPECT_EQ(placement.frame({0, 1}), (CGRect{{35, 0}, {30, 20}}));
    EXPECT_EQ(placement.frame({0, 2}), (CGRect{{70, 0}, {30, 20}}));
    EXPECT_EQ(placement.frame({0, 3}), (CGRect{{0, 24}, {40, 20}}));
    EXPECT_EQ(placement.frame({0, 4}), (CGRect{{42, 24}, {20, 20}}));
    EXPECT_EQ(placement.height(), 44);
}

TEST(FlowRules, AnItemThatFillsALineLiesInItsMiddleUnlessItIsLast) {
    const auto placement = placed(words({60, 70}));
    EXPECT_EQ(placement.frame({0, 0}).origin.x, 20);
    EXPECT_EQ(placement.frame({0, 1}).origin.x, 0);
    EXPECT_EQ(placed(words({300, 10})).frame({0, 0}), (CGRect{{0, 0}, {300, 20}}));
}

TEST(FlowRules, GridsKeepTheirColumnsInTheLastLine) {
    const auto placement = placed(grid(5, 30));
    EXPECT_EQ(placement.frame({0, 2}), (CGRect{{70, 0}, {30, 20}}));
    EXPECT_EQ(placement.frame({0, 4}), (CGRect{{35, 24}, {30, 20}}));
    EXPECT_EQ(placement.height(), 44);
    EXPECT_TRUE(placement.contains({0, 4}));
    EXPECT_FALSE(placement.contains({0, 5}));
}

TEST(FlowRules, GridsOfOneColumnLieInTheMiddleButForTheLastLine) {
    const auto placement = placed(grid(2, 60));
    EXPECT_EQ(placement.frame({0, 0}).origin.x, 20);
    EXPECT_EQ(placement.frame({0, 1}).origin.x, 0);
}

TEST(FlowRules, GridsAreFoundAmongAHundredMillionItems) {
    constexpr std::size_t sections = 400'000;
    FlowPlacement placement(100);
    for (std::size_t section = 0; section < sections; ++section) {
        placement.add(grid(256, 30)); // 86 lines
    }
    constexpr double high = 86 * 24 - 4;
    EXPECT_EQ(placement.height(), sections * high);
    const double top = 399'999 * high + 24;
    EXPECT_EQ(placement.itemsIn({{0, top}, {100, 20}}),
              (std::vector<ItemIndex>{{399'999, 3}, {399'999, 4}, {399'999, 5}}));
    EXPECT_EQ(placement.itemsIn({{0, 7 * high - 20}, {20, 40}}),
              (std::vector<ItemIndex>{{6, 255}, {7, 0}}));
    EXPECT_EQ(placement.frame({399'999, 3}).origin.y, top);
}

TEST(FlowRules, GridsWithoutASizeAreSurvived) {
    const auto placement = placed({grid(5, 0), grid(5, std::nan("")), grid(3, -1), grid(2, 1e300)});
    EXPECT_TRUE(std::isfinite(placement.height()));
    EXPECT_TRUE(std::isfinite(placement.frame({3, 1}).origin.y));
}

TEST(FlowRules, LinesAreAsHighAsTheirHighestItem) {
    FlowSection section = words({30, 30, 90});
    section.items[1].height = 40;
    section.inset = {5, 0, 7, 0};
    const auto placement = placed(section);
    EXPECT_EQ(placement.frame({0, 0}).origin.y, 15);
    EXPECT_EQ(placement.frame({0, 2}).origin.y, 49);
    EXPECT_EQ(placement.height(), 76);
}

TEST(FlowRules, SectionsFollowEachOther) {
    const auto placement = placed({words({30, 30}), words({}), words({10})});
    EXPECT_EQ(placement.frame({2, 0}).origin.y, 20);
    EXPECT_TRUE(placement.contains({0, 1}));
    EXPECT_FALSE(placement.contains({0, 2}));
    EXPECT_FALSE(placement.contains({1, 0}));
    EXPECT_FALSE(placement.contains({3, 0}));
    EXPECT_FALSE(placement.contains({-1, 0}));
}

TEST(FlowRules, FindsWhatMeetsARectangle) {
    const auto placement = placed(words(std::vector<double>(1000, 49)));
    const auto found = placement.itemsIn({{0, 24 * 100 + 5}, {40, 24}});
    EXPECT_EQ(found, (std::vector<ItemIndex>{{0, 200}, {0, 202}}));
    EXPECT_TRUE(placement.itemsIn({{0, 1e9}, {100, 100}}).empty());
    EXPECT_TRUE(placement.itemsIn({{0, 20}, {100, 4}}).empty()) << "between two lines";
    EXPECT_TRUE(FlowPlacement().itemsIn({{0, 0}, {100, 100}}).empty());
}

TEST(FlowRules, HostileMeasuresAreSurvived) {
    FlowSection section = words({std::nan(""), -5, 1e300, std::numeric_limits<double>::infinity()});
    section.itemSpacing = std::nan("");
    section.lineSpacing = -3;
    const auto placement = placed(section, -10);
    EXPECT_TRUE(std::isfinite(placement.height()));
    EXPECT_TRUE(placement.contains({0, 3}));
}

} // namespace
