// Loading the library: the time to install every hook, its size on disk, the memory it adds.
#include "bench/support/phone.hpp"

#include <benchmark/benchmark.h>

#include <sys/wait.h>
#include <unistd.h>

#include <array>

namespace {

/// A library loads once in a process, so each round has a process of its own.
bench::Loading loadInChild() {
    std::array<int, 2> pipeEnds{};
    if (pipe(pipeEnds.data()) != 0) {
        return {};
    }
    const pid_t child = fork();
    if (child == 0) {
        bench::startPlatform();
        const bench::Loading loading = bench::loadLibrary();
        _exit(write(pipeEnds[1], &loading, sizeof loading) == sizeof loading ? 0 : 1);
    }
    bench::Loading loading{};
    const bool complete = read(pipeEnds[0], &loading, sizeof loading) == sizeof loading;
    waitpid(child, nullptr, 0);
    close(pipeEnds[0]);
    close(pipeEnds[1]);
    return complete ? loading : bench::Loading{};
}

void loading(benchmark::State& state) {
    constexpr double millisecondsPerSecond = 1'000;
    bench::Loading last{};
    for (auto _ : state) {
        last = loadInChild();
        state.SetIterationTime(last.milliseconds / millisecondsPerSecond);
    }
    state.counters["ownResidentBytes"] = static_cast<double>(last.ownResidentBytes);
    state.counters["otherResidentBytes"] = static_cast<double>(last.otherResidentBytes);
    state.counters["fileBytes"] = static_cast<double>(last.fileBytes);
}

BENCHMARK(loading)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

} // namespace
