// The word grid with many tokens: filling it, and sliding a finger over its tiles. Time is told by
// token and by movement, which shows what grows with the text or the slide.
#include "bench/support/phone.hpp"

#include "bindings/foundation/set.hpp"
#include "bindings/objc/peer.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/collection_view.hpp"
#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "desktop/runtime/run_loop.hpp"
#include "library/toolbox/floating_view_controller.hpp"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace {

using wentra::toolbox::FloatingViewController;

struct FingerKind : objc::Kind<FingerKind, "BenchFinger", ui::LongPressGestureRecognizer> {
    using Kind::Kind;
};

/// A long press whose place and state are told.
class Finger : public objc::Peer<Finger, FingerKind, objc::Boundary::propagates> {
public:
    static auto methods() {
        return std::array{objc::method<"state", &Finger::state_>(),
                          objc::method<"locationInView:", &Finger::locationIn>()};
    }

    void be(ui::GestureState state, CGPoint place) {
        state_ = state;
        place_ = place;
    }

private:
    CGPoint locationIn(ui::View) { return place_; }

    ui::GestureState state_ = ui::GestureState::possible;
    CGPoint place_;
};

ns::Array tokens(long count) {
    const auto words = ns::MutableArray::make();
    for (long token = 0; token < count; ++token) {
        words.add(ns::String::fromUtf8("w" + std::to_string(token)));
    }
    return words;
}

FloatingViewController controller() {
    static const auto* kept = [] {
        bench::startPhone();
        Finger::registerClass();
        const auto made = FloatingViewController::make();
        static_cast<void>(made.view());
        return new objc::Strong(made);
    }();
    return *kept;
}

void show(ns::Array words) {
    controller().updateWordsArray(words);
    controller().send<"wordsCollectionView", ui::CollectionView>().layoutIfNeeded();
}

void fill(benchmark::State& state) {
    controller();
    const objc::Pool pool;
    const ns::Array words = tokens(state.range(0));
    for (auto _ : state) {
        const objc::Pool inner;
        show(words);
        desktop::run_loop::runUntilIdle(); // nothing that was measured is known any more
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// A point on each of the first tiles, in the grid's content.
std::vector<CGPoint> placesOf(std::size_t count) {
    constexpr double step = 5;
    const ui::CollectionView grid = controller().send<"wordsCollectionView", ui::CollectionView>();
    const double width = grid.bounds().size.width;
    std::vector<CGPoint> places;
    for (int row = 1; places.size() < count; ++row) {
        for (int column = 1; column * step < width && places.size() < count; ++column) {
            const CGPoint point{column * step, row * step};
            const ns::IndexPath path = grid.indexPathForItem(point);
            if (path && path.item() == static_cast<long>(places.size())) {
                places.push_back(point);
            }
        }
    }
    return places;
}

void slide(benchmark::State& state) {
    constexpr long tokenCount = 20000;
    controller();
    const objc::Pool pool;
    show(tokens(tokenCount));
    const std::vector<CGPoint> places = placesOf(static_cast<std::size_t>(state.range(0)));
    const auto finger = FingerKind::make();
    const auto touch = [&finger](ui::GestureState phase, CGPoint place) {
        const objc::Pool inner;
        Finger::of(finger).be(phase, place);
        controller().send<"longPressGestureRecognized:">(finger);
    };
    for (auto _ : state) {
        touch(ui::GestureState::began, places.front());
        for (const CGPoint place : places) {
            touch(ui::GestureState::changed, place);
        }
        touch(ui::GestureState::ended, places.back());
        state.PauseTiming();
        controller().selectedWords().removeAll();
        controller().send<"selectedIndexPaths", ns::MutableSet>().removeAll();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(fill)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(slide)->Arg(200)->Arg(2000)->Unit(benchmark::kMillisecond);

} // namespace
