// Heights of rows that move with their rows.
#include "desktop/uikit/lists/row_heights.hpp"

#include <gtest/gtest.h>

namespace {

TEST(RowHeights, MoveWithTheirRows) {
    desktop::RowHeights heights;
    heights.set({0, 1}, 10);
    heights.set({0, 3}, 30);
    heights.set({1, 1}, 50);
    heights.rowsWereDeleted({{0, 0}, {0, 3}});
    EXPECT_EQ(heights.at({0, 0}), 10);
    EXPECT_EQ(heights.at({0, 2}), std::nullopt);
    EXPECT_EQ(heights.at({1, 1}), 50) << "another section";
    heights.rowsWereInserted({{0, 0}, {0, 1}});
    EXPECT_EQ(heights.at({0, 2}), 10);
    heights.clear();
    EXPECT_EQ(heights.at({0, 2}), std::nullopt);
}

} // namespace
