// The library's buttons: system buttons, described in one expression.
#pragma once

#include "bindings/uikit/button.hpp"

namespace wentra {

/// How a button looks; what is not said is as the platform has it.
struct ButtonLook {
    ns::String title = nullptr;
    /// The name of one of the system's symbols, shown before the title.
    ns::String symbol = nullptr;
    CGRect frame{};
    /// Of the title, in points.
    double textSize = 0;
    ui::Color titleColor = nullptr;
    ui::Color background = nullptr;
    double cornerRadius = 0;
};

/// A button that sends `action`, when there is one, to `target` at each tap. The target is not
/// retained.
[[nodiscard]] ui::Button makeButton(const ButtonLook& look, objc::Object target, SEL action);

} // namespace wentra
