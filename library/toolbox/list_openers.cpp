// Each list is made anew and shown over the host.
#include "library/toolbox/list_openers.hpp"

#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/popover_presentation_controller.hpp"
#include "library/crashlogs/report_list_controller.hpp"
#include "library/toolbox/panel/host_screens.hpp"
#include "library/utilities/umaca_table_view_controller.hpp"

#include <array>

namespace wentra::toolbox {
namespace {

void showUtilities(FloatingViewController controller, ui::LongPressGestureRecognizer press) {
    if (press.state() != ui::GestureState::began) {
        return;
    }
    const auto list = utilities::UmacaTableViewController::plain();
    const auto navigation = ui::NavigationController::withRoot(list);
    navigation.setModalPresentationStyle(ui::ModalPresentation::popover);
    const auto popover = navigation.popoverPresentationController();
    popover.setSourceView(controller.view());
    popover.setSourceRect(controller.view().bounds());
    popover.setDelegate(list);
    presentOverHost(controller, navigation);
}

void showCrashLogs(FloatingViewController controller, ui::LongPressGestureRecognizer press) {
    if (press.state() != ui::GestureState::began) {
        return;
    }
    const auto navigation =
        ui::NavigationController::withRoot(crashlogs::ReportListController::ofListedFiles());
    navigation.setModalPresentationStyle(ui::ModalPresentation::pageSheet);
    presentOverHost(controller, navigation);
}

} // namespace

std::span<const objc::Change> listOpeners() {
    static constexpr std::array changes{
        objc::addition<"longPress:", &showUtilities>(),
        objc::addition<"handlerzLongPress:", &showCrashLogs>(),
    };
    return changes;
}

} // namespace wentra::toolbox
