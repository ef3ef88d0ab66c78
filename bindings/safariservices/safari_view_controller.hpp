// SFSafariViewController.
#pragma once

#include "bindings/foundation/url.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace sf {

struct SafariViewController
    : objc::Kind<SafariViewController, "SFSafariViewController", ui::ViewController> {
    using Kind::Kind;

    /// Raises for a URL that is neither http nor https.
    static SafariViewController with(ns::Url url) { return make<"initWithURL:">(url); }
};

} // namespace sf
