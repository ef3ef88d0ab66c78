// Which labels may be copied by a long press, and where.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wentra::labels {

/// The user's switches for copying.
struct CopySwitches {
    bool copy = false;     ///< labels are copied by a long press
    bool suppress = false; ///< but not in the messaging applications
};

/// Whether labels of the application with that bundle identifier may be copied at all.
[[nodiscard]] bool copiesIn(std::string_view bundle, CopySwitches switches);

/// Whether a view inside one of that class gets no long press; `users` are the user's own classes.
[[nodiscard]] bool excludesCopying(std::u16string_view ancestorClass,
                                   const std::vector<std::u16string>& users);

/// Whether a long press inside a view of that class does nothing.
[[nodiscard]] bool excludesPressing(std::u16string_view ancestorClass);

/// Whether a label with this text is never copied: it is a messenger's own button.
[[nodiscard]] bool isNeverCopied(std::u16string_view text);

/// The user's list of classes; they stand between "," or "，", and nothing is trimmed.
[[nodiscard]] std::vector<std::u16string> splitClassNames(std::u16string_view list);

} // namespace wentra::labels
