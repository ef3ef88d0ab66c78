// Views held in place by equations between their edges.
#pragma once

#include "bindings/uikit/layout_dimension.hpp"
#include "bindings/uikit/view.hpp"

namespace ui {

/// A view, or a rectangle in one, by the anchors that both have.
struct LayoutItem : objc::Object {
    explicit constexpr LayoutItem(objc::Object item) : Object(item) {}

    /// The part of the view that no bar of the system covers.
    static LayoutItem safeAreaOf(View view) {
        return LayoutItem(view.send<"safeAreaLayoutGuide", objc::Object>());
    }

    [[nodiscard]] LayoutAnchor leading() const { return send<"leadingAnchor", LayoutAnchor>(); }
    [[nodiscard]] LayoutAnchor trailing() const { return send<"trailingAnchor", LayoutAnchor>(); }
    [[nodiscard]] LayoutAnchor top() const { return send<"topAnchor", LayoutAnchor>(); }
    [[nodiscard]] LayoutAnchor bottom() const { return send<"bottomAnchor", LayoutAnchor>(); }
    [[nodiscard]] LayoutAnchor centerX() const { return send<"centerXAnchor", LayoutAnchor>(); }
    [[nodiscard]] LayoutDimension width() const { return send<"widthAnchor", LayoutDimension>(); }
    [[nodiscard]] LayoutDimension height() const { return send<"heightAnchor", LayoutDimension>(); }
};

/// Leaves the view's place to constraints alone, and gives its anchors.
inline LayoutItem constrained(View view) {
    view.send<"setTranslatesAutoresizingMaskIntoConstraints:">(false);
    return LayoutItem(view);
}

} // namespace ui
