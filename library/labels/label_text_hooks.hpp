// The hooks that every label text passes: restyling and replacing by the user's rules.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::labels {

/// Exchanges `setText:` of UILabel with `hook_setText:`, the rewriting.
[[gnu::cold]] std::span<const objc::Change> labelTextLoad();

/// The same for YYLabel, with its smaller set of font rules; nothing where it has no `setText:`.
[[gnu::cold]] std::span<const objc::Change> yyLabelTextLoad();

/// The small hook around the rewriting on UILabel, which never shows one particular text.
[[gnu::cold]] std::span<const objc::Change> labelTextHooks();

} // namespace wentra::labels
