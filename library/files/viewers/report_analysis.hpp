// The text viewer's way to the analysis of crash reports.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/objc/part.hpp"
#include "library/files/viewers/file_content_view_controller.hpp"

namespace wentra::files {

/// Reads the words that were chosen, or else the pasteboard.
class ReportAnalysis : public objc::Part<FileContentViewController> {
public:
    using Part::Part;
    static ReportAnalysis& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"selectedWords", &ReportAnalysis::selectedWords_>(),
            objc::method<"dylibLinesInString:", &ReportAnalysis::libraryLines>(),
            objc::method<"isSystemDylib:", &ReportAnalysis::isSystemLibrary>(),
            objc::method<"zzjsButtonClicked:", &ReportAnalysis::analyse>(),
        };
    }

private:
    [[nodiscard]] ns::Array libraryLines(ns::String text) const;
    [[nodiscard]] bool isSystemLibrary(ns::String line) const;
    void analyse(objc::Object sender);

    // Nothing here chooses words; others may.
    objc::Strong<ns::MutableArray> selectedWords_ = ns::MutableArray::make();
};

} // namespace wentra::files
