// UIStackView.
#pragma once

#include "bindings/uikit/view.hpp"

namespace ui {

enum class Axis : long { horizontal = 0, vertical = 1 };

/// How a stack shares its length; the platform's numbers.
enum class StackDistribution : long {
    fill = 0,
    fillEqually = 1,
    fillProportionally = 2,
    equalSpacing = 3,
    equalCentering = 4,
};

/// How a stack places views across its axis; the platform's numbers.
enum class StackAlignment : long {
    fill = 0,
    leading = 1,
    firstBaseline = 2,
    center = 3,
    trailing = 4
};

struct StackView : objc::Kind<StackView, "UIStackView", View> {
    using Kind::Kind;

    static StackView withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }

    void addArrangedSubview(View view) const { send<"addArrangedSubview:">(view); }
    [[nodiscard]] ns::ArrayOf<View> arrangedSubviews() const {
        return send<"arrangedSubviews", ns::ArrayOf<View>>();
    }
    void setAxis(Axis axis) const { send<"setAxis:">(axis); }
    void setSpacing(double points) const { send<"setSpacing:">(points); }
    void setDistribution(StackDistribution distribution) const {
        send<"setDistribution:">(distribution);
    }
    void setAlignment(StackAlignment alignment) const { send<"setAlignment:">(alignment); }
};

} // namespace ui
