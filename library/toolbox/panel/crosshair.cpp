// The crosshair and the presses that it follows.
#include "library/toolbox/panel/crosshair.hpp"

#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "library/common/screens.hpp"
#include "library/startup/preferences.hpp"

#include <array>
#include <cstdio>

namespace wentra::toolbox {
namespace {

ui::View addLine(ui::View screen) {
    const auto line = ui::View::withFrame({});
    line.setBackgroundColor(ui::Color::black());
    line.setAlpha(0);
    screen.addSubview(line);
    return line;
}

void setAlpha(FloatingViewController controller, double alpha) {
    controller.lineViewX().setAlpha(alpha);
    controller.lineViewY().setAlpha(alpha);
    controller.coordinateLabel().setAlpha(alpha);
}

void showAt(FloatingViewController controller, CGPoint point, CGSize screen) {
    constexpr double textSize = 13;
    constexpr double textAlpha = 0.88;
    constexpr CGSize labelSize{130, 30};
    controller.lineViewX().setFrame({{0, point.y}, {screen.width, 1}});
    controller.lineViewY().setFrame({{point.x, 0}, {1, screen.height}});
    const ui::Label label = controller.coordinateLabel();
    label.setFrame({{point.x * 0.5, point.y / 1.5}, labelSize});
    label.setText(ns::String::fromUtf8(coordinateText(point)));
    label.setTextColor(ui::Color::red().withAlpha(textAlpha));
    label.setFont(ui::Font::system(textSize));
    setAlpha(controller, 1);
}

void pressed(FloatingViewController controller, ui::LongPressGestureRecognizer finger) {
    constexpr double secondsToShow = 0.1;
    constexpr double secondsToFade = 0.6;
    if (!startup::Preferences::read().on(startup::keys.touchCoordinates)) {
        return;
    }
    const ui::GestureState state = finger.state();
    if (state != ui::GestureState::began && state != ui::GestureState::changed) {
        ui::View::animate(secondsToFade, ui::View::Changes::from([kept = objc::Strong(controller)] {
                              setAlpha(kept, 0);
                          }));
        return;
    }
    const ui::View screen = topViewController().view();
    const CGPoint point = finger.locationIn(screen);
    const CGSize size = screen.bounds().size;
    ui::View::animate(secondsToShow,
                      ui::View::Changes::from([kept = objc::Strong(controller), point, size] {
                          showAt(kept, point, size);
                      }));
}

} // namespace

std::string coordinateText(CGPoint point) {
    // The longest double has 309 digits before its point.
    std::array<char, 700> text{};
    std::snprintf(text.data(), text.size(), "X:%.2f, Y:%.2f", point.x, point.y);
    return text.data();
}

void addCrosshair(FloatingViewController controller) {
    const ui::View screen = topViewController().view();
    const auto label = ui::Label::withFrame({});
    label.setTextAlignment(ui::TextAlignment::center);
    label.setAlpha(0);
    screen.addSubview(label);
    controller.setCoordinateLabel(label);
    controller.setLineViewX(addLine(screen));
    controller.setLineViewY(addLine(screen));
}

void watchPresses(FloatingViewController controller) {
    constexpr double shortestPress = 0.52; // seconds
    const auto press = ui::GestureRecognizer::with<ui::LongPressGestureRecognizer>(
        controller, objc::selector<"longPressGestureAction:">());
    press.setMinimumPressDuration(shortestPress);
    topViewController().view().addGestureRecognizer(press);
}

std::span<const objc::Change> crosshairCategory() {
    static constexpr std::array changes{
        objc::addition<"ZKFloatingViewController", "longPressGestureAction:", &pressed>(),
    };
    return changes;
}

} // namespace wentra::toolbox
