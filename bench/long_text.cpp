// Views with a long text that has no blank: opening and drawing one takes about as long as if the
// text were short.
#include "bench/support/phone.hpp"

#include "bindings/objc/pool.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/string_drawing.hpp"
#include "bindings/uikit/text_view.hpp"
#include "bindings/uikit/window.hpp"
#include "desktop/uikit/application/screen_image.hpp"

#include <benchmark/benchmark.h>

#include <limits>
#include <string>

namespace {

/// Opens views of that text, made in a room of the screen's size, and draws the screen.
template <class Maker>
void open(benchmark::State& state, Maker make) {
    bench::startPlatform();
    const objc::Pool pool;
    const CGRect bounds = ui::Screen::mainScreen().bounds();
    const objc::Strong window = ui::Window::withFrame(bounds);
    window.makeKeyAndVisible();
    constexpr double scale = 3;
    const auto text =
        ns::String::from(std::u16string(static_cast<std::size_t>(state.range(0)), u'x'));
    for (auto _ : state) {
        const objc::Pool inner;
        desktop::ScreenImage screen(scale);
        const ui::View view = make(text, bounds);
        window.addSubview(view);
        benchmark::DoNotOptimize(screen.refresh());
        view.removeFromSuperview();
    }
    window.setHidden(true);
}

void openText(benchmark::State& state) {
    open(state, [](ns::String text, CGRect room) {
        const auto view = ui::TextView::withFrame(room);
        view.setText(text);
        return view;
    });
}

/// As high as its text, like the tile of a token.
void openLabel(benchmark::State& state) {
    open(state, [](ns::String text, CGRect room) {
        const CGSize endless{room.size.width, std::numeric_limits<double>::max()};
        const CGSize size = ui::textSize(text, endless, ui::Font::system(18));
        const auto label = ui::Label::withFrame({{}, size});
        label.setNumberOfLines(0);
        label.setText(text);
        return label;
    });
}

BENCHMARK(openText)->Arg(2'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(openLabel)->Arg(2'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

} // namespace
