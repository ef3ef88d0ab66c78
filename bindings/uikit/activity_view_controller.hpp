// UIActivityViewController.
#pragma once

#include "bindings/uikit/view_controller.hpp"

namespace ui {

struct ActivityViewController
    : objc::Kind<ActivityViewController, "UIActivityViewController", ViewController> {
    using Kind::Kind;
    /// The chosen activity's type (nil: none), whether it was carried out, what it returned, and
    /// the error, if any.
    using CompletionWithItems =
        objc::Block<void(ns::String type, bool completed, ns::Array items, objc::Object error)>;

    /// Strings, URLs, images or data.
    static ActivityViewController sharing(ns::Array items) {
        return make<"initWithActivityItems:applicationActivities:">(items, ns::Array());
    }
    void setCompletionWithItemsHandler(CompletionWithItems handler) const {
        send<"setCompletionWithItemsHandler:">(handler);
    }
};

} // namespace ui
