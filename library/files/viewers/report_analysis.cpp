// Hands the text over.
#include "library/files/viewers/report_analysis.hpp"

#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "library/analysis/details_view_controller.hpp"
#include "library/analysis/library_lines.hpp"
#include "library/common/animated.hpp"
#include "library/common/string_array.hpp"

namespace wentra::files {

using namespace ns::literals;
using analysis::SystemList;

ns::Array ReportAnalysis::libraryLines(ns::String text) const {
    return stringArray(analysis::libraryLines(text, SystemList::reports).all());
}

bool ReportAnalysis::isSystemLibrary(ns::String line) const {
    return analysis::isSystemLine(line.utf16(), SystemList::reports);
}

void ReportAnalysis::analyse(objc::Object /*sender*/) {
    const ns::String text = selectedWords_.count() > 0
                                ? selectedWords_.componentsJoined(u" "_ns)
                                : ui::Pasteboard::generalPasteboard().string();
    const auto lines = analysis::libraryLines(text, SystemList::reports);
    self().navigationController().push(
        analysis::DetailsViewController::with(analysis::messagesOf(lines)), animated);
    selectedWords_ = ns::MutableArray::make();
}

} // namespace wentra::files
