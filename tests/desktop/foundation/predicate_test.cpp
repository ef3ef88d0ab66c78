// Predicates over texts, written as formats.
#include "desktop/foundation/predicate.hpp"

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/predicate.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/foundation/string.hpp"
#include "desktop/foundation/text_comparison.hpp"

#include <gtest/gtest.h>

namespace {

using namespace ns::literals;
using objc::Object;

class Predicate : public testing::Test {
protected:
    static void SetUpTestSuite() {
        desktop::foundation::installStrings();
        desktop::foundation::installPredicates();
    }
    static ns::Predicate made(std::u16string_view format) {
        return ns::Predicate::withFormat(ns::String::from(format), ns::MutableArray::make());
    }
    static bool holds(std::u16string_view format, Object object) {
        return made(format).evaluate(object);
    }
    static bool holds(std::u16string_view format, std::u16string_view text) {
        return holds(format, ns::String::from(text));
    }
    objc::Pool pool;
};

TEST_F(Predicate, FindsAPartOfAText) {
    EXPECT_TRUE(holds(u"SELF CONTAINS 'http'", u"see http://a.example"));
    EXPECT_FALSE(holds(u"SELF CONTAINS 'http'", u"HTTP"));
    EXPECT_TRUE(holds(u"SELF CONTAINS[c] 'http'", u"HTTP"));
    EXPECT_FALSE(holds(u"SELF CONTAINS[c] 'cafe'", u"CAFÉ"));
    EXPECT_TRUE(holds(u"SELF CONTAINS[cd] 'cafe'", u"le CAFÉ"));
    EXPECT_TRUE(holds(u"SELF CONTAINS[d] 'cafe'", u"cafe\u0301"));
    EXPECT_TRUE(holds(u"SELF BEGINSWITH[c] 'AB'", u"abc"));
    EXPECT_FALSE(holds(u"SELF ENDSWITH 'ab'", u"abc"));
    EXPECT_TRUE(holds(u"SELF IN[d] 'abç'", u"bc"));
}

TEST_F(Predicate, ARegularExpressionMatchesAllOfAText) {
    const auto digits = u"SELF MATCHES '.*\\\\d+.*'";
    EXPECT_TRUE(holds(digits, u"a1"));
    EXPECT_TRUE(holds(digits, u"٣"));
    EXPECT_FALSE(holds(digits, u"abc\n123")) << "the dot stops at a line's end";
    EXPECT_FALSE(holds(u"SELF MATCHES 'a'", u"ab"));
    EXPECT_TRUE(holds(u"SELF MATCHES[c] 'AB'", u"ab"));
    EXPECT_TRUE(holds(u"SELF MATCHES[cd] '.*É.*'", u"une fee"));
    EXPECT_FALSE(holds(u"SELF MATCHES '('", u"x"));
}

TEST_F(Predicate, APatternStandsForAllOfAText) {
    EXPECT_TRUE(holds(u"SELF LIKE[cd] 'A*c'", u"à\nbC"));
    EXPECT_TRUE(holds(u"SELF LIKE 'a.?'", u"a.b"));
    EXPECT_FALSE(holds(u"SELF LIKE 'a.?'", u"abb"));
}

TEST_F(Predicate, LooksIntoRecordsAndKeepsThoseThatFit) {
    const auto record = ns::Dictionary::withObject(u"É1"_ns, u"content"_ns);
    EXPECT_TRUE(holds(u"content ==[cd] 'e1' AND content MATCHES '.*[0-9]'", record));
    EXPECT_FALSE(holds(u"content == 'e1'", record));
    EXPECT_TRUE(holds(u"content != 'e1'", record));
    const auto records = ns::MutableArray::make();
    records.add(record);
    records.add(ns::Dictionary::withObject(u"x"_ns, u"content"_ns));
    const auto kept =
        records.send<"filteredArrayUsingPredicate:", ns::Array>(made(u"content CONTAINS[d] 'E'"));
    EXPECT_EQ(kept.count(), 1U);
}

TEST_F(Predicate, OtherThingsAreComparedAsBefore) {
    EXPECT_TRUE(holds(u"length == 2", u"ab"));
    EXPECT_FALSE(holds(u"SELF == nil", u"a"));
}

TEST(TextComparison, KnowsNoOtherOperators) {
    EXPECT_EQ(desktop::holds(desktop::TextOperator{11}, u"a", u"ab", {}), std::nullopt);
}

} // namespace
