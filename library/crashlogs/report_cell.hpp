// The list's rows.
#pragma once

#include "bindings/uikit/table_view_cell.hpp"
#include "library/crashlogs/report_entry.hpp"

namespace wentra::crashlogs {

/// In points.
inline constexpr double reportRowHeight = 68;
inline constexpr double emptyRowHeight = 136;

/// Shows the file's name, and when it was made, who may do what with it, and how large it is.
void fillCell(ui::TableViewCell cell, const ReportEntry& entry);

/// Tells why nothing is listed.
void fillEmptyCell(ui::TableViewCell cell);

} // namespace wentra::crashlogs
