// Where notices lie.
#include "library/common/notice.hpp"

#include <gtest/gtest.h>

namespace wentra {
namespace {

void expectOrigin(const NoticePlace& place, double x, double y) {
    const CGRect frame = noticeFrame({390, 844}, place);
    EXPECT_EQ(frame.origin.x, x);
    EXPECT_EQ(frame.origin.y, y);
    EXPECT_EQ(frame.size.width, 260);
    EXPECT_EQ(frame.size.height, 40);
}

TEST(Notice, LiesALittleToTheLeftUnlessItSaysOtherwise) {
    expectOrigin({}, 60, 402);
    expectOrigin({.height = 0.25}, 60, 191);
    expectOrigin({.left = 130, .above = 60}, 65, 362);
}

} // namespace
} // namespace wentra
