// Where the thumb is, and what a finger on it does.
#include "desktop/uikit/controls/slider.hpp"

#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/values/color.hpp"

#include <algorithm>

namespace desktop {
namespace {

constexpr double thumb = 27; // points, as on the phone

} // namespace

ui::Slider Slider::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(frame);
    self().setBackgroundColor(ui::Color::clear());
    return self();
}

void Slider::setValue(float value) {
    value_ = value >= minimum_ ? std::min(value, std::max(minimum_, maximum_)) : minimum_;
    self().setNeedsDisplay();
}

double Slider::travel() const { return std::max(0.0, self().bounds().size.width - thumb); }

double Slider::thumbLeft() const {
    const double range = static_cast<double>(maximum_) - static_cast<double>(minimum_);
    const double part = static_cast<double>(value_) - static_cast<double>(minimum_);
    return range > 0 ? travel() * part / range : 0;
}

void Slider::touchesBegan(ns::SetOf<ui::Touch> touches, ui::Event event) {
    grip_ = touches.allObjects().first().locationIn(self()).x - thumbLeft();
    taken_ = grip_ >= 0 && grip_ <= thumb;
    super<"touchesBegan:withEvent:">(touches, event);
}

void Slider::touchesMoved(ns::SetOf<ui::Touch> touches, ui::Event event) {
    super<"touchesMoved:withEvent:">(touches, event);
    if (!taken_ || travel() == 0) {
        return;
    }
    const double left = touches.allObjects().first().locationIn(self()).x - grip_;
    const auto range = static_cast<double>(maximum_ - minimum_);
    setValue(minimum_ + static_cast<float>(range * left / travel()));
    self().sendActions(ui::ControlEvents::valueChanged);
}

void Slider::drawRect(CGRect) {
    Canvas* const canvas = currentCanvas();
    if (canvas == nullptr) {
        return;
    }
    constexpr double track = 4;
    const CGSize size = self().bounds().size;
    const double left = thumbLeft();
    const double top = (size.height - track) / 2;
    const ui::Color rest = ui::Color::named("systemGray4Color");
    canvas->fill({0, top, size.width, track}, Color::valueOf(rest), track / 2);
    canvas->fill({0, top, left + thumb / 2, track}, Color::valueOf(self().tintColor()), track / 2);
    const Rectangle knob{left, (size.height - thumb) / 2, thumb, thumb};
    canvas->fill(knob, {1, 1, 1, 1}, thumb / 2);
    canvas->stroke(knob, {0, 0, 0, 0.15}, 0.5, thumb / 2);
}

} // namespace desktop
