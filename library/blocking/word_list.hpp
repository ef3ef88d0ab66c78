// The words that decide about addresses, in an order in which they are found quickly.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wentra::blocking {

/// Texts to be sought in addresses. Compared unit by unit, upper and lower case apart. The empty
/// word is in no list. Never changes once made.
class WordList {
public:
    /// What it takes to decide about an address: one of the words is part of it, or all of it.
    enum class Rule { part, whole };

    /// The words are copied.
    WordList(std::vector<std::u16string_view> words, Rule rule);

    /// Whether the address meets the rule. What it takes grows with the address's length and hardly
    /// with the number of words.
    [[nodiscard]] bool decides(std::u16string_view address) const;

private:
    [[nodiscard]] bool hasWordAtStart(std::u16string_view text) const;

    Rule rule_;
    /// Sorted. Where a part decides, none is the beginning of another: the shorter one is enough.
    std::vector<std::u16string> words_;
};

} // namespace wentra::blocking
