// FileContentViewController: a text file to read, search, colour, edit and save.
#pragma once

#include "bindings/foundation/url.hpp"
#include "bindings/uikit/button.hpp"
#include "bindings/uikit/text_view.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace wentra::files {

/// Shown by a navigation controller, whose bar holds the save button. Main thread only.
struct FileContentViewController
    : objc::Kind<FileContentViewController, "FileContentViewController", ui::ViewController> {
    using Kind::Kind;

    /// For the whole text of a file, and where saving writes.
    static FileContentViewController with(ns::String content, ns::Url url) {
        const auto controller = make();
        controller.send<"setFileContent:">(content);
        controller.send<"setFileURL:">(url);
        return controller;
    }

    [[nodiscard]] ns::String fileContent() const { return send<"fileContent", ns::String>(); }
    [[nodiscard]] ns::Url fileUrl() const { return send<"fileURL", ns::Url>(); }
    [[nodiscard]] ui::TextView textView() const { return send<"textView", ui::TextView>(); }
};

/// Declares the class.
[[gnu::cold]] void registerFileContentViewController();

} // namespace wentra::files
