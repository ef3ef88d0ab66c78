// Drawing the screen: all of it, a caret, a label, a panel that is dragged; and a touch that moves.
#include "bench/support/phone.hpp"

#include "bindings/objc/pool.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/pan_gesture_recognizer.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/window.hpp"
#include "desktop/uikit/application/screen_image.hpp"
#include "desktop/uikit/events/touch_dispatcher.hpp"

#include <benchmark/benchmark.h>

#include <array>

namespace {

using namespace ns::literals;
using desktop::ScreenImage;

constexpr double scale = 3;

ui::View addBox(ui::View superview, CGRect frame, ui::Color color, double cornerRadius) {
    const auto box = ui::View::withFrame(frame);
    box.setBackgroundColor(color);
    box.layer().setCornerRadius(cornerRadius);
    box.setClipsToBounds(true);
    superview.addSubview(box);
    return box;
}

ui::Label addLabel(ui::View superview, CGRect frame, ns::String text) {
    const auto label = ui::Label::withFrame(frame);
    label.setText(text);
    superview.addSubview(label);
    return label;
}

/// An application of cards with labels; over it, a panel of 390 x 610 points full of labels.
struct Phone {
    objc::Strong<ui::Window> window;
    objc::Strong<ui::View> panel;
    objc::Strong<ui::View> caret;
    objc::Strong<ui::Label> label;

    static Phone& shared() {
        bench::startPlatform();
        static auto* phone = new Phone;
        return *phone;
    }

    void movePanel(int step) const {
        constexpr int way = 60;
        const int across = step % (2 * way);
        const double place = across < way ? across : 2 * way - across;
        panel.setCenter({195 + place / 3 - 10, 400 + place});
    }

private:
    Phone() : window(ui::Window::withFrame(ui::Screen::mainScreen().bounds())) {
        window.setBackgroundColor(ui::Color::withRed(0.949, 0.949, 0.969, 1));
        for (int card = 0; card < 7; ++card) {
            const double top = 60 + 112.0 * card;
            const auto box = addBox(window, {{16, top}, {358, 100}}, ui::Color::white(), 12);
            for (int line = 0; line < 4; ++line) {
                addLabel(box, {{14, 8 + 22.0 * line}, {330, 20}},
                         u"下午取快递，顺便买牛奶 Milk"_ns);
            }
        }
        panel = addBox(window, {{0, 117}, {390, 610}}, ui::Color::withRed(0.98, 0.98, 0.98, 1), 16);
        for (int row = 0; row < 18; ++row) {
            for (int column = 0; column < 4; ++column) {
                const auto tile = addBox(panel, {{12 + 93.0 * column, 12 + 33.0 * row}, {87, 28}},
                                         ui::Color::withRed(0.9, 0.93, 1, 1), 6);
                label = addLabel(tile, {{4, 4}, {79, 20}}, u"词语 word"_ns);
            }
        }
        caret = addBox(panel, {{30, 20}, {2, 20}}, ui::Color::systemBlue(), 0);
        window.makeKeyAndVisible();
    }
};

/// Draws everything, from nothing.
void fullRedraw(benchmark::State& state) {
    Phone::shared();
    for (auto _ : state) {
        ScreenImage screen(scale);
        benchmark::DoNotOptimize(screen.refresh());
    }
}

/// Changes something, and draws that; the picture stays in use from frame to frame.
template <class Change>
void frames(benchmark::State& state, Change change) {
    Phone::shared();
    ScreenImage screen(scale);
    screen.refresh();
    int step = 0;
    for (auto _ : state) {
        const objc::Pool pool;
        change(++step);
        benchmark::DoNotOptimize(screen.refresh());
    }
    state.counters["frames"] =
        benchmark::Counter(static_cast<double>(step), benchmark::Counter::kIsRate);
}

void caretRedraw(benchmark::State& state) {
    frames(state, [](int step) { Phone::shared().caret.setHidden(step % 2 == 0); });
}

void labelRedraw(benchmark::State& state) {
    frames(state, [](int step) {
        Phone::shared().label.setText(step % 2 == 0 ? u"一个词"_ns : u"another"_ns);
    });
}

void panelDrag(benchmark::State& state) {
    frames(state, [](int step) { Phone::shared().movePanel(step); });
}

void panelDragBetweenPixels(benchmark::State& state) {
    frames(state, [](int step) {
        Phone::shared().panel.setCenter({195.13, 400 + 0.37 * (step % 300)});
    });
}

void panelPinch(benchmark::State& state) {
    frames(state, [](int step) {
        const double size = 0.7 + 0.002 * (step % 150);
        Phone::shared().panel.setTransform({size, 0, 0, size, 0, 0});
    });
    Phone::shared().panel.setTransform({});
}

/// One move of a finger on a view among 1,000, with a drag recognizer on it and on its panel.
void touchMove(benchmark::State& state) {
    constexpr int views = 1'000;
    const Phone& phone = Phone::shared();
    const objc::Pool pool;
    const auto board =
        addBox(phone.window, ui::Screen::mainScreen().bounds(), ui::Color::white(), 0);
    board.addGestureRecognizer(ui::PanGestureRecognizer::make());
    for (int index = 0; index < views; ++index) {
        const int row = index / 40;
        const auto tile = ui::View::withFrame({{9.0 * (index % 40), 30.0 * row}, {9, 30}});
        board.addSubview(tile);
    }
    const auto finger = [](double x) { return std::array{desktop::TouchPoint{0, {x, 410}}}; };
    auto& touches = desktop::TouchDispatcher::shared();
    touches.begin(finger(100));
    int step = 0;
    for (auto _ : state) {
        const objc::Pool inner;
        touches.move(finger(100 + ++step % 200));
        benchmark::DoNotOptimize(desktop::TouchDispatcher::viewAt({200, 410}));
    }
    touches.end(finger(100));
    board.removeFromSuperview();
}

BENCHMARK(fullRedraw)->Unit(benchmark::kMillisecond);
BENCHMARK(caretRedraw)->Unit(benchmark::kMillisecond);
BENCHMARK(labelRedraw)->Unit(benchmark::kMillisecond);
BENCHMARK(panelDrag)->Unit(benchmark::kMillisecond);
BENCHMARK(panelDragBetweenPixels)->Unit(benchmark::kMillisecond);
BENCHMARK(panelPinch)->Unit(benchmark::kMillisecond);
BENCHMARK(touchMove)->Unit(benchmark::kMicrosecond);

} // namespace
