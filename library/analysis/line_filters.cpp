// What the filters look for. Paths in reports carry JSON's backslashes.
#include "library/analysis/line_filters.hpp"

#include "library/analysis/lines_holding.hpp"
#include "library/common/decimal_digits.hpp"
#include "library/common/text_parts.hpp"

#include <array>

namespace wentra::analysis {
namespace {

using Lines = std::vector<std::u16string_view>;

template <std::size_t Count>
using Fragments = std::array<std::u16string_view, Count>;
constexpr Fragments<1> urls{u"://"};
constexpr Fragments<3> libraryMarks{u".dylib", u"\\/usr\\/lib\\/", u"\\/System\\/Library\\/"};
constexpr Fragments<1> dylibs{u".dylib"};
constexpr Fragments<2> foreignPaths{u"\\/private\\/preboot\\/", u"\\/private\\/var\\/containers"};
constexpr Fragments<1> systemPaths{u"\\/System\\/Library\\/"};

template <const auto& Fragments>
Lines linesWith(std::u16string_view text) {
    return linesHolding(text, Fragments);
}

Lines linesWithTwoDigits(std::u16string_view text) {
    Lines lines = split(text, u'\n');
    std::erase_if(lines, [](std::u16string_view line) { return !holdsDecimalDigits(line, 2); });
    return lines;
}

constexpr std::array keys{pathKey, nameKey};
constexpr std::array paths{pathKey, nameKey, backslashes, quoteComma};
constexpr std::array libraryPaths{pathKey, nameKey, backslashes, abortNote, quoteComma};

constexpr std::u16string_view lineEnd = u"\n";
constexpr std::u16string_view paragraph = u"\n\n";

} // namespace

constexpr LineFilter urlFilter{u"过滤网站结果", &linesWith<urls>, keys, paragraph};
constexpr LineFilter libraryFilter{u"可执行库结果", &linesWith<libraryMarks>, libraryPaths,
                                   paragraph};
constexpr LineFilter dylibFilter{u"dylib结果", &linesWith<dylibs>, libraryPaths, paragraph};
constexpr LineFilter errorFilter{u"异常插件", &linesWith<foreignPaths>, paths, paragraph};
constexpr LineFilter systemFilter{u"system可执行库", &linesWith<systemPaths>, paths, paragraph};
constexpr LineFilter numberFilter{u"过滤数字结果", &linesWithTwoDigits, {}, lineEnd};

std::u16string filtered(std::u16string_view text, const LineFilter& filter) {
    return cleaned(filter.pick(text), filter.separator, filter.cleaning);
}

} // namespace wentra::analysis
