// A long text in pages, so that a text view never sets all of it at once.
#pragma once

#include <string_view>
#include <vector>

namespace wentra::files {

/// Of the viewer's pages, in UTF-16 units.
inline constexpr unsigned long pageSize = 268000;

/// The text in pages of that many units, the last one with what is left; they are views of the
/// text, and words, lines and surrogate pairs may be cut in two. None of an empty text or for a
/// size of 0.
[[nodiscard]] inline std::vector<std::u16string_view> pagesOf(std::u16string_view text,
                                                              unsigned long size) {
    std::vector<std::u16string_view> pages;
    for (; size > 0 && !text.empty(); text.remove_prefix(pages.back().size())) {
        pages.push_back(text.substr(0, size));
    }
    return pages;
}

} // namespace wentra::files
