// Presents the sheet.
#include "library/common/sharing.hpp"

#include "bindings/foundation/url.hpp"
#include "library/common/screens.hpp"

namespace wentra {

ui::ActivityViewController shareSheet(objc::Object item) {
    const auto items = ns::MutableArray::make();
    items.add(item);
    return ui::ActivityViewController::sharing(items);
}

void shareText(ns::String text) {
    const auto sheet = shareSheet(text);
    sheet.setModalPresentationStyle(ui::ModalPresentation::overCurrentContext);
    presentSheet(sheet, topViewController());
}

void share(objc::Object item, ui::ViewController controller) {
    presentSheet(shareSheet(item), controller);
}

void shareFile(ns::String path, ui::ViewController controller) {
    constexpr bool isFolder = false;
    share(ns::Url::fileUrlWithPath(path, isFolder), controller);
}

} // namespace wentra
