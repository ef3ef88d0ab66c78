// UISearchBar: a field for what is sought.
#pragma once

#include "bindings/uikit/view.hpp"

namespace ui {

struct SearchBar : objc::Kind<SearchBar, "UISearchBar", View> {
    using Kind::Kind;

    [[nodiscard]] ns::String text() const { return send<"text", ns::String>(); }
    void setText(ns::String text) const { send<"setText:">(text); }
    void setPlaceholder(ns::String text) const { send<"setPlaceholder:">(text); }
    /// Told of each change by `searchBar:textDidChange:`. Not retained.
    void setDelegate(objc::Object delegate) const { send<"setDelegate:">(delegate); }
};

} // namespace ui
