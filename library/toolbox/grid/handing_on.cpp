// Copying and sharing what is picked.
#include "library/toolbox/grid/handing_on.hpp"

#include "bindings/uikit/activity_view_controller.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "library/toolbox/panel/host_screens.hpp"

#include <array>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

/// What is picked, or else what the pasteboard holds.
ns::String textToCopy(ns::Array words) {
    const ns::String text =
        words.count() > 0 ? words.joined(u""_ns) : ui::Pasteboard::general().string();
    return text ? text : u""_ns;
}

/// The tiles stay as they are: it is only the picked text that is gone.
void copy(FloatingViewController controller, objc::Object) {
    ui::Pasteboard::general().setString(textToCopy(controller.selectedWords()));
    controller.selectedWords().removeAll();
}

void share(FloatingViewController controller, objc::Object) {
    const ns::String words = controller.selectedWords().joined(u" "_ns);
    const auto items = ns::MutableArray::make();
    items.add(words ? words : u""_ns);
    const auto sheet = ui::ActivityViewController::sharing(items);
    sheet.setModalPresentationStyle(ui::ModalPresentation::overCurrentContext);
    presentOverHost(controller, sheet);
}

} // namespace

std::span<const objc::Change> handingOnCategory() {
    static constexpr std::array changes{
        objc::addition<"ZKFloatingViewController", "pasteButtonClicked:", &copy>(),
        objc::addition<"ZKFloatingViewController", "shareButtonClicked:", &share>(),
    };
    return changes;
}

} // namespace wentra::toolbox
