// Units of text and symbols.
#include "library/toolbox/grid/text_counts.hpp"

namespace wentra::toolbox {
namespace {

constexpr bool isText(char16_t unit) {
    const auto between = [unit](char16_t first, char16_t last) {
        return unit >= first && unit <= last;
    };
    return between(u'一', u'龥') || between(u'a', u'z') || between(u'A', u'Z') ||
           between(u'0', u'9');
}

} // namespace

void countUnits(std::u16string_view text, TextCounts& counts) {
    for (const char16_t unit : text) {
        ++(isText(unit) ? counts.words : counts.symbols);
    }
}

} // namespace wentra::toolbox
