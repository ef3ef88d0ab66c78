// NSLayoutAnchor.
#pragma once

#include "bindings/uikit/layout_constraint.hpp"

namespace ui {

/// An edge or a middle of a view or guide.
struct LayoutAnchor : objc::Kind<LayoutAnchor, "NSLayoutAnchor"> {
    using Kind::Kind;

    /// This one equals the other plus so many points; not active yet.
    [[nodiscard]] LayoutConstraint equalTo(LayoutAnchor other, double constant = 0) const {
        return send<"constraintEqualToAnchor:constant:", LayoutConstraint>(other, constant);
    }
};

} // namespace ui
