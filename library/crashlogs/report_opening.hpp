// Opening what a row shows.
#pragma once

#include "library/crashlogs/report_lists.hpp"

namespace wentra::crashlogs {

/// Folders are walked into, pictures and texts go to their viewers.
class ReportOpening : public objc::Part<ReportListController> {
public:
    ReportOpening(ReportListController whole, ReportLists& lists) : Part(whole), lists_(lists) {}
    static ReportOpening& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{objc::method<"contentForFileAtURL:", &ReportOpening::content>()};
    }

    void open(unsigned long row);

private:
    /// The file's text; nil, with a line in the log, when there is none.
    [[nodiscard]] ns::String content(ns::Url url) const;
    void openPicture(unsigned long row) const;
    void openText(ns::Url url) const;
    void push(ui::ViewController viewer) const;

    ReportLists& lists_;
};

} // namespace wentra::crashlogs
