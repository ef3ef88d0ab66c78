// What the tools' panels consist of.
#pragma once

#include "bindings/uikit/text_view.hpp"
#include "library/utilities/tool_screens.hpp"

namespace wentra::utilities {

/// A text with a rim, its middle that far below the screen's. In points.
[[nodiscard]] ui::TextView addPanelText(ui::View panel, CGSize size, double below);

/// A blue button whose middle lies at that place from the screen's.
void addPanelButton(ui::View panel, ns::String title, CGPoint offset, objc::Object target,
                    SEL action);

/// The button that ends a panel.
void addPanelCloser(ToolScreens& screens);

} // namespace wentra::utilities
