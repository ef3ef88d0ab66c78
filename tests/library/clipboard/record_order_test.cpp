// The order of records by their times.
#include "library/clipboard/record_order.hpp"

#include <gtest/gtest.h>

namespace wentra::clipboard {
namespace {

using Places = std::vector<std::size_t>;

TEST(RecordOrder, ComparesTimesAsTexts) {
    const std::vector<std::u16string> times{u"2025/01/01 00:00:09", u"2024/12/31 23:59:59", u"",
                                            u"2025/01/01 00:00:10"};
    EXPECT_EQ(orderOf(times, true), (Places{2, 1, 0, 3}));
    EXPECT_EQ(orderOf(times, false), (Places{3, 0, 1, 2}));
    EXPECT_EQ(orderOf({}, true), Places{});
}

TEST(RecordOrder, LeavesEqualTimesAsTheyAre) {
    const std::vector<std::u16string> times{u"b", u"a", u"b", u"a"};
    EXPECT_EQ(orderOf(times, true), (Places{1, 3, 0, 2}));
    EXPECT_EQ(orderOf(times, false), (Places{0, 2, 1, 3}));
}

} // namespace
} // namespace wentra::clipboard
