// A new URL through the hook that blocks requests, against reading the preference file alone; and
// what the platform takes of it.
#include "bench/support/phone.hpp"
#include "bench/support/plain_read.hpp"

#include "bindings/foundation/url.hpp"
#include "bindings/objc/pool.hpp"

#include <benchmark/benchmark.h>

namespace {

using namespace ns::literals;
using bench::PlistForm;

void make(benchmark::State& state) {
    const objc::Pool pool;
    const ns::String address = u"https://images.example.org/2026/11/photo-1234.jpg?width=640"_ns;
    for (auto _ : state) {
        const objc::Pool inner;
        benchmark::DoNotOptimize(ns::Url::withString(address));
    }
}

/// What the platform itself takes: measured first, while no library is loaded.
void platformUrl(benchmark::State& state) {
    bench::startPlatform();
    make(state);
}

void plainBlockingRead(benchmark::State& state, PlistForm form) {
    bench::readPlainly(state, bench::blockingFile(form, true));
}

void newUrl(benchmark::State& state, PlistForm form, bool blocks) {
    bench::startPhone();
    bench::blockingFile(form, blocks);
    make(state);
}

BENCHMARK(platformUrl);
BENCHMARK_CAPTURE(plainBlockingRead, xml, PlistForm::xml);
BENCHMARK_CAPTURE(plainBlockingRead, binary, PlistForm::binary);
BENCHMARK_CAPTURE(newUrl, xml_blocking, PlistForm::xml, true);
BENCHMARK_CAPTURE(newUrl, binary_blocking, PlistForm::binary, true);
BENCHMARK_CAPTURE(newUrl, xml_passing, PlistForm::xml, false);
BENCHMARK_CAPTURE(newUrl, binary_passing, PlistForm::binary, false);

} // namespace
