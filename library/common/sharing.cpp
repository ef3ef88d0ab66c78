// Presents the sheet.
#include "library/common/sharing.hpp"

#include "bindings/foundation/url.hpp"
#include "bindings/uikit/activity_view_controller.hpp"
#include "library/common/screens.hpp"

namespace wentra {

namespace {

constexpr bool animated = true;

ui::ActivityViewController sheetOf(objc::Object item) {
    const auto items = ns::MutableArray::make();
    items.add(item);
    return ui::ActivityViewController::sharing(items);
}

} // namespace

void shareText(ns::String text) {
    const auto sheet = sheetOf(text);
    sheet.setModalPresentationStyle(ui::ModalPresentation::overCurrentContext);
    topViewController().present(sheet, animated);
}

void share(objc::Object item, ui::ViewController controller) {
    controller.present(sheetOf(item), animated);
}

void shareFile(ns::String path, ui::ViewController controller) {
    constexpr bool isFolder = false;
    share(ns::Url::fileUrlWithPath(path, isFolder), controller);
}

} // namespace wentra
