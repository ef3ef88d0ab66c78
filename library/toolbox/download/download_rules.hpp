// What can be downloaded, what is offered, and what it is called.
#pragma once

#include <string_view>

namespace wentra::toolbox {

/// Whether the text is the address of something on the web: it begins with its scheme, in small
/// letters.
[[nodiscard]] bool isWebAddress(std::u16string_view text);

/// Whether the filter leaves the link out: it leads to a site or to a part of a page.
[[nodiscard]] bool isFilteredOut(std::u16string_view link);

/// The name as that of a file in a folder, whatever a server has made of it: what is behind the
/// last slash, or "download" when that is nothing.
[[nodiscard]] std::u16string_view fileNameIn(std::u16string_view name);

} // namespace wentra::toolbox
