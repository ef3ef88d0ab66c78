// A wrapped message against a call through the looked-up implementation, and what a hook adds.
#include "bindings/objc/hook.hpp"
#include "bindings/objc/kind.hpp"
#include "bindings/objc/peer.hpp"
#include "bindings/objc/pool.hpp"

#include <benchmark/benchmark.h>

namespace {

struct CounterKind : objc::Kind<CounterKind, "BenchCounter"> {
    using Kind::Kind;
    [[nodiscard]] long add(long amount) const { return send<"add:", long>(amount); }
    [[nodiscard]] long addHooked(long amount) const { return send<"addHooked:", long>(amount); }
};

class Counter
    : public objc::Peer<Counter, CounterKind, objc::Boundary::propagates, objc::Methods::atOnce> {
public:
    static auto methods() {
        return std::array{objc::method<"add:", &Counter::add>(),
                          objc::method<"addHooked:", &Counter::add>()};
    }

private:
    long add(long amount) { return total_ += amount; }
    long total_ = 0;
};

long passOn(objc::Next<long(long)> next, CounterKind, long amount) { return next(amount); }

CounterKind counter() {
    static const objc::Pool pool;
    static const auto* kept = [] {
        Counter::registerClass();
        objc::install(objc::hook<"BenchCounter", "addHooked:", &passOn>());
        return new objc::Strong(CounterKind::make());
    }();
    return *kept;
}

/// By hand, as a compiler would: the selector is known, the implementation is looked up each time.
void handCast(benchmark::State& state) {
    id receiver = counter().raw();
    const SEL name = sel_registerName("add:");
    for (auto _ : state) {
        benchmark::DoNotOptimize(receiver);
        const auto call = reinterpret_cast<long (*)(id, SEL, long)>(objc::lookUp(receiver, name));
        benchmark::DoNotOptimize(call(receiver, name, 1));
    }
}

void wrapped(benchmark::State& state) {
    CounterKind receiver = counter();
    for (auto _ : state) {
        benchmark::DoNotOptimize(receiver);
        benchmark::DoNotOptimize(receiver.add(1));
    }
}

void hooked(benchmark::State& state) {
    CounterKind receiver = counter();
    for (auto _ : state) {
        benchmark::DoNotOptimize(receiver);
        benchmark::DoNotOptimize(receiver.addHooked(1));
    }
}

BENCHMARK(handCast);
BENCHMARK(wrapped);
BENCHMARK(hooked);

} // namespace
