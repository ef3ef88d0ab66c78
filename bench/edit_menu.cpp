// Putting the edit menu together with every switch on, against reading the preferences alone.
#include "bench/support/phone.hpp"
#include "bindings/foundation/array.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/menu_controller.hpp"
#include "library/preferences/preferences.hpp"

#include <benchmark/benchmark.h>

namespace {

void menuPreferences(benchmark::State& state) {
    bench::startPhone();
    for (auto _ : state) {
        benchmark::DoNotOptimize(wentra::preferences::Preferences::read());
    }
}

/// As it is each time but the first: the items are there already.
void updateMenu(benchmark::State& state) {
    bench::startPhone();
    const objc::Pool pool;
    const auto menu = ui::MenuController::sharedMenuController();
    for (auto _ : state) {
        const objc::Pool inner;
        menu.update();
    }
    state.counters["items"] = static_cast<double>(menu.menuItems().count());
}

/// As it is when the application has just set its own items.
void makeMenu(benchmark::State& state) {
    bench::startPhone();
    const objc::Pool pool;
    const auto menu = ui::MenuController::sharedMenuController();
    for (auto _ : state) {
        const objc::Pool inner;
        menu.setMenuItems(nullptr);
        menu.update();
    }
    state.counters["items"] = static_cast<double>(menu.menuItems().count());
}

BENCHMARK(menuPreferences);
BENCHMARK(updateMenu);
BENCHMARK(makeMenu);

} // namespace
