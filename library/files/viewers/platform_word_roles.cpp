// One character as a text of its own, matched against the two classes.
#include "library/files/viewers/platform_word_roles.hpp"

#include "library/common/surrogates.hpp"

#include <string>

namespace wentra::files {
namespace {

/// The character's units in UTF-16.
std::u16string unitsOf(char32_t character) {
    if (character < 0x10000) {
        return {static_cast<char16_t>(character)};
    }
    return {static_cast<char16_t>(0xD7C0U + (character >> 10U)),
            static_cast<char16_t>(0xDC00U + (character & 0x3FFU))};
}

} // namespace

WordRole PlatformWordRoles::operator()(char32_t character) {
    const auto [entry, isNew] = known_.try_emplace(character);
    if (isNew) {
        entry->second = asked(character);
    }
    return entry->second;
}

WordRole PlatformWordRoles::asked(char32_t character) const {
    if (isSurrogate(character)) {
        return WordRole::other; // half a pair, which is no character
    }
    const auto text = ns::String::from(unitsOf(character));
    const ns::Range all{0, text.length()};
    return combining_.matches(text, all).count() > 0 ? WordRole::combining
           : word_.matches(text, all).count() > 0    ? WordRole::word
                                                     : WordRole::other;
}

} // namespace wentra::files
