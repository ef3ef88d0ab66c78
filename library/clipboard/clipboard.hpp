// The room of the clipboard as the start-up sees it.
#pragma once

#include "library/common/face.hpp"

namespace wentra::clipboard {

/// The list of copied texts, the quick switches and the text editor.
[[gnu::cold]] Face face();

} // namespace wentra::clipboard
