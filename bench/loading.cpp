// Loading the library: the time to install every hook, its size on disk, the memory it adds.
#include "bench/support/phone.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <string>
#include <string_view>

namespace {

constexpr const char* numbers = "%lf %zu %zu %zu\n";

/// The library's whole part in a process.
int load() {
    bench::startPlatform();
    const bench::Loading loaded = bench::loadLibrary();
    return std::printf(numbers, loaded.milliseconds, loaded.ownResidentBytes,
                       loaded.otherResidentBytes, loaded.fileBytes) > 0
               ? 0
               : 1;
}

/// A library loads once in a process; a forked one would pay for every page that it shares, so the
/// program starts anew.
bench::Loading loadInProcess() {
    const std::string program = std::filesystem::read_symlink("/proc/self/exe");
    bench::Loading loaded{};
    if (FILE* const child = popen((program + " --load").c_str(), "r"); child != nullptr) {
        static_cast<void>(std::fscanf(child, numbers, &loaded.milliseconds,
                                      &loaded.ownResidentBytes, &loaded.otherResidentBytes,
                                      &loaded.fileBytes));
        pclose(child);
    }
    return loaded;
}

void loading(benchmark::State& state) {
    constexpr double millisecondsPerSecond = 1'000;
    bench::Loading last{};
    // By where the library comes to lie, the system maps more or fewer pages around each touched
    // one.
    double best = std::numeric_limits<double>::infinity();
    double ownResidentBytes = 0;
    double otherResidentBytes = 0;
    for (auto _ : state) {
        last = loadInProcess();
        ownResidentBytes += static_cast<double>(last.ownResidentBytes);
        otherResidentBytes += static_cast<double>(last.otherResidentBytes);
        best = std::min(best, last.milliseconds);
        state.SetIterationTime(last.milliseconds / millisecondsPerSecond);
    }
    using benchmark::Counter;
    // What else the machine does takes time, it never saves any.
    state.counters["bestMilliseconds"] = best;
    state.counters["ownResidentBytes"] = Counter(ownResidentBytes, Counter::kAvgIterations);
    state.counters["otherResidentBytes"] = Counter(otherResidentBytes, Counter::kAvgIterations);
    state.counters["fileBytes"] = static_cast<double>(last.fileBytes);
}

BENCHMARK(loading)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

} // namespace

int main(int count, char** arguments) {
    if (count == 2 && arguments[1] == std::string_view("--load")) {
        return load();
    }
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
