// UIProgressView.
#pragma once

#include "bindings/uikit/view.hpp"

namespace ui {

/// The platform's numbers.
enum class ProgressViewStyle : long { default_ = 0, bar = 1 };

struct ProgressView : objc::Kind<ProgressView, "UIProgressView", View> {
    using Kind::Kind;

    static ProgressView withStyle(ProgressViewStyle style) {
        return make<"initWithProgressViewStyle:">(style);
    }
    /// From 0 to 1; what lies beyond counts as the nearer of the two.
    void setProgress(float progress) const { send<"setProgress:">(progress); }
};

} // namespace ui
