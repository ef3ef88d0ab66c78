// Answers in any order, doubled and missing.
#include "library/toolbox/translation/translation_batch.hpp"

#include <gtest/gtest.h>

namespace wentra::toolbox {
namespace {

TEST(TranslationBatch, JoinsTheLinesInTheirOrderWhateverOrderTheyComeIn) {
    TranslationBatch batch(3);
    EXPECT_EQ(batch.complete(2, u"丙"), std::nullopt);
    EXPECT_EQ(batch.complete(0, u"甲"), std::nullopt);
    EXPECT_EQ(batch.complete(1, u""), u"甲\n\n丙");
}

TEST(TranslationBatch, YieldsNothingWhileALineIsMissing) {
    TranslationBatch batch(3);
    EXPECT_EQ(batch.complete(2, u"c"), std::nullopt);
    EXPECT_EQ(batch.complete(0, u"a"), std::nullopt);
}

TEST(TranslationBatch, YieldsTheWholeOnceOnly) {
    TranslationBatch batch(1);
    EXPECT_EQ(batch.complete(0, u"a"), u"a");
    EXPECT_EQ(batch.complete(0, u"again"), std::nullopt);
}

} // namespace
} // namespace wentra::toolbox
