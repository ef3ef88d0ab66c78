// The rows: icon, name, date, size and permissions of a file.
#pragma once

#include "bindings/foundation/date_formatter.hpp"
#include "bindings/uikit/image_view.hpp"
#include "library/files/browser/panes.hpp"

namespace wentra::files {

/// Asks for everything each time that it is shown: files change, and nobody tells.
class Cells : public objc::Part<UmaCollectionViewController> {
public:
    Cells(UmaCollectionViewController whole, const Panes& panes) : Part(whole), panes_(panes) {}
    static Cells& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"tableView:cellForRowAtIndexPath:", &Cells::cell>(),
            objc::method<"tableView:heightForRowAtIndexPath:", &Cells::height>(),
            objc::method<"modificationDateForFileAtPath:", &Cells::modificationDate>(),
            objc::method<"formatDate:", &Cells::dateText>(),
            objc::method<"sizeFormatted:", &Cells::sizeFormatted>(),
        };
    }

private:
    [[nodiscard]] ui::TableViewCell cell(ui::TableView table, ns::IndexPath row);
    void offerMenu(ui::TableViewCell cell) const;
    void fill(ui::TableViewCell cell, const std::string& path);
    void showIcon(ui::ImageView view, const std::string& path) const;
    [[nodiscard]] double height(ui::TableView table, ns::IndexPath row) const;
    [[nodiscard]] ns::Date modificationDate(ns::String path) const;
    [[nodiscard]] ns::String dateText(ns::Date date);
    [[nodiscard]] ns::String sizeFormatted(double bytes) const;

    const Panes& panes_;
    objc::Strong<ns::DateFormatter> formatter_;
};

} // namespace wentra::files
