// Presents the sheet.
#include "library/common/sharing.hpp"

#include "bindings/uikit/activity_view_controller.hpp"
#include "library/common/screens.hpp"

namespace wentra {

void shareText(ns::String text) {
    const auto items = ns::MutableArray::make();
    items.add(text);
    const auto sheet = ui::ActivityViewController::sharing(items);
    sheet.setModalPresentationStyle(ui::ModalPresentation::overCurrentContext);
    topViewController().present(sheet, true);
}

} // namespace wentra
