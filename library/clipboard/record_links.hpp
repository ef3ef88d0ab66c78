// What a copied text leads to: the buttons of its row, and what they open.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/objc/part.hpp"
#include "bindings/uikit/button.hpp"
#include "library/clipboard/clipboard_table_view_controller.hpp"

namespace wentra::clipboard {

class RecordLinks : public objc::Part<ClipboardTableViewController> {
public:
    using Part::Part;
    static RecordLinks& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"pathsInString:", &RecordLinks::pathsIn>(),
            objc::method<"linksInString:", &RecordLinks::webLinksIn>(),
            objc::method<"openPath:", &RecordLinks::openPath>(),
            objc::method<"openUrl:", &RecordLinks::openUrl>(),
        };
    }

    /// Puts the buttons that the text gives reason for into a row, in place of those of the text
    /// that the row showed before.
    void addButtons(ui::View row, ns::String content) const;

private:
    [[nodiscard]] ns::Array pathsIn(ns::String text) const;
    [[nodiscard]] ns::Array webLinksIn(ns::String text) const;
    void openPath(ui::Button button) const;
    void openUrl(ui::Button button) const;
    /// Opens the only one, or lets the user choose.
    void open(ns::Array candidates, ns::String question) const;
};

} // namespace wentra::clipboard
