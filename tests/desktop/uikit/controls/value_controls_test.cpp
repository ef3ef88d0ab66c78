// Switches and sliders: what a finger does to their values, and what shows it.
#include "tests/desktop/uikit/touch_fixture.hpp"

#include "bindings/uikit/pan_gesture_recognizer.hpp"
#include "bindings/uikit/slider.hpp"
#include "bindings/uikit/switch.hpp"
#include "desktop/uikit/application/screen_image.hpp"

namespace {

class ValueControls : public tests::TouchTest {
protected:
    ValueControls() {
        slider_.setFrame({{50, 100}, {227, 44}}); // the thumb of 27 points goes 200 to the right
        window_.addSubview(slider_);
        window_.addSubview(switch_);
    }
    std::size_t changes(ui::Control control, const std::function<void()>& work) {
        std::size_t sent = 0;
        log().then = [&](ui::GestureRecognizer) { ++sent; };
        control.addTarget(log_, tests::TouchLog::action(), ui::ControlEvents::valueChanged);
        work();
        log().then = nullptr;
        return sent;
    }
    static void drag(double from, double to) {
        down({from, 120});
        move({(from + to) / 2, 120});
        move({to, 120});
        up();
    }

    ui::Slider slider_ = ui::Slider::withFrame({});
    ui::Switch switch_ = ui::Switch::withFrame({{50, 200}, {}});
};

TEST_F(ValueControls, ASliderFollowsTheFingerOnItsThumb) {
    EXPECT_EQ(changes(slider_, [] { drag(60, 160); }), 2U);
    EXPECT_FLOAT_EQ(slider_.value(), 0.5F);
    drag(160, 500);
    EXPECT_EQ(slider_.value(), 1);
    drag(270, -100);
    EXPECT_EQ(slider_.value(), 0);
    drag(200, 260);
    EXPECT_EQ(slider_.value(), 0) << "the finger was beside the thumb";
}

TEST_F(ValueControls, ASliderKeepsItsFingerFromTheViewsAround) {
    recognizer<ui::PanGestureRecognizer>(window_);
    drag(60, 160);
    EXPECT_TRUE(takeStates().empty());
    EXPECT_FLOAT_EQ(slider_.value(), 0.5F);
}

TEST_F(ValueControls, ASlidersValueStaysWithinItsLimits) {
    slider_.setMaximumValue(10);
    slider_.setValue(12);
    EXPECT_EQ(slider_.value(), 10);
    slider_.setMinimumValue(5);
    slider_.setValue(std::nanf(""));
    EXPECT_EQ(slider_.value(), 5);
    slider_.setMaximumValue(2);
    EXPECT_EQ(slider_.value(), 5);
    drag(60, 160); // limits the wrong way round move nothing
    EXPECT_EQ(slider_.value(), 5);
}

TEST_F(ValueControls, ASwitchIsTurnedAndDrawnAnew) {
    EXPECT_EQ(switch_.frame().size.width, 51);
    EXPECT_EQ(changes(switch_, [] { tap({60, 210}); }), 1U);
    EXPECT_TRUE(switch_.isOn());
    desktop::ScreenImage screen(1);
    screen.refresh();
    EXPECT_EQ(changes(switch_, [this] { switch_.setOn(false); }), 0U);
    EXPECT_FALSE(switch_.isOn());
    EXPECT_TRUE(screen.isStale());
}

} // namespace
