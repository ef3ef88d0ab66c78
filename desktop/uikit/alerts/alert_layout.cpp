// The platform's measures of alerts and action sheets.
#include "desktop/uikit/alerts/alert_layout.hpp"

#include <algorithm>

namespace desktop {
namespace {

void placeRows(AlertLayout& layout, const AlertContent& content, double width) {
    const double height = content.isSheet ? AlertLayout::sheetRow : AlertLayout::alertRow;
    constexpr std::size_t pair = 2;
    if (!content.isSheet && content.rowCount == pair && content.rowsAreShort) {
        layout.rows = {{{0, 0}, {width / 2, height}}, {{width / 2, 0}, {width / 2, height}}};
        layout.listContentHeight = height;
        return;
    }
    for (std::size_t row = 0; row < content.rowCount; ++row) {
        layout.rows.push_back({{0, layout.listContentHeight}, {width, height}});
        layout.listContentHeight += height;
    }
}

} // namespace

AlertLayout layOutAlert(const AlertContent& content, CGSize room) {
    AlertLayout layout;
    const double width =
        content.isSheet
            ? std::max(0.0, std::min(room.width, room.height) - 2 * AlertLayout::sheetGap)
            : AlertLayout::alertWidth;
    placeRows(layout, content, width);
    const double cancel = content.hasCancelCard ? AlertLayout::sheetRow + AlertLayout::sheetGap : 0;
    const double most = std::max(0.0, room.height - 2 * AlertLayout::sheetGap - cancel);
    // The list gives way first, down to a row and a half, which shows that it scrolls.
    constexpr double leastRows = 1.5;
    const double leastList =
        std::min(layout.listContentHeight,
                 leastRows * (content.isSheet ? AlertLayout::sheetRow : AlertLayout::alertRow));
    const double header = std::clamp(content.headerHeight, 0.0, std::max(0.0, most - leastList));
    const double list = std::min(layout.listContentHeight, most - header);
    layout.header = {{0, 0}, {width, header}};
    layout.list = {{0, header}, {width, std::max(0.0, list)}};
    layout.card = {{0, 0}, {width, header + layout.list.size.height}};
    layout.size = layout.card.size;
    if (content.hasCancelCard) {
        const bool alone = layout.card.size.height <= 0;
        const double top = alone ? 0 : layout.card.size.height + AlertLayout::sheetGap;
        layout.cancelCard = {{0, top}, {width, AlertLayout::sheetRow}};
        layout.size.height = top + AlertLayout::sheetRow;
    }
    return layout;
}

} // namespace desktop
