// The screen of a preference pane: what a preference loader makes of a property list alone.
#pragma once

#include "desktop/host/apps/panes/pane_list.hpp"

#include "bindings/uikit/view_controller.hpp"

namespace desktop::host {

void registerPreferencePane();

/// Shows the pane in a navigation controller over the presenting one; does nothing when it cannot
/// be read.
void presentPane(const std::filesystem::path& file, ui::ViewController presenting);

} // namespace desktop::host
