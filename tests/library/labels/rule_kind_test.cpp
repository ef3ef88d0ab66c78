// Checks that the three orders name every kind once, and that no two kinds share a name.
#include "library/labels/rule_kind.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string_view>
#include <utility>

namespace wentra::labels {
namespace {

TEST(RuleKind, everyOrderNamesEveryKindOnce) {
    for (const RuleKindOrder& order : {recognitionOrder, storingOrder, listingOrder}) {
        EXPECT_EQ(std::set<RuleKind>(order.begin(), order.end()).size(), ruleKindCount);
    }
}

TEST(RuleKind, noTwoKindsShareAMarkerOrAKey) {
    std::set<std::u16string_view> markers;
    std::set<std::u16string_view> keys;
    for (const RuleKindNames& names : ruleKinds) {
        markers.insert(names.marker);
        keys.insert(names.defaultsKey);
    }
    EXPECT_EQ(markers.size(), ruleKindCount);
    EXPECT_EQ(keys.size(), ruleKindCount);
}

TEST(RuleKind, eachKindIsStoredUnderItsOwnKey) {
    const std::pair<RuleKind, std::u16string_view> expected[] = {
        {RuleKind::text, u"zerk"},           {RuleKind::colour, u"改色zerk"},
        {RuleKind::size, u"大小zerk"},       {RuleKind::height, u"高度zerk"},
        {RuleKind::width, u"宽度zerk"},      {RuleKind::font, u"字体zerk"},
        {RuleKind::horizontal, u"横向zerk"}, {RuleKind::vertical, u"纵向zerk"},
        {RuleKind::alpha, u"透明zerk"},
    };
    for (const auto& [kind, key] : expected) {
        EXPECT_EQ(ruleKindNames(kind).defaultsKey, key);
    }
}

} // namespace
} // namespace wentra::labels
