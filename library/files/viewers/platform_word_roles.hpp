// What the platform's regular expressions make of a character where a word may begin or end.
#pragma once

#include "bindings/foundation/regular_expression.hpp"
#include "library/files/viewers/syntax_colours.hpp"

#include <map>

namespace wentra::files {

/// Asks about each character once.
class PlatformWordRoles {
public:
    WordRole operator()(char32_t character);

private:
    [[nodiscard]] WordRole asked(char32_t character) const;

    std::map<char32_t, WordRole> known_;
    // What has a pattern of ours has an expression.
    objc::Strong<ns::RegularExpression> combining_ = expression(u"[\\p{Grapheme_Extend}\\p{Cf}]");
    objc::Strong<ns::RegularExpression> word_ = expression(u"\\w");

    static ns::RegularExpression expression(std::u16string_view pattern) {
        return ns::RegularExpression::withPattern(ns::String::from(pattern)).value;
    }
};

} // namespace wentra::files
