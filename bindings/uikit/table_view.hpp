// UITableView.
#pragma once

#include "bindings/foundation/index_path.hpp"
#include "bindings/uikit/scroll_view.hpp"
#include "bindings/uikit/table_view_cell.hpp"

namespace ui {

/// The platform's numbers.
enum class TableViewStyle : long { plain = 0, grouped = 1, insetGrouped = 2 };
enum class TableViewRowAnimation : long { fade = 0, automatic = 100 };
enum class TableViewScrollPosition : long { none = 0, top = 1, middle = 2, bottom = 3 };
enum class TableViewCellSeparatorStyle : long { none = 0, singleLine = 1 };

struct TableView : objc::Kind<TableView, "UITableView", ScrollView> {
    using Kind::Kind;

    /// In place of a height: as tall as the cell needs.
    static constexpr double automaticDimension = -1;

    static TableView withFrame(CGRect frame, TableViewStyle style) {
        return make<"initWithFrame:style:">(frame, style);
    }
    /// In points, or automatic.
    void setRowHeight(double height) const { send<"setRowHeight:">(height); }
    /// What a row of automatic height counts as until it is seen.
    void setEstimatedRowHeight(double height) const { send<"setEstimatedRowHeight:">(height); }
    void setSeparatorStyle(TableViewCellSeparatorStyle style) const {
        send<"setSeparatorStyle:">(style);
    }
    /// Neither is retained.
    void setDataSource(objc::Object source) const { send<"setDataSource:">(source); }
    void setDelegate(objc::Object delegate) const { send<"setDelegate:">(delegate); }
    /// Cells of that class are made for the identifier.
    void registerClass(Class cell, ns::String identifier) const {
        send<"registerClass:forCellReuseIdentifier:">(cell, identifier);
    }
    /// A cell of the class that is registered for the identifier, used before or new.
    [[nodiscard]] TableViewCell dequeueReusableCell(ns::String identifier,
                                                    ns::IndexPath path) const {
        return send<"dequeueReusableCellWithIdentifier:forIndexPath:", TableViewCell>(identifier,
                                                                                      path);
    }
    /// A cell used before, or nil: the data source makes one.
    [[nodiscard]] TableViewCell dequeueReusableCell(ns::String identifier) const {
        return send<"dequeueReusableCellWithIdentifier:", TableViewCell>(identifier);
    }
    /// Asks the data source for everything anew.
    void reloadData() const { send<"reloadData">(); }
    /// The data source has fewer rows already.
    void deleteRows(ns::Array paths, TableViewRowAnimation animation) const {
        send<"deleteRowsAtIndexPaths:withRowAnimation:">(paths, animation);
    }
    /// Nil for a cell that shows no row.
    [[nodiscard]] ns::IndexPath indexPathFor(TableViewCell cell) const {
        return send<"indexPathForCell:", ns::IndexPath>(cell);
    }
    void selectRow(ns::IndexPath path, bool animated, TableViewScrollPosition position) const {
        send<"selectRowAtIndexPath:animated:scrollPosition:">(path, animated, position);
    }
    /// Nil when none is.
    [[nodiscard]] ns::ArrayOf<ns::IndexPath> indexPathsForSelectedRows() const {
        return send<"indexPathsForSelectedRows", ns::ArrayOf<ns::IndexPath>>();
    }
    void setAllowsMultipleSelectionDuringEditing(bool allows) const {
        send<"setAllowsMultipleSelectionDuringEditing:">(allows);
    }
    /// Above the rows, as tall as it is.
    void setTableHeaderView(View view) const { send<"setTableHeaderView:">(view); }
    void deselectRow(ns::IndexPath path, bool animated) const {
        send<"deselectRowAtIndexPath:animated:">(path, animated);
    }
};

} // namespace ui
