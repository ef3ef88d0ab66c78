// Controls and buttons: events, actions, titles.
#include "tests/desktop/uikit/touch_fixture.hpp"

#include "bindings/uikit/button.hpp"
#include "bindings/uikit/tap_gesture_recognizer.hpp"

namespace {

using namespace ns::literals;
using Events = ui::ControlEvents;
using State = ui::ControlState;

class Controls : public tests::TouchTest {
protected:
    Controls() {
        button_.setFrame({{100, 100}, {100, 50}});
        window_.addSubview(button_);
    }
    /// How often the log's action is sent for these events.
    std::size_t count(Events wanted, const std::function<void()>& work) {
        std::size_t sent = 0;
        log().then = [&](ui::GestureRecognizer) { ++sent; };
        button_.addTarget(log_, tests::TouchLog::action(), wanted);
        work();
        button_.send<"removeTarget:action:forControlEvents:">(log_.raw(), SEL(), ~Events());
        return sent;
    }

    ui::Button button_ = ui::Button::withType(ui::ButtonType::system);
};

TEST_F(Controls, ATouchBecomesEvents) {
    const auto pressed = [] { tap({150, 120}); };
    const auto draggedOut = [] {
        down({150, 120});
        move({300, 300});
        up();
    };
    EXPECT_EQ(count(Events::touchDown, pressed), 1U);
    EXPECT_EQ(count(Events::touchUpInside, pressed), 1U);
    EXPECT_EQ(count(Events::touchUpOutside, pressed), 0U);
    EXPECT_EQ(count(Events::touchUpInside, draggedOut), 0U);
    EXPECT_EQ(count(Events::touchUpOutside | Events::touchDragOutside, draggedOut), 2U);
    button_.setEnabled(false);
    EXPECT_EQ(count(~Events(), pressed), 0U);
    EXPECT_EQ(count(Events::touchCancel, [this] { button_.sendActions(Events::touchCancel); }), 1U);
}

TEST_F(Controls, ATapIsTheControlsNotTheWindows) {
    const auto tapping = ui::GestureRecognizer::with<ui::TapGestureRecognizer>(
        window_, objc::selector<"sizeToFit">());
    window_.addGestureRecognizer(tapping);
    EXPECT_EQ(count(Events::touchUpInside, [] { tap({150, 120}); }), 1U);
    button_.addGestureRecognizer(tapping);
    EXPECT_EQ(count(Events::touchCancel, [] { tap({150, 120}); }), 1U);
}

TEST_F(Controls, AButtonShowsTheTitleOfItsState) {
    button_.setTitle(u"Go"_ns, State::normal);
    button_.setTitle(u"No"_ns, State::disabled);
    EXPECT_TRUE(button_.titleFor(State::highlighted).isEqual(u"Go"_ns));
    EXPECT_TRUE(button_.titleLabel().text().isEqual(u"Go"_ns));
    EXPECT_TRUE(button_.titleLabel().textColor().isEqual(ui::Color::systemBlue()));
    down({150, 120});
    button_.layoutIfNeeded();
    EXPECT_LT(button_.titleLabel().alpha(), 1);
    up();
    button_.setEnabled(false);
    button_.layoutIfNeeded();
    EXPECT_EQ(button_.titleLabel().alpha(), 1);
    EXPECT_TRUE(button_.titleLabel().text().isEqual(u"No"_ns));
    const double width = button_.intrinsicContentSize().width;
    button_.setContentEdgeInsets({0, 10, 0, 5});
    EXPECT_EQ(button_.intrinsicContentSize().width, width + 15);
}

} // namespace
