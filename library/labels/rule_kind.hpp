// The nine kinds of label rule: their markers, their storage keys and the three orders they come
// in.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace wentra::labels {

/// What a rule changes about a label; the enumerators are in the order of `ruleKinds`.
enum class RuleKind : std::uint8_t {
    text,
    colour,
    size,
    height,
    width,
    font,
    horizontal,
    vertical,
    alpha
};

inline constexpr std::size_t ruleKindCount = 9;

using RuleKindOrder = std::array<RuleKind, ruleKindCount>;

/// The order in which a line is searched for markers; the first marker it contains decides.
inline constexpr RuleKindOrder recognitionOrder{
    RuleKind::text,     RuleKind::colour, RuleKind::size,  RuleKind::height, RuleKind::horizontal,
    RuleKind::vertical, RuleKind::alpha,  RuleKind::width, RuleKind::font};

/// The order in which the maps of the kinds are stored.
inline constexpr RuleKindOrder storingOrder{
    RuleKind::text, RuleKind::colour,     RuleKind::size,     RuleKind::height, RuleKind::width,
    RuleKind::font, RuleKind::horizontal, RuleKind::vertical, RuleKind::alpha};

/// The order in which the kinds are listed in the editor.
inline constexpr RuleKindOrder listingOrder{
    RuleKind::text,       RuleKind::colour,   RuleKind::size,  RuleKind::height, RuleKind::width,
    RuleKind::horizontal, RuleKind::vertical, RuleKind::alpha, RuleKind::font};

/// How one kind of rule is written and stored.
struct RuleKindNames {
    /// What stands between the key and the value of a rule.
    std::u16string_view marker;
    /// The defaults key under which the kind's map is stored.
    std::u16string_view defaultsKey;
};

/// The names of each kind, in the order of the enumerators.
inline constexpr std::array<RuleKindNames, ruleKindCount> ruleKinds{{
    {u"===", u"zerk"},
    {u"#=", u"改色zerk"},
    {u"#÷=", u"大小zerk"},
    {u"#g=", u"高度zerk"},
    {u"#k=", u"宽度zerk"},
    {u"#z=", u"字体zerk"},
    {u"#x=", u"横向zerk"},
    {u"#y=", u"纵向zerk"},
    {u"#t=", u"透明zerk"},
}};

/// The place of a kind in a table that has one entry for each kind.
constexpr std::size_t ruleKindIndex(RuleKind kind) { return static_cast<std::size_t>(kind); }

/// How a kind is written and stored.
constexpr const RuleKindNames& ruleKindNames(RuleKind kind) {
    return ruleKinds[ruleKindIndex(kind)];
}

} // namespace wentra::labels
