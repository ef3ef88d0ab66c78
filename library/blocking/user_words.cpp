// Cutting at commas.
#include "library/blocking/user_words.hpp"

#include "library/common/text_parts.hpp"

namespace wentra::blocking {

std::vector<std::u16string> wordsEndedByCommas(std::u16string_view text) {
    std::u16string line(text);
    std::erase(line, u'\n');
    std::vector<std::u16string_view> parts = wordsBetweenCommas(line);
    parts.pop_back();
    std::vector<std::u16string> words;
    for (const std::u16string_view part : parts) {
        const std::u16string_view word = part.substr(part.rfind(u'#') + 1);
        if (!word.empty()) {
            words.emplace_back(word);
        }
    }
    return words;
}

std::vector<std::u16string_view> wordsBetweenCommas(std::u16string_view text) {
    return split(text, u',');
}

} // namespace wentra::blocking
