// UmaCollectionViewController: two folders side by side, and what can be done with their entries.
#pragma once

#include "bindings/uikit/collection_view_controller.hpp"

namespace wentra::files {

/// Shown by a navigation controller, onto which it pushes the viewers. Whoever presents it sets
/// `path1` and `path2`, the folders of the left and the right pane, before its view is loaded; no
/// screen of the library does. Main thread only.
struct UmaCollectionViewController
    : objc::Kind<UmaCollectionViewController, "UmaCollectionViewController",
                 ui::CollectionViewController> {
    using Kind::Kind;
};

/// Declares the class.
[[gnu::cold]] void registerUmaCollectionViewController();

} // namespace wentra::files
