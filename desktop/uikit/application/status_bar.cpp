// The status bar: time, signal, wireless network and battery.
#include "desktop/uikit/application/status_bar.hpp"

#include "desktop/drawing/text_layout.hpp"

#include <array>
#include <numbers>

namespace desktop {
namespace {

/// Where a bar has its parts, in points.
struct Places {
    double middle;    ///< the height that all of them are centred about
    double timeWidth; ///< the time stands in the middle of so much of the bar
    double timeSize;
    double signal, wireless, battery; ///< where they begin
};

Places placesOn(const Device& device) {
    const double width = device.size.width;
    switch (device.front) {
    case PhoneFront::homeButton:
        return {device.statusBar / 2, width, 12, 7, 30, width - 33};
    case PhoneFront::notch:
        return {device.statusBar / 2 + 1.5, 96, 17, width - 82, width - 59, width - 40};
    default:
        return {device.statusBar / 2 + 5, 126, 17, width - 99, width - 76, width - 57};
    }
}

void drawTime(Canvas& canvas, const Colour& ink, const Places& places) {
    TextRun look;
    look.font.size = places.timeSize;
    look.font.weight = 600;
    look.colour = ink;
    TextFrame frame;
    frame.width = places.timeWidth;
    frame.alignment = TextAlignment::center;
    const TextLayout time(u"9:41", look, frame);
    time.draw(canvas.context(), {0, places.middle - time.size().height / 2});
}

void drawSignal(Canvas& canvas, const Colour& ink, double left, double middle) {
    constexpr std::array heights{4.0, 6.0, 8.5, 11.0};
    for (std::size_t bar = 0; bar < heights.size(); ++bar) {
        canvas.fill(
            {left + 4.7 * static_cast<double>(bar), middle + 5.5 - heights[bar], 3.2, heights[bar]},
            ink, 1);
    }
}

void drawWireless(Canvas& canvas, const Colour& ink, double left, double middle) {
    cairo_t* context = canvas.context();
    cairo_save(context);
    cairo_set_source_rgba(context, ink.red, ink.green, ink.blue, ink.alpha);
    const double x = left + 7.5;
    const double bottom = middle + 5.5;
    const double from = -0.75 * std::numbers::pi;
    const double to = -0.25 * std::numbers::pi;
    cairo_set_line_width(context, 2.2);
    for (const double radius : {9.6, 6.0}) {
        cairo_new_path(context);
        cairo_arc(context, x, bottom, radius, from, to);
        cairo_stroke(context);
    }
    cairo_move_to(context, x, bottom);
    cairo_arc(context, x, bottom, 3.4, from, to);
    cairo_fill(context);
    cairo_restore(context);
}

void drawBattery(Canvas& canvas, const Colour& ink, double left, double middle) {
    const Colour faint{ink.red, ink.green, ink.blue, 0.35};
    canvas.stroke({left, middle - 6, 24, 12}, faint, 1, 3.6);
    canvas.fill({left + 25, middle - 2, 1.4, 4}, faint, 0.7);
    canvas.fill({left + 2, middle - 4, 20, 8}, ink, 2);
}

} // namespace

Rectangle statusBarArea(const Device& device) {
    return {0, 0, device.size.width, device.statusBar};
}

void drawStatusBar(Canvas& canvas, const Device& device, const Colour& ink) {
    const Places places = placesOn(device);
    drawTime(canvas, ink, places);
    drawSignal(canvas, ink, places.signal, places.middle);
    drawWireless(canvas, ink, places.wireless, places.middle);
    drawBattery(canvas, ink, places.battery, places.middle);
}

Rectangle homeIndicatorArea(Size screen) {
    constexpr double width = 134;
    return {(screen.width - width) / 2, screen.height - 13, width, 5};
}

} // namespace desktop
