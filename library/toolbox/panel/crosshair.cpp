// The crosshair and the presses that it follows.
#include "library/toolbox/panel/crosshair.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "library/common/gestures.hpp"
#include "library/common/screens.hpp"
#include "library/preferences/preferences.hpp"

#include <array>
#include <cstdio>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

ui::Label coordinates() {
    const auto label = ui::Label::withFrame({});
    label.setTextAlignment(ui::TextAlignment::center);
    return label;
}

ui::View line() {
    const auto made = ui::View::withFrame({});
    made.setBackgroundColor(ui::Color::black());
    return made;
}

ns::String sceneActivation() { return u"UISceneDidActivateNotification"_ns; }

} // namespace

std::string coordinateText(CGPoint point) {
    // The longest double has 309 digits before its point.
    std::array<char, 700> text{};
    std::snprintf(text.data(), text.size(), "X:%.2f, Y:%.2f", point.x, point.y);
    return text.data();
}

Crosshair::~Crosshair() {
    ns::NotificationCenter::defaultCenter().removeObserver(self(), sceneActivation(), nullptr);
}

void Crosshair::attach() {
    label_ = coordinates();
    across_ = line();
    down_ = line();
    setAlpha(0);
    if (const ui::ViewController top = topViewController(); top) {
        attachTo(top.view());
    } else {
        ns::NotificationCenter::defaultCenter().addObserver(
            self(), objc::selector<"sceneDidActivate:">(), sceneActivation(), nullptr);
    }
}

void Crosshair::sceneActivated(ns::Notification) {
    if (const ui::ViewController top = topViewController(); top) {
        ns::NotificationCenter::defaultCenter().removeObserver(self(), sceneActivation(), nullptr);
        attachTo(top.view());
    }
}

void Crosshair::attachTo(ui::View screen) {
    constexpr double shortestPress = 0.52; // seconds
    screen.addSubview(label_);
    screen.addSubview(across_);
    screen.addSubview(down_);
    addPress(screen, self(), objc::selector<"longPressGestureAction:">(), shortestPress);
}

void Crosshair::setAlpha(double alpha) const {
    across_.setAlpha(alpha);
    down_.setAlpha(alpha);
    label_.setAlpha(alpha);
}

void Crosshair::showAt(CGPoint point, CGSize screen) const {
    constexpr double textSize = 13;
    constexpr double textAlpha = 0.88;
    constexpr CGSize labelSize{130, 30};
    across_.setFrame({{0, point.y}, {screen.width, 1}});
    down_.setFrame({{point.x, 0}, {1, screen.height}});
    label_.setFrame({{point.x * 0.5, point.y / 1.5}, labelSize});
    label_.setText(ns::String::fromUtf8(coordinateText(point)));
    label_.setTextColor(ui::Color::red().withAlphaComponent(textAlpha));
    label_.setFont(ui::Font::system(textSize));
    setAlpha(1);
}

void Crosshair::pressed(ui::LongPressGestureRecognizer finger) {
    constexpr double secondsToShow = 0.1;
    constexpr double secondsToFade = 0.6;
    if (!preferences::Preferences::read().on(preferences::keys.touchCoordinates)) {
        return;
    }
    const ui::GestureState state = finger.state();
    if (state != ui::GestureState::began && state != ui::GestureState::changed) {
        ui::View::animate(
            secondsToFade,
            ui::View::Changes::from([this, keptAlive = objc::Strong(self())] { setAlpha(0); }));
        return;
    }
    const ui::View screen = topViewController().view();
    const CGPoint point = finger.locationIn(screen);
    const CGSize size = screen.bounds().size;
    ui::View::animate(secondsToShow,
                      ui::View::Changes::from([this, keptAlive = objc::Strong(self()), point,
                                               size] { showAt(point, size); }));
}

} // namespace wentra::toolbox
