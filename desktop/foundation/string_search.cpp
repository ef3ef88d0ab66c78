// Searches by ICU, which knows what is an accent of what.
#include "desktop/foundation/string_search.hpp"

#include "bindings/foundation/string.hpp"
#include "bindings/objc/hook.hpp"

#include <unicode/stsearch.h>
#include <unicode/tblcoll.h>

#include <limits>
#include <memory>

namespace desktop::foundation {
namespace {

constexpr ns::Range nowhere{std::numeric_limits<long>::max(), 0};

bool has(ns::StringCompareOptions options, ns::StringCompareOptions option) {
    return (options & option) == option;
}

icu::UnicodeString unicode(std::u16string_view text) {
    return {text.data(), static_cast<std::int32_t>(text.size())};
}

/// Of the first strength, at which accents do not count; case does as far as it is told to.
std::unique_ptr<icu::Collator> collator(ns::StringCompareOptions options, UErrorCode& status) {
    std::unique_ptr<icu::Collator> made(
        icu::Collator::createInstance(icu::Locale::getRoot(), status));
    if (U_SUCCESS(status)) {
        made->setStrength(icu::Collator::PRIMARY);
        const bool ignoresCase = has(options, ns::StringCompareOptions::caseInsensitive);
        made->setAttribute(UCOL_CASE_LEVEL, ignoresCase ? UCOL_OFF : UCOL_ON, status);
    }
    return made;
}

/// The search itself does not look at cases: what it finds is compared.
bool isFound(const icu::StringSearch& search, const icu::Collator& rules) {
    icu::UnicodeString match;
    search.getMatchedText(match);
    return rules.compare(match, search.getPattern()) == 0;
}

ns::Range find(std::u16string_view text, std::u16string_view sought,
               ns::StringCompareOptions options) {
    UErrorCode status = U_ZERO_ERROR;
    const auto rules = collator(options, status);
    icu::StringSearch search(unicode(sought), unicode(text),
                             dynamic_cast<icu::RuleBasedCollator*>(rules.get()), nullptr, status);
    const bool fromEnd = has(options, ns::StringCompareOptions::backwards);
    std::int32_t place = fromEnd ? search.last(status) : search.first(status);
    while (U_SUCCESS(status) && place != USEARCH_DONE && !isFound(search, *rules)) {
        place = fromEnd ? search.previous(status) : search.next(status);
    }
    return U_FAILURE(status) || place == USEARCH_DONE
               ? nowhere
               : ns::Range{static_cast<unsigned long>(place),
                           static_cast<unsigned long>(search.getMatchedLength())};
}

using Finder = objc::Next<ns::Range(ns::String, ns::StringCompareOptions, ns::Range, objc::Object)>;
ns::Range range(Finder next, ns::String self, ns::String sought, ns::StringCompareOptions options,
                ns::Range within, objc::Object locale) {
    if (!has(options, ns::StringCompareOptions::diacriticInsensitive) || sought.length() == 0) {
        return next(sought, options, within, locale);
    }
    const std::u16string text = self.utf16();
    ns::Range found = find(std::u16string_view(text).substr(within.location, within.length),
                           sought.utf16(), options);
    found.location += found.length > 0 ? within.location : 0;
    return found;
}

} // namespace

void installStringSearch() {
    objc::install(objc::hook<"rangeOfString:options:range:locale:", &range>());
}

} // namespace desktop::foundation
