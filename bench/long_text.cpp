// A text view with a long text that has no blank: opening and drawing it takes about as long as if
// the text were short.
#include "bench/support/phone.hpp"

#include "bindings/objc/pool.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/text_view.hpp"
#include "bindings/uikit/window.hpp"
#include "desktop/uikit/application/screen_image.hpp"

#include <benchmark/benchmark.h>

#include <string>

namespace {

void openText(benchmark::State& state) {
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
        const auto view = ui::TextView::withFrame(bounds);
        view.setText(text);
        window.addSubview(view);
        benchmark::DoNotOptimize(screen.refresh());
        view.removeFromSuperview();
    }
    window.setHidden(true);
}

BENCHMARK(openText)->Arg(2'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

} // namespace
