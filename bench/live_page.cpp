// The toolbox's panel dragged on a page that only reads: frames a second, their bytes, and how long
// a movement takes to become a frame.
#include "bench/support/page_client.hpp"
#include "tests/support/temporary_folder.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <stdexcept>

namespace {

using namespace std::chrono_literals;
using bench::PageClient;
using nlohmann::json;

/// A folder for a phone whose toolbox has a ball and a panel that is dragged.
std::string preparedRoot(const support::TemporaryFolder& folder) {
    std::string root = folder.path();
    PageClient({HOST_PATH, WENTRA_PATH, "plain", root})
        .ask({{"do", "preferences"}, {"set", {{"kqwzfc", true}, {"kqxfyd", true}}}});
    return root;
}

/// The panel, open and in hand, at the phone's own 3 pixels a point.
class Drag {
public:
    Drag() {
        page_.ask(
            {{"do", "pasteboard"},
             {"set", "下午取快递，顺便买牛奶 Milk. The quick brown fox jumps over the lazy dog; "
                     "床前明月光，疑是地上霜。举头望明月，低头思故乡。"}});
        page_.say({{"type", "look"}, {"scale", 3}});
        openPanel();
        page_.say(fingers("began", 0));
        page_.say(fingers("moved", 20)); // far enough for a drag to begin
        page_.read(500ms);
    }
    /// One step further, up and down again.
    json move() {
        constexpr int way = 200;
        const int across = ++step_ % (2 * way);
        return fingers("moved", 20 + (across < way ? across : 2 * way - across));
    }
    PageClient& page() { return page_; }

private:
    static json fingers(const char* phase, int up) {
        const json point{0, 4, 650 - up}; // the panel's left edge
        return {{"type", "fingers"}, {"phase", phase}, {"points", json::array({point})}};
    }

    bool isOpen() {
        return !page_.ask({{"do", "find"}, {"where", {{"class", "UICollectionView"}}}}).empty();
    }
    void openPanel() {
        constexpr int attempts = 30;
        for (int attempt = 0; !isOpen(); ++attempt) {
            if (attempt == attempts) {
                throw std::runtime_error("the panel does not open");
            }
            page_.ask({{"do", "tap"}, {"at", {358, 222}}}); // the ball, as soon as it is there
            page_.read(1s);
        }
    }

    support::TemporaryFolder folder_;
    PageClient page_{{HOST_PATH, WENTRA_PATH, "notes", preparedRoot(folder_)}};
    int step_ = 0;
};

void addBytes(benchmark::State& state, std::size_t bytes, std::size_t frames) {
    state.counters["bytes"] = static_cast<double>(bytes) / static_cast<double>(frames);
}

/// Movements come much faster than frames.
void framesOfADrag(benchmark::State& state) {
    Drag drag;
    PageClient& page = drag.page();
    for (auto _ : state) {
        page.sayEvery(4ms, [&drag] { return drag.move(); });
        page.read(500ms);
        const std::size_t frames = page.frames();
        const std::size_t bytes = page.bytes();
        const auto start = std::chrono::steady_clock::now();
        page.read(4s);
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        state.counters["frames/s"] = static_cast<double>(page.frames() - frames) / taken.count();
        addBytes(state, page.bytes() - bytes, page.frames() - frames);
        page.sayEvery({}, nullptr);
    }
}

/// Each movement comes when the frame of the last one is there.
void movementToFrame(benchmark::State& state) {
    Drag drag;
    PageClient& page = drag.page();
    std::vector<double> milliseconds;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        page.say(drag.move());
        page.readFrame();
        const auto taken = std::chrono::steady_clock::now() - start;
        milliseconds.push_back(std::chrono::duration<double, std::milli>(taken).count());
    }
    const auto middle = milliseconds.begin() + static_cast<std::ptrdiff_t>(milliseconds.size() / 2);
    std::ranges::nth_element(milliseconds, middle);
    state.counters["median_ms"] = *middle;
}

BENCHMARK(framesOfADrag)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();
BENCHMARK(movementToFrame)->Unit(benchmark::kMillisecond)->Iterations(300)->UseRealTime();

} // namespace
