// Transliterates by ICU, as the phone does.
#include "desktop/foundation/string_transform.hpp"

#include "bindings/foundation/string_transform.hpp"
#include "bindings/objc/hook.hpp"
#include "desktop/foundation/gap_text.hpp"

#include <unicode/translit.h>

#include <map>
#include <memory>
#include <mutex>

// The platform's names; here they are ICU's identifiers.
const id NSStringTransformMandarinToLatin = ns::detail::stringConstant<u"Han-Latin">.object();
const id NSStringTransformStripDiacritics =
    ns::detail::stringConstant<u"NFD; [:Mn:] Remove; NFC">.object();

namespace desktop::foundation {
namespace {

icu::UnicodeString unicode(std::u16string_view text) {
    return {text.data(), static_cast<std::int32_t>(text.size())};
}

/// Making one takes long, so they are kept. Null for an identifier that ICU does not know.
const icu::Transliterator* transliterator(const std::u16string& identifier, bool reverse) {
    static std::mutex mutex;
    static std::map<std::pair<std::u16string, bool>, std::unique_ptr<icu::Transliterator>> made;
    const std::lock_guard lock(mutex);
    const auto [place, isNew] = made.try_emplace({identifier, reverse});
    if (isNew) {
        UErrorCode status = U_ZERO_ERROR;
        place->second.reset(icu::Transliterator::createInstance(
            unicode(identifier), reverse ? UTRANS_REVERSE : UTRANS_FORWARD, status));
    }
    return place->second.get();
}

ns::String transformed(ns::String text, ns::String transform, bool reverse) {
    const icu::Transliterator* const found = transliterator(transform.utf16(), reverse);
    if (found == nullptr) {
        return nullptr;
    }
    GapText result(text.utf16());
    found->transliterate(result);
    return ns::String::from(result.text());
}

} // namespace

void installStringTransforms() {
    objc::install(objc::addition<"NSString", "stringByApplyingTransform:reverse:", &transformed>());
}

} // namespace desktop::foundation
