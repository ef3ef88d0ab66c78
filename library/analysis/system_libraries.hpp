// Which lines of a crash report are about the system's own libraries.
#pragma once

#include <string_view>

namespace wentra::analysis {

/// The toolbox's tool and the analysis of reports each have their list, which differ in two names.
enum class SystemList { toolbox, reports };

/// Whether the line holds one of the list's names, anywhere, or a path into the system's
/// frameworks. A library that runs on every jailbroken phone (systemhook.dylib) counts as the
/// system's.
[[nodiscard]] bool isSystemLine(std::u16string_view line, SystemList list);

} // namespace wentra::analysis
