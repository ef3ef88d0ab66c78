// What the rows of lists offer.
#include "desktop/host/arguments.hpp"
#include "desktop/host/commands.hpp"
#include "desktop/host/half_pairs.hpp"
#include "desktop/host/view_argument.hpp"

#include "desktop/uikit/lists/table_view.hpp"

#include <algorithm>

namespace desktop::host {
namespace {

struct ListRow {
    objc::Strong<ui::TableView> table;
    ItemIndex index;
};

/// The row that the view is, or lies in.
ListRow rowAround(ui::View view) {
    for (ui::View around = view; around; around = around.superview()) {
        if (const auto table = around.as<ui::TableView>(); table) {
            if (const auto index = TableView::of(table).rowOf(view); index) {
                return {table, *index};
            }
        }
    }
    throw RequestError("there is no table's row");
}

Json titlesOf(const RowActions& actions) {
    Json titles = Json::array();
    for (const RowAction& action : actions.list) {
        titles.push_back(withHalfPairs(action.title));
    }
    return titles;
}

} // namespace

Json swipe(Session& session, const Json& request) {
    const ListRow row = rowAround(viewArgument(session, request));
    TableView& table = TableView::of(row.table);
    Json offered = titlesOf(table.actionsOf(row.index));
    if (argument(request, "choose") == nullptr) {
        return offered;
    }
    const std::string& wanted = stringArgument(request, "choose");
    const auto chosen = std::ranges::find(offered, Json(wanted));
    if (chosen == offered.end()) {
        throw RequestError("no such action: " + wanted + "; offered: " + written(offered));
    }
    table.openSwipe(row.index);
    table.choose(static_cast<std::size_t>(chosen - offered.begin()));
    return offered;
}

} // namespace desktop::host
