// The utilities, each against the least that has to be done: the class dump against writing its
// text, counting symbols against reading the memory, method bodies in text that ends none.
#include "bench/support/phone.hpp"
#include "bindings/objc/pool.hpp"
#include "library/utilities/documents.hpp"
#include "library/utilities/dumps/runtime_text.hpp"
#include "library/utilities/panels/symbol_counts.hpp"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

namespace {

namespace utilities = wentra::utilities;

constexpr utilities::DocumentFile dumpFile{"/var/mobile/Documents/dump.txt"};
constexpr std::size_t megabyte = 1U << 20U;

void startPhone() {
    bench::startPhone();
    std::filesystem::create_directories("/var/mobile/Documents");
}

void dumpClasses(benchmark::State& state) {
    startPhone();
    for (auto _ : state) {
        const objc::Pool pool;
        const std::string text = utilities::classText();
        benchmark::DoNotOptimize(dumpFile.write(text));
        state.counters["bytes"] = static_cast<double>(text.size());
    }
}

void writeDump(benchmark::State& state) {
    startPhone();
    const std::string text = utilities::classText();
    for (auto _ : state) {
        const objc::Pool pool;
        benchmark::DoNotOptimize(dumpFile.write(text));
    }
}

const std::u16string& sourceCode() {
    static const std::u16string text = [] {
        constexpr std::u16string_view method =
            u"- (void)tap:(id)sender {\n    [self.view add:@{@\"键\": @(1 + 2)}]; // 说明\n}\n";
        std::u16string repeated;
        while (repeated.size() * sizeof(char16_t) < 10 * megabyte) {
            repeated.append(method);
        }
        return repeated;
    }();
    return text;
}

void countSymbols(benchmark::State& state) {
    const std::u16string& text = sourceCode();
    for (auto _ : state) {
        benchmark::DoNotOptimize(utilities::countSymbols(text));
    }
}

/// Unit by unit.
void readUnits(benchmark::State& state) {
    const std::u16string& text = sourceCode();
    for (auto _ : state) {
        unsigned sum = 0;
        for (const char16_t unit : text) {
            sum += unit;
        }
        benchmark::DoNotOptimize(sum);
    }
}

void findBodies(benchmark::State& state) {
    std::u16string text;
    for (long opening = 0; opening < state.range(0); ++opening) {
        text += u"- (";
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(utilities::methodBodies(text));
    }
}

// Both wait for the disk, which the processor's time does not tell.
BENCHMARK(dumpClasses)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(writeDump)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(countSymbols)->Unit(benchmark::kMillisecond);
BENCHMARK(readUnits)->Unit(benchmark::kMillisecond);
BENCHMARK(findBodies)->Arg(500'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

} // namespace
