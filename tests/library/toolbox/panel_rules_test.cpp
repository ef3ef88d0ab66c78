// Sizes, places and counts of the panel's body.
#include "library/toolbox/grid/text_counts.hpp"
#include "library/toolbox/grid/tile_size.hpp"
#include "library/toolbox/panel/body_layout.hpp"
#include "tests/library/preferences/property_list/property_list_writer.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace wentra::toolbox {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

BodyLayout layout(const preferences::WrittenEntries& entries) {
    return BodyLayout::from(preferences::Preferences::parse(preferences::xmlPropertyList(entries)));
}

TEST(BodyLayout, HasDefaultsForWhatIsMissingOrZero) {
    for (const preferences::WrittenEntries& entries :
         {preferences::WrittenEntries{},
          preferences::WrittenEntries{{"触摸窗口起点", 0.0},
                                      {"表格窗口高度", 0.0},
                                      {"三排功能位置", std::string("inf")}}}) {
        const BodyLayout standard = layout(entries);
        EXPECT_EQ(standard.body(390), (CGRect{{0, 150}, {390, 1050}}));
        EXPECT_EQ(standard.grid(390), (CGRect{{12, 0}, {366, 320}}));
        EXPECT_EQ(standard.gridShade, 0.2);
        EXPECT_EQ(standard.totalsTop, 410);
        EXPECT_EQ(standard.selectionsTop, 436);
        EXPECT_EQ(standard.buttonShade, 0.75);
        EXPECT_EQ(standard.rowTops, (std::array{329.0, 368.0, 407.0}));
    }
}

TEST(BodyLayout, TakesWhatIsStored) {
    const BodyLayout stored = layout({{"触摸窗口起点", 1.0},
                                      {"触摸窗口高度", 2.0},
                                      {"表格窗口起点", -3.0},
                                      {"表格窗口高度", 4.0},
                                      {"表格底部透明", 0.5},
                                      {"总计数量位置", 5.0},
                                      {"选中数量位置", 6.0},
                                      {"功能透明调节", 0.25},
                                      {"上排功能位置", 7.0},
                                      {"下排功能位置", 8.0},
                                      {"三排功能位置", 9.0}});
    EXPECT_EQ(stored.body(320), (CGRect{{0, 1}, {320, 2}}));
    EXPECT_EQ(stored.grid(320), (CGRect{{12, -3}, {296, 4}}));
    EXPECT_EQ(stored.gridShade, 0.5);
    EXPECT_EQ(stored.totalsTop, 5);
    EXPECT_EQ(stored.selectionsTop, 6);
    EXPECT_EQ(stored.buttonShade, 0.25);
    EXPECT_EQ(stored.rowTops, (std::array{7.0, 8.0, 9.0}));
}

TEST(BodyLayout, PutsFourButtonsIntoARow) {
    const BodyLayout standard = layout({});
    constexpr double width = (390 - 22.5 - 30) / 4;
    EXPECT_EQ(standard.button(390, {0, 0}), (CGRect{{11.25, 329}, {width, 30}}));
    EXPECT_EQ(standard.button(390, {2, 3}), (CGRect{{11.25 + 3 * (width + 10), 407}, {width, 30}}));
}

TEST(TileSize, HasMarginsAndBounds) {
    struct Case {
        CGSize text;
        CGSize tile;
    };
    for (const Case& each : {Case{{30, 20}, {48, 23}}, Case{{30, 5}, {48, 21}},
                             Case{{500, 60}, {369, 63}}, Case{{0, 0}, {18, 21}},
                             Case{{infinite, notANumber}, {18, 21}}, Case{{-5, -5}, {18, 21}}}) {
        EXPECT_EQ(tileSize(each.text, 366), each.tile);
    }
    for (const double grid : {notANumber, infinite, -3.0, 0.0}) {
        EXPECT_EQ(tileSize({30, 20}, grid), (CGSize{18, 23}));
    }
}

TEST(TextCounts, LookAtEachUnit) {
    struct Case {
        std::u16string_view text;
        TextCounts counts;
    };
    for (const Case& each :
         {Case{u"", {0, 0}}, Case{u"abYZ09", {6, 0}}, Case{u"一龥中", {3, 0}},
          Case{u" ,。\n\t!_", {0, 7}}, Case{u"\u4dff\u9fa6é１", {0, 4}}, Case{u"😀", {0, 2}},
          Case{{u"\xD83D", 1}, {0, 1}}, Case{{u"a\0b", 3}, {2, 1}}}) {
        TextCounts counts;
        countUnits(each.text, counts);
        EXPECT_EQ(counts.words, each.counts.words) << each.text.size();
        EXPECT_EQ(counts.symbols, each.counts.symbols);
    }
    TextCounts sum{1, 1};
    countUnits(u"a!", sum);
    EXPECT_EQ(sum, (TextCounts{2, 2}));
}

} // namespace
} // namespace wentra::toolbox
