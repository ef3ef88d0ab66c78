// Sizes as people read them.
#include "desktop/foundation/byte_count_formatter.hpp"

#include "bindings/foundation/byte_count_formatter.hpp"
#include "bindings/objc/pool.hpp"

#include <gtest/gtest.h>

namespace {

using desktop::foundation::byteCountText;

TEST(ByteCountFormatter, WritesTheLargestUnitOfWhichThereIsOne) {
    const std::pair<long long, const char*> texts[]{
        {0, "零KB"},
        {1, "1字节"},
        {999, "999字节"},
        {1000, "1 KB"},
        {1499, "1 KB"},
        {999'499, "999 KB"},
        {999'500, "1 MB"},
        {1'234'567, "1.2 MB"},
        {64'000'000, "64 MB"},
        {1'234'567'890, "1.23 GB"},
        {3'221'225'472, "3.22 GB"},
        {1'500'000'000'000, "1.5 TB"},
    };
    for (const auto& [bytes, text] : texts) {
        EXPECT_EQ(byteCountText(bytes, 1000), text) << bytes;
    }
    EXPECT_EQ(byteCountText(1024, 1024), "1 KB");
}

TEST(ByteCountFormatter, CountsFilesInThousands) {
    const objc::Pool pool;
    desktop::foundation::installByteCountFormatter();
    using Style = ns::ByteCountFormatterCountStyle;
    EXPECT_EQ(ns::ByteCountFormatter::stringFromByteCount(1'048'576, Style::file).utf8(), "1 MB");
    EXPECT_EQ(ns::ByteCountFormatter::stringFromByteCount(2'048'000, Style::memory).utf8(), "2 MB");
}

} // namespace
