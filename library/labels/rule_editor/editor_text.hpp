// What the rule editor's buttons do to text, positions and pages: its rules without its views.
#pragma once

#include "bindings/foundation/range.hpp"

#include <cstddef>
#include <string>
#include <string_view>

namespace wentra::labels {

// Text is UTF-16; positions and ranges count its units, and may lie beyond its end.

/// The word around a caret position: what stands between spaces, line breaks and punctuation. Empty
/// where no letter touches the caret.
[[nodiscard]] ns::Range wordAt(std::u16string_view text, std::size_t position);

/// The lines that a selection touches, with the break that ends the last of them.
[[nodiscard]] ns::Range linesOf(std::u16string_view text, ns::Range selection);

/// Whether the text ends with the four line breaks that save it.
[[nodiscard]] bool endsWithFourBreaks(std::u16string_view text);

/// The text without the help that the editor shows above the rules.
[[nodiscard]] std::u16string withoutHelp(std::u16string_view text);

/// A scroll offset one page higher; never above the start of the content. In points.
[[nodiscard]] double previousPage(double offset, double height);

/// A scroll offset one page lower; never below the content's last page, which is negative for
/// content lower than the view.
[[nodiscard]] double nextPage(double offset, double height, double contentHeight);

} // namespace wentra::labels
