// The host's top controller.
#include "library/common/screens.hpp"

#include "bindings/objc/hook.hpp"
#include "bindings/uikit/alert_controller.hpp"
#include "bindings/uikit/popover_presentation_controller.hpp"
#include "tests/library/support/host_window.hpp"

namespace wentra {
namespace {

using namespace ns::literals;

using Screens = test::WithWindow;

ui::ViewController leaving;
bool isLeaving(objc::Next<bool()> next, ui::ViewController controller) {
    return controller == leaving || next();
}

TEST_F(Screens, AControllerThatIsBeingDismissedIsNotTheTopOne) {
    constexpr bool animated = false;

    const auto first = ui::ViewController::make();
    const auto second = ui::ViewController::make();
    root().present(first, animated);
    first.present(second, animated);
    ASSERT_EQ(topViewController(), second);

    ASSERT_EQ(objc::install(objc::hook<"isBeingDismissed", &isLeaving>()),
              objc::Outcome::installed);
    leaving = second;
    EXPECT_EQ(topViewController(), first);
    leaving = first;
    EXPECT_EQ(topViewController(), root()) << "what it presents goes with it";
}

TEST_F(Screens, ASheetWithoutAPlacePointsAtTheMiddle) {
    const auto presentedFrom = [this](ui::View source) {
        const auto sheet = ui::AlertController::with(u"title"_ns, {}, ui::AlertStyle::actionSheet);
        sheet.setModalPresentationStyle(ui::ModalPresentation::popover); // as on a tablet
        sheet.popoverPresentationController().setSourceView(source);
        presentSheet(sheet, topViewController());
        return sheet.popoverPresentationController();
    };
    const auto placeless = presentedFrom(nullptr);
    EXPECT_EQ(placeless.sourceView(), root().view());
    EXPECT_EQ(placeless.sourceRect().origin.y, root().view().bounds().size.height / 2);

    const auto button = ui::View::withFrame({});
    EXPECT_EQ(presentedFrom(button).sourceView(), button) << "its own stays";
}

} // namespace
} // namespace wentra
