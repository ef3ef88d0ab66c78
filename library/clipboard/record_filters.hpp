// Which texts the list of copied texts shows.
#pragma once

#include <string_view>

namespace wentra::clipboard {

/// The filters that are on; a text passes when it passes each of them.
struct RecordFilters {
    bool links = false;   ///< the text has "http" in it, in small letters
    bool numbers = false; ///< it is one line with a decimal digit of any script
    bool letters = false; ///< it is one line with an ASCII letter
};

[[nodiscard]] bool passes(std::u16string_view text, const RecordFilters& filters);

} // namespace wentra::clipboard
