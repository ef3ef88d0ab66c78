// Links in texts, and opening them.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/url.hpp"

namespace wentra {

/// The addresses of what the system takes for links in the text: of pages, with or without a
/// scheme, and of mail. Each once, in the text's order; empty for nil.
[[nodiscard]] ns::MutableArray linksIn(ns::String text);

/// Asks the system to open the URL in the application that it belongs to. Nothing for nil. Main
/// thread.
void openUrl(ns::Url url);

/// The same for an address; nothing when it is none.
void openLink(ns::String address);

} // namespace wentra
