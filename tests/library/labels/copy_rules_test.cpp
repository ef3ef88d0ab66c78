// Which labels may be copied, and where.
#include "library/labels/copy_rules.hpp"

#include <gtest/gtest.h>

namespace wentra::labels {
namespace {

TEST(CopyRules, MessengersCanBeLeftOut) {
    for (const char* bundle :
         {"com.xingin.discover", "com.tencent.xin", "com.tencent.xin1", "com.tencent.xin2"}) {
        EXPECT_TRUE(copiesIn(bundle, {.copy = true, .suppress = false})) << bundle;
        EXPECT_FALSE(copiesIn(bundle, {.copy = true, .suppress = true})) << bundle;
        EXPECT_FALSE(copiesIn(bundle, {.copy = false, .suppress = false})) << bundle;
    }
    EXPECT_TRUE(copiesIn("com.tencent.xin3", {.copy = true, .suppress = true}));
    EXPECT_FALSE(copiesIn("", {.copy = false, .suppress = true}));
}

TEST(CopyRules, UsersNameTheirOwnClasses) {
    const auto users = splitClassNames(u"MyView，Other,Third Class ");
    EXPECT_EQ(users, (std::vector<std::u16string>{u"MyView", u"Other", u"Third Class "}));
    EXPECT_TRUE(excludesCopying(u"Other", users));
    EXPECT_TRUE(excludesCopying(u"CKMessageEntryRichTextView", {}));
    EXPECT_FALSE(excludesCopying(u"UIView", users));
    EXPECT_FALSE(excludesCopying(u"Third Class", users)) << "nothing is trimmed";
    EXPECT_EQ(splitClassNames(u""), std::vector<std::u16string>{u""});
}

TEST(CopyRules, FewerClassesStopAPressThanAGesture) {
    EXPECT_TRUE(excludesPressing(u"MCTFTPopOverMenuCell"));
    EXPECT_FALSE(excludesPressing(u"UITextViewCanvasView"));
}

TEST(CopyRules, TwoTextsAreButtonsOfTheirOwn) {
    EXPECT_TRUE(isNeverCopied(u"按住 说话"));
    EXPECT_TRUE(isNeverCopied(u"提出问题"));
    EXPECT_FALSE(isNeverCopied(u"按住说话"));
    EXPECT_FALSE(isNeverCopied(u""));
}

} // namespace
} // namespace wentra::labels
