// Sliding over rows: against the plain rule, on random slides, and the lag of what is released.
#include "library/toolbox/grid/slide_step.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <set>

namespace wentra::toolbox {
namespace {

std::set<long> rowsIn(const RowSet& set, long from, long to) {
    std::set<long> rows;
    for (long row = from; row <= to; ++row) {
        if (set.contains(row)) {
            rows.insert(row);
        }
    }
    return rows;
}

void take(RowSet& picked, const SlideStep& step) {
    for (const long row : step.picked) {
        picked.insert(row);
    }
    if (step.released) {
        picked.erase(*step.released);
    }
}

TEST(RowSet, HoldsWhatASetHolds) {
    std::mt19937 random(7);
    constexpr long rows = 40;
    std::uniform_int_distribution<long> anyRow(-rows, rows);
    RowSet stretches;
    std::set<long> plain;
    for (int turn = 0; turn < 5000; ++turn) {
        const long row = anyRow(random);
        if (random() % 2 == 0) {
            stretches.insert(row);
            plain.insert(row);
        } else {
            stretches.erase(row);
            plain.erase(row);
        }
        ASSERT_EQ(rowsIn(stretches, -rows - 1, rows + 1), plain);
        const long from = anyRow(random);
        const long to = anyRow(random);
        const auto missing = [&plain](long each) { return !plain.contains(each); };
        std::optional<long> up;
        for (long each = from; each <= to && !up; ++each) {
            up = missing(each) ? std::optional(each) : up;
        }
        std::optional<long> down;
        for (long each = from; each >= to && !down; --each) {
            down = missing(each) ? std::optional(each) : down;
        }
        ASSERT_EQ(stretches.firstMissing(from, to), up) << from << " to " << to;
        ASSERT_EQ(stretches.lastMissing(from, to), down) << from << " to " << to;
    }
}

TEST(RowSet, TakesTheLastAndTheFirstNumberThereIs) {
    constexpr long highest = std::numeric_limits<long>::max();
    RowSet set;
    for (const long row : {highest, -highest - 1, highest}) {
        set.insert(row);
    }
    EXPECT_TRUE(set.contains(highest));
    EXPECT_FALSE(set.contains(0));
    EXPECT_EQ(set.outside(0, 1), -highest - 1);
}

TEST(SlideStep, PicksInTheDirectionOfTheSlide) {
    RowSet picked;
    picked.insert(5);
    const SlideStep down = slideStep(picked, 3, 7);
    EXPECT_EQ(down.picked, (std::vector<long>{3, 4, 6, 7}));
    EXPECT_EQ(down.released, std::nullopt);
    const SlideStep up = slideStep(picked, 7, 3);
    EXPECT_EQ(up.picked, (std::vector<long>{7, 6, 4, 3}));
}

TEST(SlideStep, ReleasesOneAStepWhenASlideComesBack) {
    RowSet picked;
    take(picked, slideStep(picked, 3, 3));
    take(picked, slideStep(picked, 3, 7));
    take(picked, slideStep(picked, 3, 5));
    EXPECT_EQ(rowsIn(picked, 0, 9).size(), 4U) << "one of 6 and 7 is left";
    take(picked, slideStep(picked, 3, 5));
    EXPECT_EQ(rowsIn(picked, 0, 9), (std::set<long>{3, 4, 5}));
    EXPECT_EQ(slideStep(picked, 3, 5).released, std::nullopt);
}

TEST(SlideStep, FollowsThePlainRule) {
    std::mt19937 random(11);
    constexpr long rows = 60;
    std::uniform_int_distribution<long> anyRow(0, rows - 1);
    for (int slide = 0; slide < 300; ++slide) {
        RowSet picked;
        std::set<long> plain; // picked before, by taps
        for (int tap = 0; tap < 5; ++tap) {
            plain.insert(anyRow(random));
        }
        for (const long row : plain) {
            picked.insert(row);
        }
        const long start = anyRow(random);
        for (int move = 0; move < 60; ++move) {
            const long current = anyRow(random);
            const auto [low, high] = std::minmax(start, current);
            std::vector<long> expected;
            for (long row = low; row <= high; ++row) {
                if (plain.insert(row).second) {
                    expected.push_back(row);
                }
            }
            if (start > current) {
                std::reverse(expected.begin(), expected.end());
            }
            const bool some = *plain.begin() < low || *plain.rbegin() > high;
            const SlideStep step = slideStep(picked, start, current);
            ASSERT_EQ(step.picked, expected);
            ASSERT_EQ(step.released.has_value(), some);
            if (step.released) {
                ASSERT_TRUE(*step.released < low || *step.released > high);
                ASSERT_EQ(plain.erase(*step.released), 1U) << "released what was not picked";
            }
            take(picked, step);
            ASSERT_EQ(rowsIn(picked, 0, rows), plain);
        }
    }
}

} // namespace
} // namespace wentra::toolbox
