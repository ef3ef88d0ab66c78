// One label text through the whole chain of hooks, against reading the preference file alone and
// against the plain approach, which lets Foundation read the file; and what the platform takes of
// it.
#include "bench/support/phone.hpp"
#include "bench/support/plain_read.hpp"

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/label.hpp"
#include "library/labels/stored_rules.hpp"
#include "library/preferences/preferences.hpp"

#include <benchmark/benchmark.h>

#include <array>

namespace {

using namespace ns::literals;
using bench::PlistForm;

void plainRead(benchmark::State& state, PlistForm form) {
    bench::readPlainly(state, bench::preferenceFile(form));
}

void preferences(benchmark::State& state, PlistForm form) {
    bench::preferenceFile(form);
    for (auto _ : state) {
        benchmark::DoNotOptimize(wentra::preferences::Preferences::read());
    }
}

void assign(benchmark::State& state, ns::String text) {
    const objc::Pool pool;
    const auto label = ui::Label::withFrame({{0, 0}, {100, 20}});
    for (auto _ : state) {
        const objc::Pool inner;
        label.setText(text);
    }
}

/// What the platform itself takes: measured first, while no library is loaded.
void platformText(benchmark::State& state) {
    bench::startPlatform();
    assign(state, u"Name: Bob"_ns);
}

/// What reading the rules takes at least: all maps out of the user defaults, the text out of each.
void ruleMaps(benchmark::State& state) {
    bench::startPlatform();
    const auto defaults = ns::UserDefaults::standardUserDefaults();
    for (auto _ : state) {
        const objc::Pool pool;
        for (const wentra::labels::RuleKind kind : wentra::labels::storingOrder) {
            const wentra::labels::StoredRules rules(defaults, kind);
            benchmark::DoNotOptimize(rules.text(u"Name: Bob"_ns));
        }
    }
}

/// "label 7" has a rule of every kind; "Name: Bob" has none and is tried as a prefix too.
void setText(benchmark::State& state, PlistForm form, bool ruled) {
    bench::startPhone();
    bench::preferenceFile(form);
    assign(state, ruled ? u"label 7"_ns : u"Name: Bob"_ns);
}

/// What the plain approach adds: the file read by Foundation, and the ten switches taken from it.
void foundationRead(benchmark::State& state) {
    bench::startPhone();
    const ns::String path = ns::String::fromUtf8(bench::preferenceFile(PlistForm::xml));
    const std::array switches{u"kqwzgs"_ns, u"kqwzdx"_ns, u"kqwzgd"_ns, u"kqwzkd"_ns, u"kqhxyd"_ns,
                              u"kqzxyd"_ns, u"kqxstm"_ns, u"kqxgzt"_ns, u"kqdxzq"_ns, u"kqxydx"_ns};
    for (auto _ : state) {
        const objc::Pool inner;
        const auto dictionary = ns::Dictionary::withContentsOfFile(path);
        for (const ns::String key : switches) {
            benchmark::DoNotOptimize(dictionary.get(key).assume<ns::Number>().boolValue());
        }
    }
}

BENCHMARK(platformText);
BENCHMARK(ruleMaps);
BENCHMARK_CAPTURE(plainRead, xml, PlistForm::xml);
BENCHMARK_CAPTURE(plainRead, binary, PlistForm::binary);
BENCHMARK_CAPTURE(preferences, xml, PlistForm::xml);
BENCHMARK_CAPTURE(preferences, binary, PlistForm::binary);
BENCHMARK_CAPTURE(setText, xml_with_rules, PlistForm::xml, true);
BENCHMARK_CAPTURE(setText, binary_with_rules, PlistForm::binary, true);
BENCHMARK_CAPTURE(setText, xml_without_rules, PlistForm::xml, false);
BENCHMARK_CAPTURE(setText, binary_without_rules, PlistForm::binary, false);
BENCHMARK(foundationRead);

} // namespace
