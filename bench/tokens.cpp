// Cutting a megabyte of mixed text into tokens, against the regular expression that says how, and
// against only reading the memory.
#include "library/toolbox/tokens.hpp"

#include "bench/support/phone.hpp"
#include "bindings/foundation/array.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/pool.hpp"

#include <benchmark/benchmark.h>

#include <numeric>
#include <string>

namespace {

constexpr std::size_t megabyte = 1U << 20U;

/// A megabyte of English, Chinese, numbers, marks and pictures.
const std::u16string& mixedText() {
    static const std::u16string text = [] {
        constexpr std::u16string_view phrase =
            u"Copied 今天上午十点开会，room 204。See https://example.com/a?b=1 😀 再见！\n";
        std::u16string repeated;
        while (repeated.size() * sizeof(char16_t) < megabyte) {
            repeated.append(phrase);
        }
        return repeated;
    }();
    return text;
}

void reportBytes(benchmark::State& state) {
    state.SetBytesProcessed(static_cast<std::int64_t>(static_cast<std::size_t>(state.iterations()) *
                                                      mixedText().size() * sizeof(char16_t)));
}

void memoryRead(benchmark::State& state) {
    const std::u16string& text = mixedText();
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::accumulate(text.begin(), text.end(), 0U));
    }
    reportBytes(state);
}

void cutTokens(benchmark::State& state) {
    const std::u16string& text = mixedText();
    for (auto _ : state) {
        benchmark::DoNotOptimize(wentra::toolbox::cutTokens(text));
    }
    reportBytes(state);
}

void regularExpression(benchmark::State& state) {
    bench::startPhone();
    const objc::Pool pool;
    const auto text = ns::String::from(mixedText());
    const auto pattern = ns::String::from(u"([一-龥]+)|([a-zA-Z0-9]+)|([^a-zA-Z0-9一-龥])");
    const auto expression = objc::wrap(objc::object(objc_lookUpClass("NSRegularExpression")))
                                .send<"regularExpressionWithPattern:options:error:", objc::Object>(
                                    pattern, 1UL, static_cast<void*>(nullptr));
    for (auto _ : state) {
        const objc::Pool inner;
        benchmark::DoNotOptimize(expression.send<"matchesInString:options:range:", ns::Array>(
            text, 0UL, ns::Range{0, mixedText().size()}));
    }
    reportBytes(state);
}

BENCHMARK(memoryRead);
BENCHMARK(cutTokens);
BENCHMARK(regularExpression);

} // namespace
