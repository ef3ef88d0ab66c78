// HexEditorViewController: the bytes of a file as hexadecimal numbers; nothing is edited.
#pragma once

#include "bindings/uikit/collection_view_controller.hpp"

namespace wentra::files {

/// Main thread only.
struct HexEditorViewController
    : objc::Kind<HexEditorViewController, "HexEditorViewController", ui::CollectionViewController> {
    using Kind::Kind;

    /// Reads the whole file when its view is loaded.
    static HexEditorViewController withFile(ns::String path) {
        return make<"initWithSrcPath:">(path);
    }
};

/// Declares the class.
[[gnu::cold]] void registerHexEditorViewController();

} // namespace wentra::files
