// Paths in texts, as links to the file manager.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wentra {

/// Links that show, in the file manager application, the paths of the phone's file system that the
/// text names: from one of the folders at its root to the next white space, after "filza://". Each
/// once, in the text's order.
[[nodiscard]] std::vector<std::u16string> pathLinksIn(std::u16string_view text);

} // namespace wentra
