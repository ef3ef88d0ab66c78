// What the filters look for. Paths in reports carry JSON's backslashes.
#include "library/analysis/line_filters.hpp"

#include "library/common/decimal_digits.hpp"
#include "library/common/text_parts.hpp"

#include <array>

namespace wentra::analysis {
namespace {

bool holds(std::u16string_view line, std::u16string_view sought) {
    return line.find(sought) != line.npos;
}

bool holdsUrl(std::u16string_view line) { return holds(line, u"://"); }
bool holdsDylib(std::u16string_view line) { return holds(line, u".dylib"); }
bool holdsSystemPath(std::u16string_view line) { return holds(line, u"\\/System\\/Library\\/"); }
bool holdsLibrary(std::u16string_view line) {
    return holdsDylib(line) || holds(line, u"\\/usr\\/lib\\/") || holdsSystemPath(line);
}
bool holdsForeignPath(std::u16string_view line) {
    return holds(line, u"\\/private\\/preboot\\/") || holds(line, u"\\/private\\/var\\/containers");
}
bool holdsTwoDigits(std::u16string_view line) { return countDecimalDigits(line) >= 2; }

constexpr std::array keys{pathKey, nameKey};
constexpr std::array paths{pathKey, nameKey, backslashes, quoteComma};
constexpr std::array libraries{pathKey, nameKey, backslashes, abortNote, quoteComma};

constexpr std::u16string_view line = u"\n";
constexpr std::u16string_view paragraph = u"\n\n";

} // namespace

constexpr LineFilter urlFilter{u"过滤网站结果", &holdsUrl, keys, paragraph};
constexpr LineFilter libraryFilter{u"可执行库结果", &holdsLibrary, libraries, paragraph};
constexpr LineFilter dylibFilter{u"dylib结果", &holdsDylib, libraries, paragraph};
constexpr LineFilter errorFilter{u"异常插件", &holdsForeignPath, paths, paragraph};
constexpr LineFilter systemFilter{u"system可执行库", &holdsSystemPath, paths, paragraph};
constexpr LineFilter numberFilter{u"过滤数字结果", &holdsTwoDigits, {}, line};

std::u16string filtered(std::u16string_view text, const LineFilter& filter) {
    std::u16string result;
    for (const std::u16string_view candidate : split(text, isLineFeed)) {
        if (filter.keeps(candidate)) {
            result.append(cleaned(candidate, filter.cleaning)).append(filter.separator);
        }
    }
    return result;
}

} // namespace wentra::analysis
