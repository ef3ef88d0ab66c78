// TableViewController: the list of crash reports, or of the user's documents.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/uikit/table_view_controller.hpp"

namespace wentra::crashlogs {

/// Shown by a navigation controller, whose bars hold its buttons. Main thread only.
struct ReportListController
    : objc::Kind<ReportListController, "TableViewController", ui::TableViewController> {
    using Kind::Kind;

    /// Of what the preferences ask for, as it is now.
    static ReportListController ofListedFiles();

    /// What is shown.
    [[nodiscard]] ns::Array ipsFiles() const { return send<"ipsFiles", ns::Array>(); }
};

/// Declares the class.
[[gnu::cold]] void registerReportListController();

} // namespace wentra::crashlogs
