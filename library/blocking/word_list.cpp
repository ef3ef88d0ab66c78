// Sorting the words, and looking them up.
#include "library/blocking/word_list.hpp"

#include <algorithm>
#include <functional>

namespace wentra::blocking {
namespace {

using Words = std::vector<std::u16string_view>;

Words sorted(Words words) {
    std::ranges::sort(words);
    words.erase(std::unique(words.begin(), words.end()), words.end());
    std::erase(words, std::u16string_view());
    return words;
}

/// What begins with another word stands behind it and all that begins with that one, too.
Words withoutLongerOnes(const Words& sorted) {
    Words kept;
    for (const std::u16string_view word : sorted) {
        if (kept.empty() || !word.starts_with(kept.back())) {
            kept.push_back(word);
        }
    }
    return kept;
}

} // namespace

WordList::WordList(Words words, Rule rule) : rule_(rule) {
    words = sorted(std::move(words));
    if (rule_ == Rule::part) {
        words = withoutLongerOnes(words);
    }
    words_.assign(words.begin(), words.end());
}

/// Only the last word that does not come after the text can be its beginning: a word between the
/// two would have to begin with it.
bool WordList::hasWordAtStart(std::u16string_view text) const {
    const auto after = std::ranges::upper_bound(words_, text, std::less<>());
    return after != words_.begin() && text.starts_with(*std::prev(after));
}

bool WordList::decides(std::u16string_view address) const {
    if (rule_ == Rule::whole) {
        return std::ranges::binary_search(words_, address, std::less<>());
    }
    for (; !address.empty(); address.remove_prefix(1)) {
        if (hasWordAtStart(address)) {
            return true;
        }
    }
    return false;
}

} // namespace wentra::blocking
