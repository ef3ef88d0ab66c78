// Matches by ICU, as the phone does.
#include "desktop/foundation/regular_expression.hpp"

#include "bindings/foundation/regular_expression.hpp"
#include "bindings/objc/hook.hpp"

#include <unicode/regex.h>

#include <array>
#include <limits>
#include <vector>

namespace desktop::foundation {
namespace {

/// The platform's bits, from the lowest on, as ICU knows them.
constexpr std::array<std::uint32_t, 7> icuFlags{
    UREGEX_CASE_INSENSITIVE, UREGEX_COMMENTS,   UREGEX_LITERAL, UREGEX_DOTALL,
    UREGEX_MULTILINE,        UREGEX_UNIX_LINES, UREGEX_UWORD};

std::uint32_t flagsOf(unsigned long options) {
    std::uint32_t flags = 0;
    for (std::size_t bit = 0; bit < icuFlags.size(); ++bit) {
        flags |= (options >> bit & 1U) != 0 ? icuFlags.at(bit) : 0U;
    }
    return flags;
}

/// The text is borrowed.
icu::UnicodeString view(const std::u16string& text) {
    return {false, text.data(), static_cast<std::int32_t>(text.size())};
}

std::vector<ns::Range> groups(const icu::RegexMatcher& matcher) {
    std::vector<ns::Range> ranges;
    UErrorCode status = U_ZERO_ERROR;
    for (std::int32_t group = 0; group <= matcher.groupCount(); ++group) {
        const std::int32_t start = matcher.start(group, status);
        constexpr unsigned long notFound = std::numeric_limits<long>::max(); // NSNotFound
        ranges.push_back(
            start < 0 ? ns::Range{notFound, 0}
                      : ns::Range{static_cast<unsigned long>(start),
                                  static_cast<unsigned long>(matcher.end(group, status) - start)});
    }
    return ranges;
}

ns::TextCheckingResult result(std::vector<ns::Range> ranges, ns::RegularExpression expression) {
    return objc::send<"regularExpressionCheckingResultWithRanges:count:regularExpression:",
                      ns::TextCheckingResult>(
        objc::object(ns::TextCheckingResult::classObject()), ranges.data(),
        static_cast<unsigned long>(ranges.size()), expression);
}

using Matches = ns::ArrayOf<ns::TextCheckingResult>;
using Matching = objc::Next<Matches(ns::String, unsigned long, ns::Range)>;
Matches matches(Matching /*next*/, ns::RegularExpression expression, ns::String text,
                unsigned long /*options*/, ns::Range range) {
    const auto found = ns::MutableArray::make();
    UErrorCode status = U_ZERO_ERROR;
    const std::u16string pattern = expression.send<"pattern", ns::String>().utf16();
    const std::u16string units = text.utf16();
    icu::RegexMatcher matcher(view(pattern), flagsOf(expression.send<"options", unsigned long>()),
                              status);
    const icu::UnicodeString searched = view(units);
    matcher.reset(searched);
    matcher.region(static_cast<std::int64_t>(range.location),
                   static_cast<std::int64_t>(range.location + range.length), status);
    while (U_SUCCESS(status) != 0 && matcher.find(status) != 0) {
        found.add(result(groups(matcher), expression));
    }
    return found.assume<Matches>();
}

} // namespace

void installRegularExpressions() {
    objc::install(objc::hook<"matchesInString:options:range:", &matches>());
}

} // namespace desktop::foundation
