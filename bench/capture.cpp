// Tall pictures, against encoding their pixels alone; and how quickly an application shows its
// frames while its screen is recorded.
#include "bench/support/panel_of_texts.hpp"
#include "bench/support/phone.hpp"

#include "bindings/objc/pool.hpp"
#include "bindings/uikit/image.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/window.hpp"
#include "desktop/drawing/png_writer.hpp"
#include "desktop/replaykit/screen_recorder.hpp"
#include "desktop/runtime/run_loop.hpp"
#include "desktop/uikit/application/screen_image.hpp"
#include "desktop/uikit/values/image.hpp"
#include "library/toolbox/floating_view_controller.hpp"

#include <benchmark/benchmark.h>

namespace {

using namespace desktop;
using namespace ns::literals;
using wentra::toolbox::FloatingViewController;

constexpr int pictures = 20;
constexpr double scale = 3;

/// A panel of texts on the screen of an application with the library.
struct Scene {
    Scene() {
        window = ui::Window::withFrame(ui::Screen::mainScreen().bounds());
        panel = bench::addPanelOfTexts(window);
        window.makeKeyAndVisible();
        controller = FloatingViewController::make();
        static_cast<void>(controller.view());
    }
    static Scene& shared() {
        bench::startPhone();
        static auto* scene = new Scene;
        return *scene;
    }
    void move(int step) const { panel.setCenter({195, 365 + 0.5 * (step % 200)}); }

    objc::Strong<ui::Window> window;
    objc::Strong<ui::View> panel;
    objc::Strong<FloatingViewController> controller;
};

/// As many as are stitched, each of its own.
ns::MutableArray screenshots() {
    const auto all = ns::MutableArray::make();
    for (int picture = 0; picture < pictures; ++picture) {
        Scene::shared().move(picture * 7);
        all.add(Scene::shared().controller.send<"screenshot", ui::Image>());
    }
    return all;
}

/// From the collected pictures to the file in the photo library.
void stitchImages(benchmark::State& state) {
    const Scene& scene = Scene::shared();
    const objc::Pool pool;
    const auto all = screenshots();
    for (auto _ : state) {
        const objc::Pool each;
        scene.controller.send<"setScreenshotsArray:">(all.send<"mutableCopy", objc::Object>());
        scene.controller.send<"stitchImages">();
    }
}

/// The pixels of the tall picture, all in memory, as a PNG.
void encodeStitched(benchmark::State& state) {
    const objc::Pool pool;
    constexpr double bars = 92 * scale;
    std::vector<Image> parts;
    for (const objc::Object each : screenshots()) {
        const Image& whole = *UIImage::valueOf(each.as<ui::Image>());
        const double top = parts.empty() ? 0 : bars;
        parts.push_back(
            *whole.cropped({0, top, double(whole.pixelWidth()), whole.pixelHeight() - top}));
    }
    std::uint32_t height = 0;
    for (const Image& part : parts) {
        height += static_cast<std::uint32_t>(part.pixelHeight());
    }
    for (auto _ : state) {
        PngWriter writer(static_cast<std::uint32_t>(parts[0].pixelWidth()), height);
        for (const Image& part : parts) {
            const unsigned char* pixels = cairo_image_surface_get_data(part.surface());
            for (int row = 0; row < part.pixelHeight(); ++row) {
                writer.add(pixels +
                           std::ptrdiff_t{row} * cairo_image_surface_get_stride(part.surface()));
            }
        }
        benchmark::DoNotOptimize(writer.finish());
    }
}

/// A panel on its way, shown at the phone's scale while a film of it is made.
void recordedDrag(benchmark::State& state) {
    const Scene& scene = Scene::shared();
    const objc::Pool pool;
    const auto recorder = rp::ScreenRecorder::sharedRecorder();
    recorder.startRecording({});
    ScreenImage screen(scale);
    int step = 0;
    for (auto _ : state) {
        const objc::Pool each;
        scene.move(++step);
        run_loop::runUntilIdle();
        benchmark::DoNotOptimize(screen.refresh());
    }
    if (!ScreenRecorder::shared().isRecording()) {
        state.SkipWithError("nothing was recorded");
    }
    ScreenRecorder::shared().close();
    state.counters["frames"] =
        benchmark::Counter(static_cast<double>(step), benchmark::Counter::kIsRate);
}

BENCHMARK(stitchImages)->Unit(benchmark::kMillisecond);
BENCHMARK(encodeStitched)->Unit(benchmark::kMillisecond);
BENCHMARK(recordedDrag)->Unit(benchmark::kMillisecond)->MinTime(3)->UseRealTime();

} // namespace
