// Counting symbols, and finding method bodies.
#include "library/utilities/panels/symbol_counts.hpp"

#include <gtest/gtest.h>

namespace {

using namespace wentra::utilities;
using Bodies = std::vector<std::u16string_view>;

std::size_t countOf(char16_t symbol, std::u16string_view text) {
    return countSymbols(text)[symbols.find(symbol)];
}

TEST(SymbolCounts, AreThoseOfEverySymbol) {
    const SymbolCounts once = countSymbols(symbols);
    EXPECT_EQ(once.size(), 22U);
    for (const std::size_t count : once) {
        EXPECT_EQ(count, 1U);
    }
    EXPECT_EQ(countOf(u'#', u"#中#\U0001F600#文#"), 4U);
    EXPECT_EQ(countOf(u'{', u"Ż{Ż"), 1U) << "by the whole unit: U+017B ends in a bracket's byte";
    EXPECT_EQ(countOf(u'!', u""), 0U);
}

struct CountCase {
    std::u16string_view text;
    Bodies bodies;
};

const CountCase countCases[]{
    {u"- (void)a {\nx = 1;\n}", {u"- (void)a {\nx = 1;\n}"}},
    {u"- (\n}", {u"- (\n}"}},
    {u"a - (b)\n{\n}\n- (c)\n}d", {u"- (b)\n{\n}", u"- (c)\n}"}},
    {u"- (a) - (b)\n}", {u"- (a) - (b)\n}"}},
    {u"- (a) { }", {}}, // the bracket begins no line
    {u"-(a)\n}", {}},
    {u"\n}- (", {}},
    {u"", {}},
};

TEST(MethodBodies, EndWithTheFirstLineThatBeginsWithABracket) {
    for (const CountCase& each : countCases) {
        EXPECT_EQ(methodBodies(each.text), each.bodies)
            << std::string(each.text.begin(), each.text.end());
    }
}

TEST(MethodBodies, AreSoughtOnceWhereNoneEnds) {
    std::u16string text;
    for (int opening = 0; opening < 1'000'000; ++opening) {
        text += u"- (";
    }
    EXPECT_TRUE(methodBodies(text).empty()); // and soon
    text += u"\n}";
    EXPECT_EQ(methodBodies(text), Bodies{text});
}

TEST(SymbolReport, TellsAllOfTheTextAndWhatMethodsHave) {
    const std::u16string report = symbolReport(u"- (void)a {\nx = 1;\n}");
    EXPECT_TRUE(
        report.starts_with(u"全文符号数量：\n\n   { 符号有1个\n   } 符号有1个\n   < 符号有0个\n"));
    const std::size_t parts = report.find(u"\n--------\n\n各段落符号数量：\n\n");
    ASSERT_NE(parts, report.npos);
    EXPECT_EQ(report.substr(parts), u"\n--------\n\n各段落符号数量：\n\n"
                                    u"\n方法名: `- (void)a {`\n"
                                    u"   {  符号有1个\n   }  符号有1个\n   (  符号有1个\n"
                                    u"   )  符号有1个\n   ;  符号有1个\n   =  符号有1个\n"
                                    u"   -  符号有1个\n"
                                    u"\n--------\n");
}

TEST(SymbolReport, HasNoPartsWithoutMethods) {
    const std::u16string report = symbolReport(u"");
    EXPECT_TRUE(report.ends_with(u"   ! 符号有0个\n"));
    EXPECT_EQ(report.find(u"--------"), report.npos);
}

} // namespace
