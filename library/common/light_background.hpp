// Light backgrounds, which stay light when the phone's appearance is dark.
#pragma once

#include "bindings/uikit/view.hpp"

namespace wentra {

/// Gives the view that background. The view and whatever is in it have the light appearance from
/// then on, so that dark texts stay on it in a dark host.
void setLightBackground(ui::View view, ui::Color background);

} // namespace wentra
