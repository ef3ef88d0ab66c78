// Searches that accents do not hinder.
#include "desktop/foundation/string_search.hpp"

#include "bindings/foundation/string.hpp"
#include "bindings/objc/pool.hpp"

#include <gtest/gtest.h>

namespace {

using enum ns::StringCompareOptions;
using ns::operator|;

struct Case {
    std::u16string_view text;
    std::u16string_view sought;
    ns::StringCompareOptions options;
    long location; ///< -1: nowhere
};

const Case cases[]{
    {u"a Café", u"cafe", caseInsensitive | diacriticInsensitive, 2},
    {u"a Cafe\u0301", u"CAFÉ", caseInsensitive | diacriticInsensitive, 2},
    {u"a cafe", u"é", caseInsensitive | diacriticInsensitive, 5},
    {u"a Café", u"Cafe", diacriticInsensitive, 2},
    {u"a Café", u"cafe", diacriticInsensitive, -1},
    {u"Cafe café", u"é", diacriticInsensitive | backwards, 8},
    {u"Cafe café", u"cafe", diacriticInsensitive, 5},
    {u"a Café", u"cafe", caseInsensitive, -1},
    {u"JetsamEvent.ips", u"JetSam", caseInsensitive | diacriticInsensitive, 0},
    {u"JetsamEvent.ips", u"event.", caseInsensitive | diacriticInsensitive, 6},
    {u"é e", u"e", diacriticInsensitive | backwards, 2},
    {u"日志", u"志", caseInsensitive | diacriticInsensitive, 1},
    {u"", u"e", diacriticInsensitive, -1},
    {u"e", u"", diacriticInsensitive, -1},
};

TEST(StringSearch, FindsWhatDiffersInAccents) {
    desktop::foundation::installStringSearch();
    const objc::Pool pool;
    for (const Case& each : cases) {
        const auto text = ns::String::from(each.text);
        const auto found =
            text.rangeOf(ns::String::from(each.sought), each.options, {0, text.length()});
        EXPECT_EQ(found ? static_cast<long>(found->location) : -1, each.location)
            << text.utf8() << " " << ns::String::from(each.sought).utf8();
    }
}

TEST(StringSearch, StaysWithinTheRange) {
    desktop::foundation::installStringSearch();
    const objc::Pool pool;
    const auto found =
        ns::String::from(u"é é é").rangeOf(ns::String::from(u"e"), diacriticInsensitive, {1, 3});
    ASSERT_TRUE(found);
    EXPECT_EQ(found->location, 2U);
    EXPECT_EQ(found->length, 1U);
}

} // namespace
