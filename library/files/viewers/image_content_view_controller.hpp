// ImageContentViewController: image files as pages, each of which can be zoomed.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/url.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace wentra::files {

/// Shown by a navigation controller. Main thread only.
struct ImageContentViewController
    : objc::Kind<ImageContentViewController, "ImageContentViewController", ui::ViewController> {
    using Kind::Kind;

    /// The images in their order, and which of them is shown first.
    static ImageContentViewController with(ns::ArrayOf<ns::Url> urls, long index) {
        const auto controller = make();
        controller.send<"setImageURLs:">(urls);
        controller.send<"setCurrentIndex:">(index);
        return controller;
    }
};

/// Declares the class.
[[gnu::cold]] void registerImageContentViewController();

} // namespace wentra::files
