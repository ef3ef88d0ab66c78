// Controls and buttons: events, actions, titles.
#include "tests/desktop/uikit/touch_fixture.hpp"

#include "bindings/uikit/button.hpp"
#include "bindings/uikit/tap_gesture_recognizer.hpp"

namespace {

using namespace ns::literals;
namespace events = ui::control_events;
namespace state = ui::control_state;

class Controls : public tests::TouchTest {
protected:
    Controls() {
        button_.setFrame({{100, 100}, {100, 50}});
        window_.addSubview(button_);
    }
    /// How often the log's action is sent for these events.
    std::size_t count(unsigned long wanted, const std::function<void()>& work) {
        std::size_t sent = 0;
        log().then = [&](ui::GestureRecognizer) { ++sent; };
        button_.addTarget(log_, tests::TouchLog::action(), wanted);
        work();
        button_.send<"removeTarget:action:forControlEvents:">(log_.raw(), SEL(), ~0UL);
        return sent;
    }

    ui::Button button_ = ui::Button::ofType(ui::ButtonType::system);
};

TEST_F(Controls, ATouchBecomesEvents) {
    const auto pressed = [] { tap({150, 120}); };
    const auto draggedOut = [] {
        down({150, 120});
        move({300, 300});
        up();
    };
    EXPECT_EQ(count(events::touchDown, pressed), 1U);
    EXPECT_EQ(count(events::touchUpInside, pressed), 1U);
    EXPECT_EQ(count(events::touchUpOutside, pressed), 0U);
    EXPECT_EQ(count(events::touchUpInside, draggedOut), 0U);
    EXPECT_EQ(count(events::touchUpOutside | events::touchDragOutside, draggedOut), 2U);
    button_.setEnabled(false);
    EXPECT_EQ(count(~0UL, pressed), 0U);
    EXPECT_EQ(count(events::touchCancel, [this] { button_.sendActions(events::touchCancel); }), 1U);
}

TEST_F(Controls, ATapIsTheControlsNotTheWindows) {
    const auto tapping = ui::GestureRecognizer::with<ui::TapGestureRecognizer>(
        window_, objc::selector<"sizeToFit">());
    window_.addGestureRecognizer(tapping);
    EXPECT_EQ(count(events::touchUpInside, [] { tap({150, 120}); }), 1U);
    button_.addGestureRecognizer(tapping);
    EXPECT_EQ(count(events::touchCancel, [] { tap({150, 120}); }), 1U);
}

TEST_F(Controls, AButtonShowsTheTitleOfItsState) {
    button_.setTitle(u"Go"_ns, state::normal);
    button_.setTitle(u"No"_ns, state::disabled);
    EXPECT_TRUE(button_.titleFor(state::highlighted).isEqual(u"Go"_ns));
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
