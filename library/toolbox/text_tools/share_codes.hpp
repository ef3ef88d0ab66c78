// Texts by which applications share things with one another.
#pragma once

#include <string_view>

namespace wentra::toolbox {

/// The scheme of the application whose share code the text is, as "taobao://"; empty for other
/// texts.
[[nodiscard]] std::u16string_view sharedScheme(std::u16string_view text);

} // namespace wentra::toolbox
