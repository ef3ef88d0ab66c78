// Units move over the gap, one by one.
#include "desktop/foundation/gap_text.hpp"

#include <unicode/utf16.h>

namespace desktop::foundation {

std::u16string GapText::text() const {
    std::u16string whole = before_;
    return whole.append(after_.rbegin(), after_.rend());
}

void GapText::extractBetween(std::int32_t start, std::int32_t limit,
                             icu::UnicodeString& target) const {
    target.remove();
    for (; start < limit; ++start) {
        target.append(getCharAt(start));
    }
}

void GapText::handleReplaceBetween(std::int32_t start, std::int32_t limit,
                                   const icu::UnicodeString& text) {
    moveGapTo(static_cast<std::size_t>(start));
    after_.resize(after_.size() - static_cast<std::size_t>(limit - start));
    before_.append(text.getBuffer(), static_cast<std::size_t>(text.length()));
}

void GapText::copy(std::int32_t start, std::int32_t limit, std::int32_t place) {
    icu::UnicodeString part;
    extractBetween(start, limit, part);
    handleReplaceBetween(place, place, part);
}

std::int32_t GapText::getLength() const {
    return static_cast<std::int32_t>(before_.size() + after_.size());
}

char16_t GapText::getCharAt(std::int32_t place) const {
    const auto at = static_cast<std::size_t>(place);
    return at < before_.size() ? before_[at] : after_[after_.size() - 1 - (at - before_.size())];
}

/// The whole character of which a unit is at that place.
UChar32 GapText::getChar32At(std::int32_t place) const {
    const char16_t unit = getCharAt(place);
    if (U16_IS_LEAD(unit) && place + 1 < getLength() && U16_IS_TRAIL(getCharAt(place + 1))) {
        return U16_GET_SUPPLEMENTARY(unit, getCharAt(place + 1));
    }
    if (U16_IS_TRAIL(unit) && place > 0 && U16_IS_LEAD(getCharAt(place - 1))) {
        return U16_GET_SUPPLEMENTARY(getCharAt(place - 1), unit);
    }
    return unit;
}

void GapText::moveGapTo(std::size_t place) {
    for (; before_.size() > place; before_.pop_back()) {
        after_ += before_.back();
    }
    for (; before_.size() < place; after_.pop_back()) {
        before_ += after_.back();
    }
}

} // namespace desktop::foundation
