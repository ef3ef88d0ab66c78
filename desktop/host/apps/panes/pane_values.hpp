// What the rows of a preference pane show and store.
#pragma once

#include "desktop/host/apps/panes/pane_list.hpp"

namespace desktop::host {

/// The stored value, as the kind of row reads it whatever its type is; what the list tells to be
/// the default where nothing is stored.
[[nodiscard]] bool isOn(const PaneRow& row);
[[nodiscard]] ns::String shownText(const PaneRow& row);
[[nodiscard]] float shownNumber(const PaneRow& row);

/// Puts the value into the row's preference file, whose other entries stay; false when that cannot
/// be written, or the row does not tell its key and its file.
[[nodiscard]] bool store(const PaneRow& row, objc::Object value);

} // namespace desktop::host
