// Checks each term correction and, above all, what their order makes of overlapping terms.
#include "library/labels/term_correction.hpp"

#include "tests/library/labels/repeated.hpp"

#include <gtest/gtest.h>

namespace wentra::labels {
namespace {

using namespace std::string_view_literals;
using test::repeated;

struct Correction {
    std::u16string_view text;
    std::u16string_view corrected;
};

TEST(CorrectTerms, keepsTextWithoutKnownTerms) {
    for (const std::u16string_view text :
         {u""sv, u"lpm"sv, u"支 架"sv, u"空格"sv, u"\xD83D\0\xDE04"sv, u"颜色Alpha"sv}) {
        EXPECT_EQ(correctTerms(text), text);
    }
}

TEST(CorrectTerms, correctsEveryOccurrence) {
    const Correction cases[] = {
        {u"LPM与LPM", u"省电模式与省电模式"},
        {u"徽章徽章", u"角标角标"},
        {u"股票库存", u"原生原生"},
        {u"捆绑id和捆绑包", u"Bundle ID和Bundle"},
        {u"第一行😄第二行", u"第一行↲第二行"},
        {u"\xD83D😄\xDE04"sv, u"\xD83D↲\xDE04"sv},
        {u"背景中的背景模式", u"后台中的后台模式"},
        {u"停靠码头", u"DockDock"},
        {u"重新重新呼吸", u"重新注销"},
    };
    for (const Correction& each : cases) {
        EXPECT_EQ(correctTerms(each.text), each.corrected);
    }
}

TEST(CorrectTerms, earlierCorrectionConsumesWhatALaterOneWanted) {
    const Correction cases[] = {
        {u"重新呼吸", u"注销"},     {u"呼吸", u"注销"},       {u"的空白", u"的空格"},
        {u"打开支架", u"左括号"},   {u"闭合支架", u"右括号"}, {u"支架", u"括号"},
        {u"捆绑包id", u"Bundleid"},
    };
    for (const Correction& each : cases) {
        EXPECT_EQ(correctTerms(each.text), each.corrected);
    }
}

TEST(CorrectTerms, earlierCorrectionMakesWhatALaterOneWants) {
    const Correction cases[] = {
        {u"打开式支架", u"左括号"}, {u"公开支架", u"左括号"}, {u"开放支架", u"左括号"},
        {u"公开放", u"打打开"},     {u"公开式", u"打开式"},
    };
    for (const Correction& each : cases) {
        EXPECT_EQ(correctTerms(each.text), each.corrected);
    }
}

TEST(CorrectTerms, survivesHugeTexts) {
    EXPECT_TRUE(correctTerms(repeated(u"支架")) == repeated(u"括号"));
    EXPECT_TRUE(correctTerms(repeated(u"重新")) == repeated(u"重新"));
}

} // namespace
} // namespace wentra::labels
