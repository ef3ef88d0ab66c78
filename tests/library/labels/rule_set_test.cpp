// Checks that a map of rules keeps one value for each key, in the order the keys came.
#include "library/labels/rule_set.hpp"

#include <gtest/gtest.h>

namespace wentra::labels {
namespace {

TEST(RuleMap, reassignedKeyKeepsItsPlaceAndTakesTheNewValue) {
    RuleMap rules;
    rules.assign(u"b", u"1");
    rules.assign(u"a", u"2");
    rules.assign(u"b", u"3");

    EXPECT_EQ(std::vector<Rule>(rules.begin(), rules.end()),
              (std::vector<Rule>{{u"b", u"3"}, {u"a", u"2"}}));
    EXPECT_EQ(*rules.find(u"b"), u"3");
    EXPECT_EQ(rules.find(u"c"), nullptr);
}

TEST(RuleMap, keysAreComparedUnitByUnit) {
    using namespace std::string_view_literals;
    RuleMap rules;
    rules.assign(u"a\0b"sv, u"nul");
    rules.assign(u"a", u"short");
    rules.assign(u"\xD800"sv, u"lone");
    rules.assign(u"\u00E9", u"composed");
    rules.assign(u"e\u0301", u"decomposed");

    EXPECT_EQ(rules.size(), 5U);
    EXPECT_EQ(*rules.find(u"a\0b"sv), u"nul");
    EXPECT_EQ(*rules.find(u"\xD800"sv), u"lone");
    EXPECT_EQ(*rules.find(u"\u00E9"), u"composed");
}

TEST(RuleMap, copyIsIndependent) {
    RuleMap rules;
    rules.assign(u"a", u"1");
    RuleMap copy = rules;
    copy.assign(u"a", u"2");

    EXPECT_EQ(*rules.find(u"a"), u"1");
    EXPECT_EQ(*copy.find(u"a"), u"2");
}

} // namespace
} // namespace wentra::labels
