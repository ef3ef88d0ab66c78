// Property lists that people can read.
#pragma once

#include "library/files/browser/panes.hpp"

namespace wentra::files {

/// Writes an XML copy of the row's property list beside it, unless it is XML already, and reads the
/// pane again. Failures are logged. Main thread.
void copyAsXml(Panes& panes, ui::TableView table, ns::IndexPath row);

} // namespace wentra::files
