// What the browser page is sent: bytes and processor time of small and large changes.
#include "bench/support/panel_of_texts.hpp"
#include "bench/support/phone.hpp"

#include "bindings/objc/pool.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/window.hpp"
#include "desktop/uikit/application/screen_image.hpp"
#include "desktop/viewer/frame.hpp"

#include <benchmark/benchmark.h>

namespace {

using namespace desktop;
using namespace desktop::viewer;
using namespace ns::literals;

constexpr double phoneScale = 3;

/// A window full of labels, as a panel of the library is, and a caret on it.
struct Scene {
    Scene() {
        const CGRect bounds = ui::Screen::mainScreen().bounds();
        window = ui::Window::withFrame(bounds);
        panel = bench::addPanelOfTexts(window);
        caret = ui::View::withFrame({{100, 700}, {2, 20}});
        caret.setBackgroundColor(ui::Color::blue());
        window.addSubview(caret);
        window.makeKeyAndVisible();
    }
    static Scene& shared() {
        bench::startPlatform();
        static auto* scene = new Scene;
        return *scene;
    }

    objc::Strong<ui::Window> window;
    objc::Strong<ui::View> panel;
    objc::Strong<ui::View> caret;
};

/// What one page is sent.
class Frames {
public:
    Bytes next(ScreenImage& image, const std::vector<PixelRectangle>& regions) {
        Changes changes =
            shown_.update({image.pixels(), image.width(), image.height(), image.stride()}, regions);
        return encodeFrame(1, static_cast<std::uint16_t>(image.width()),
                           static_cast<std::uint16_t>(image.height()), std::move(changes));
    }

private:
    ShownScreen shown_;
};

/// The bytes of what is sent, against those of the tiles that differ anywhere on the screen.
template <class Change>
double sentByTiles(Scene& scene, ScreenImage& image, Frames& frames, Change change) {
    const PixelRectangle everything{0, 0, image.width(), image.height()};
    Frames exact;
    exact.next(image, {everything});
    std::size_t sent = 0;
    std::size_t tiles = 0;
    for (const bool odd : {true, false, true, false}) {
        change(scene, odd);
        sent += frames.next(image, image.refresh()).size();
        tiles += exact.next(image, {everything}).size();
    }
    return static_cast<double>(sent) / static_cast<double>(tiles);
}

/// Changes the screen again and again, and makes the frames that a page would be sent.
template <class Change>
void measure(benchmark::State& state, Change change) {
    Scene& scene = Scene::shared();
    const objc::Pool pool; // after the platform's own
    ScreenImage image(phoneScale);
    Frames frames;
    frames.next(image, image.refresh());
    std::size_t bytes = 0;
    bool odd = false;
    for (auto _ : state) {
        change(scene, odd = !odd);
        bytes += frames.next(image, image.refresh()).size();
    }
    state.counters["bytes"] =
        benchmark::Counter(static_cast<double>(bytes), benchmark::Counter::kAvgIterations);
    state.counters["byTiles"] = sentByTiles(scene, image, frames, change);
    state.counters["frames/s"] =
        benchmark::Counter(1, benchmark::Counter::kIsIterationInvariantRate);
}

void caretBlinks(benchmark::State& state) {
    measure(state, [](const Scene& scene, bool odd) { scene.caret.setHidden(odd); });
}

void panelMoves(benchmark::State& state) {
    measure(state, [](const Scene& scene, bool odd) {
        scene.panel.setFrame({{0, odd ? 66.0 : 60.0}, {390, 610}});
    });
}

/// Encoding alone, of the whole screen.
void wholeScreen(benchmark::State& state) {
    Scene::shared();
    const objc::Pool pool;
    ScreenImage image(phoneScale);
    image.refresh();
    std::size_t bytes = 0;
    for (auto _ : state) {
        bytes = Frames().next(image, {{0, 0, image.width(), image.height()}}).size();
    }
    state.counters["bytes"] = static_cast<double>(bytes);
    state.counters["frames/s"] =
        benchmark::Counter(1, benchmark::Counter::kIsIterationInvariantRate);
}

BENCHMARK(caretBlinks)->Name("frame/caret_blinks");
BENCHMARK(panelMoves)->Name("frame/panel_moves");
BENCHMARK(wholeScreen)->Name("frame/whole_screen");

} // namespace
