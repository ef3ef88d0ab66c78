// What can be opened of a text, beside its web links.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wentra::toolbox {

/// The paths of the phone's file system that the text names, from one of the folders at its root to
/// the next white space, each once, in the text's order.
[[nodiscard]] std::vector<std::u16string> pathsIn(std::u16string_view text);

/// The scheme of the application whose share code the text is, as "taobao://"; empty for other
/// texts.
[[nodiscard]] std::u16string_view sharedScheme(std::u16string_view text);

} // namespace wentra::toolbox
