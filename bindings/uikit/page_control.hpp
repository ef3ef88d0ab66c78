// UIPageControl: which of several pages is shown, as a row of dots.
#pragma once

#include "bindings/uikit/control.hpp"

namespace ui {

struct PageControl : objc::Kind<PageControl, "UIPageControl", Control> {
    using Kind::Kind;

    /// From 0 on; 0 for nil.
    [[nodiscard]] long currentPage() const { return send<"currentPage", long>(); }
};

} // namespace ui
