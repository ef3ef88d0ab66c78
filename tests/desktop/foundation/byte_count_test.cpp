// Byte counts in words.
#include "desktop/foundation/byte_count.hpp"

#include <gtest/gtest.h>

namespace {

using desktop::foundation::byteCountText;

TEST(ByteCount, HasMoreDecimalsForLargerUnits) {
    EXPECT_EQ(byteCountText(0, 1000), "零KB");
    EXPECT_EQ(byteCountText(999, 1000), "999字节");
    EXPECT_EQ(byteCountText(1500, 1000), "2 KB");
    EXPECT_EQ(byteCountText(15'540'000, 1000), "15.5 MB");
    EXPECT_EQ(byteCountText(2'000'000, 1000), "2 MB");
    EXPECT_EQ(byteCountText(2'550'000'000, 1000), "2.55 GB");
    EXPECT_EQ(byteCountText(1536LL * 1024, 1024), "1.5 MB");
    EXPECT_EQ(byteCountText(-5, 1000), "-5字节");
    EXPECT_EQ(byteCountText(9'000'000'000'000'000'000, 1000), "9 EB");
}

} // namespace
