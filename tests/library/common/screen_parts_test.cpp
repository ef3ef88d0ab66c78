// Alerts, buttons, gestures, outlines and insets, as their one line makes them.
#include "library/common/alert.hpp"
#include "library/common/buttons.hpp"
#include "library/common/gestures.hpp"
#include "library/common/keyboard_insets.hpp"
#include "library/common/outline.hpp"

#include "bindings/uikit/popover_presentation_controller.hpp"
#include "bindings/uikit/tap_gesture_recognizer.hpp"
#include "tests/desktop/uikit/uikit_fixture.hpp"

namespace wentra {
namespace {

using namespace ns::literals;
using ScreenParts = tests::UIKitTest;

std::string titlesAndStyles(ui::AlertController controller) {
    std::string all;
    for (const ui::AlertAction action : controller.actions()) {
        all += action.title().utf8() + std::to_string(static_cast<long>(action.style())) + " ";
    }
    return all;
}

TEST_F(ScreenParts, AnAlertTakesItsFieldsAndActionsInOrder) {
    const auto controller = ui::AlertController::with(u"title"_ns, nullptr, ui::AlertStyle::alert);
    Alert(controller)
        .field(u"name"_ns, u"old"_ns)
        .field()
        .action(u"a"_ns, [] {})
        .action(u"b"_ns, ui::AlertActionStyle::destructive, [](ui::TextField) {})
        .action(u"c"_ns, ui::AlertActionStyle::cancel)
        .action(u"d"_ns)
        .covering(ui::ModalPresentation::overCurrentContext);
    EXPECT_EQ(titlesAndStyles(controller), "a0 b2 c1 d0 ");
    ASSERT_EQ(controller.textFields().count(), 2U);
    const auto name = controller.textFields().first();
    EXPECT_EQ(name.placeholder().utf8(), "name");
    EXPECT_EQ(name.text().utf8(), "old");
    EXPECT_EQ(controller.modalPresentationStyle(), ui::ModalPresentation::overCurrentContext);
}

TEST_F(ScreenParts, ASheetPointsAtItsSourceWhereItIsAPopover) {
    const auto controller =
        ui::AlertController::with(nullptr, nullptr, ui::AlertStyle::actionSheet);
    const auto source = ui::View::withFrame({{0, 0}, {10, 10}});
    Alert(controller).covering(ui::ModalPresentation::popover).from(source, {{1, 2}, {3, 4}});
    EXPECT_EQ(controller.popoverPresentationController().sourceView(), source);
    EXPECT_EQ(controller.popoverPresentationController().sourceRect().size.height, 4);
}

TEST_F(ScreenParts, AButtonLooksAsItIsDescribed) {
    const ui::Button button = makeButton({.title = u"title"_ns,
                                          .symbol = u"book"_ns,
                                          .frame = {{1, 2}, {3, 4}},
                                          .textSize = 19,
                                          .background = ui::Color::red(),
                                          .cornerRadius = 5},
                                         nullptr, nullptr);
    EXPECT_EQ(button.titleFor(ui::ControlState::normal).utf8(), "title");
    EXPECT_TRUE(button.imageView().image());
    EXPECT_EQ(button.frame().size.width, 3);
    EXPECT_EQ(button.titleLabel().font().pointSize(), 19);
    EXPECT_EQ(button.layer().cornerRadius(), 5);

    const ui::Button plain = makeButton({.title = u"title"_ns}, nullptr, nullptr);
    const auto untouched = ui::Button::withType(ui::ButtonType::system);
    EXPECT_EQ(plain.titleLabel().font().pointSize(), untouched.titleLabel().font().pointSize());
    EXPECT_FALSE(plain.imageView().image());
}

TEST_F(ScreenParts, GesturesBelongToTheViewTheyAreAddedTo) {
    const auto view = ui::View::withFrame({});
    const auto owner = ui::View::withFrame({});
    addTap(view, owner, objc::selector<"handleTap:">(), 2);
    const auto pan = addPan(view, owner, objc::selector<"handlePan:">());
    const auto pinch = addPinch(view, owner, objc::selector<"handlePinch:">());
    addPress(view, owner, objc::selector<"handlePress:">());
    EXPECT_EQ(view.gestureRecognizers().count(), 4U);
    EXPECT_EQ(owner.gestureRecognizers().count(), 0U);
    const auto tap = view.gestureRecognizers().first().assume<ui::TapGestureRecognizer>();
    EXPECT_EQ(tap.numberOfTapsRequired(), 2U);
    EXPECT_EQ(pan.view(), view);
    EXPECT_EQ(pinch.view(), view);
}

TEST_F(ScreenParts, OutlinesAndInsetsReachTheirLayersAndIndicators) {
    const auto view = ui::ScrollView::make<"initWithFrame:">(CGRect{});
    drawOutline(view, {7, 2.5, ui::Color::red()});
    EXPECT_EQ(view.layer().cornerRadius(), 7);
    EXPECT_EQ(view.layer().borderWidth(), 2.5);
    setInsets(view, {1, 2, 3, 4});
    EXPECT_EQ(view.contentInset().bottom, 3);
    EXPECT_EQ((view.send<"scrollIndicatorInsets", UIEdgeInsets>().bottom), 3);
}

} // namespace
} // namespace wentra
