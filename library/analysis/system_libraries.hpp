// Which lines of a crash report are about the system's own libraries.
#pragma once

#include "library/common/search_ahead.hpp"

#include <string_view>

namespace wentra::analysis {

/// The toolbox's tool and the analysis of reports each have their list, which differ in two names.
enum class SystemList { toolbox, reports };

/// The list's names in a text, and paths into the system's frameworks. A library that runs on every
/// jailbroken phone (systemhook.dylib) counts as the system's. The text is borrowed.
class SystemNames {
public:
    SystemNames(std::u16string_view text, SystemList list);

    /// Whether one stands in the line of those bounds. Lines are asked about in their order.
    [[nodiscard]] bool standIn(std::size_t start, std::size_t end);

private:
    std::u16string_view text_;
    SystemList list_;
    SearchAhead dots_;
    SearchAhead paths_;
};

/// Whether one stands in the line, anywhere.
[[nodiscard]] bool isSystemLine(std::u16string_view line, SystemList list);

} // namespace wentra::analysis
