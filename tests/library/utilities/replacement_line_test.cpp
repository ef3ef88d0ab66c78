// The lines of the keyboard's text replacements, and of the bookmarks.
#include "library/utilities/databases/bookmark_lines.hpp"
#include "library/utilities/databases/replacement_line.hpp"

#include <gtest/gtest.h>

namespace {

using namespace wentra::utilities;

struct Line {
    const char* line;
    const char* phrase; ///< null: the line is left out
    const char* shortcut;
};

const Line lines[]{
    {"你好 nh", "你好", "nh"},
    {"on my way omw", "on", "my"},
    {"phrase shortcut\r", "phrase", "shortcut\r"},
    {"phrase  shortcut", "phrase", ""},
    {" shortcut", "", "shortcut"},
    {"phrase ", "phrase", ""},
    {" ", "", ""},
    {"", nullptr, nullptr},
    {"phrase", nullptr, nullptr},
    {"tab\tshortcut", nullptr, nullptr},
};

TEST(ReplacementLine, IsTakenApartAtItsFirstTwoBlanks) {
    for (const Line& line : lines) {
        const auto entry = replacementIn(line.line);
        ASSERT_EQ(entry.has_value(), line.phrase != nullptr) << line.line;
        if (entry) {
            EXPECT_EQ(entry->phrase, line.phrase) << line.line;
            EXPECT_EQ(entry->shortcut, line.shortcut) << line.line;
        }
    }
}

TEST(ReplacementLine, IsFollowedByAnEmptyLine) { EXPECT_EQ(lineOf("你好", "nh"), "你好 nh\n\n"); }

TEST(ReplacementTime, LiesAheadOfTheReferenceDate) {
    EXPECT_EQ(timeStamp(978304000), "0.000000");
    EXPECT_EQ(timeStamp(978307200), "3200.000000");
    EXPECT_EQ(timeStamp(1700000000.123456), "721696000.123456");
    EXPECT_EQ(timeStamp(0), "-978304000.000000");
    EXPECT_EQ(timeStamp(1e308).size(), 309U + 7U);
}

std::string bookmarks(std::initializer_list<const char*> addresses) {
    BookmarkLines text;
    for (const char* address : addresses) {
        text.add(address);
    }
    return text.text();
}

TEST(BookmarkLines, AreEverySecondAddress) {
    EXPECT_EQ(bookmarks({"a", "b", "c", "d"}), "b\nd\n");
    EXPECT_EQ(bookmarks({"a", "", "c"}), "\n");
    EXPECT_EQ(bookmarks({"a"}), "");
    EXPECT_EQ(bookmarks({}), "");
}

} // namespace
