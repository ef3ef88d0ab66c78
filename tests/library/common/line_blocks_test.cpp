// Texts in blocks of lines: whatever the lines' lengths, nothing is lost and no line is cut.
#include "library/common/line_blocks.hpp"

#include "bindings/objc/pool.hpp"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace wentra {
namespace {

std::vector<std::u16string> blocksOf(ns::String text) {
    std::vector<std::u16string> found;
    LineBlocks blocks(text);
    for (auto block = blocks.next(); !block.empty(); block = blocks.next()) {
        found.emplace_back(block);
    }
    EXPECT_TRUE(blocks.next().empty());
    return found;
}

/// Lines of random lengths, rarely very long ones; the last one may have no end.
std::u16string randomLines(std::size_t size, std::mt19937& random) {
    std::u16string text;
    while (text.size() < size) {
        const std::size_t length = random() % 50 == 0 ? random() % 50'000 : random() % 100;
        text.append(length, random() % 2 == 0 ? u'x' : u'文') += u'\n';
    }
    text.resize(size);
    return text;
}

TEST(LineBlocks, AreWholeLinesAndAllOfThem) {
    const objc::Pool pool;
    std::mt19937 random(3); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts every time
    for (const std::size_t size : {1U, 100U, 16'384U, 16'385U, 70'000U, 300'000U}) {
        const std::u16string text = randomLines(size, random);
        const auto blocks = blocksOf(ns::String::from(text));
        std::u16string whole;
        for (const std::u16string& block : blocks) {
            EXPECT_TRUE(whole.empty() || whole.ends_with(u'\n'));
            whole += block;
        }
        EXPECT_TRUE(whole == text) << size;
        EXPECT_LE(blocks.size(), size / 1000 + 2);
    }
}

TEST(LineBlocks, MayBeOneLongLine) {
    const objc::Pool pool;
    const std::u16string line(100'000, u'x');
    EXPECT_EQ(blocksOf(ns::String::from(line)), std::vector{line});
    EXPECT_EQ(blocksOf(ns::String::from(line + u"\n")), std::vector{line + u"\n"});
    EXPECT_EQ(blocksOf(ns::String::from(line + u"\na")), (std::vector{line + u"\n", {u"a"}}));
}

TEST(LineBlocks, AreNoneOfNoText) {
    const objc::Pool pool;
    EXPECT_TRUE(blocksOf(ns::String::from(u"")).empty());
    EXPECT_TRUE(blocksOf(nullptr).empty());
}

} // namespace
} // namespace wentra
