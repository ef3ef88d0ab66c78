// Crash reports: listing 10,000 of them against reading their attributes, and picking the lines of
// a large one against grep.
#include "bench/support/phone.hpp"

#include "bindings/foundation/file_manager.hpp"
#include "bindings/objc/pool.hpp"
#include "library/analysis/library_lines.hpp"
#include "library/analysis/line_filters.hpp"
#include "library/crashlogs/report_folder.hpp"
#include "library/files/browser/file_reading.hpp"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
namespace analysis = wentra::analysis;

constexpr int reports = 10'000;

/// The reports' folder on the phone.
const std::string& reportFolder() {
    static const std::string folder = [] {
        bench::startPhone();
        std::string path = "/var/mobile/Library/Logs/CrashReporter";
        fs::create_directories(path);
        for (int number = 0; number < reports; ++number) {
            std::ofstream(path + "/SpringBoard-" + std::to_string(number) + ".ips") << number;
        }
        return path;
    }();
    return folder;
}

void listReports(benchmark::State& state) {
    reportFolder();
    for (auto _ : state) {
        const objc::Pool pool;
        benchmark::DoNotOptimize(wentra::crashlogs::listedEntries());
    }
}

void readAttributes(benchmark::State& state) {
    const auto folder = ns::String::fromUtf8(reportFolder());
    const auto files = ns::FileManager::defaultManager();
    for (auto _ : state) {
        const objc::Pool pool;
        for (const ns::String name : files.contentsOfDirectory(folder).value) {
            const ns::String path = folder.appendingPathComponent(name);
            benchmark::DoNotOptimize(files.attributesOfItem(path).value);
        }
    }
}

/// A file of 10 MB, gone at the end.
class LargeReport {
public:
    LargeReport() {
        constexpr std::size_t size = 10U << 20U;
        std::ofstream file(path_);
        for (std::size_t written = 0; written < size; written += block.size()) {
            file << block;
        }
    }
    LargeReport(const LargeReport&) = delete;
    LargeReport& operator=(const LargeReport&) = delete;
    ~LargeReport() {
        std::error_code ignored;
        fs::remove(path_, ignored);
    }
    [[nodiscard]] const std::string& path() const { return path_; }

private:
    static constexpr std::string_view block =
        "    {\"imageOffset\":187392,\"imageIndex\":4,\"symbol\":\"objc_msgSend\"},\n"
        "    {\"imageOffset\":40960,\"imageIndex\":11},\n"
        "  {\n"
        "    \"source\" : \"P\",\n"
        "    \"arch\" : \"arm64e\",\n"
        "    \"base\" : 6442450944,\n"
        "    \"size\" : 245760,\n"
        "    \"uuid\" : \"4e2d9b0c-51f5-3f7a-a6a2-0b6a2f0f3a7c\",\n"
        "    \"path\" : \"\\/usr\\/lib\\/system\\/libsystem_kernel.dylib\",\n"
        "    \"name\" : \"libsystem_kernel.dylib\"\n"
        "  },\n"
        "  {\n"
        "    \"path\" : \"\\/private\\/preboot\\/8A2E\\/Library\\/Shuffle.dylib\",\n"
        "    \"name\" : \"Shuffle.dylib\"\n"
        "  },\n";
    std::string path_ = fs::temp_directory_path() / ("report" + std::to_string(getpid()) + ".ips");
};

const std::string& largeReport() {
    static const LargeReport report;
    return report.path();
}

ns::String textOf(const std::string& path) {
    return wentra::files::textOfFile(wentra::files::urlOf(path));
}

/// Reading included.
void findLibraryLines(benchmark::State& state) {
    bench::startPhone();
    const std::string& path = largeReport();
    for (auto _ : state) {
        const objc::Pool pool;
        benchmark::DoNotOptimize(
            analysis::libraryLines(textOf(path), analysis::SystemList::reports));
    }
}

/// As the dialog does, of the text that it shows.
void filterLines(benchmark::State& state, const analysis::LineFilter& filter) {
    bench::startPhone();
    const objc::Pool pool;
    const std::u16string text = textOf(largeReport()).utf16();
    for (auto _ : state) {
        benchmark::DoNotOptimize(analysis::filtered(text, filter));
    }
}

/// Through a pipe: it stops at the first line where nobody can see more.
void grep(benchmark::State& state, const char* expression) {
    const std::string command =
        std::string("grep -E '") + expression + "' " + largeReport() + " | cat >/dev/null";
    for (auto _ : state) {
        if (std::system(command.c_str()) != 0) {
            state.SkipWithError("grep failed");
        }
    }
}

#define WENTRA_FILTER(name, filter, expression)                                                    \
    BENCHMARK_CAPTURE(filterLines, name, filter)->Unit(benchmark::kMillisecond)->UseRealTime();    \
    BENCHMARK_CAPTURE(grep, name, expression)->Unit(benchmark::kMillisecond)->UseRealTime()

} // namespace

BENCHMARK(listReports)->Unit(benchmark::kMillisecond);
BENCHMARK(readAttributes)->Unit(benchmark::kMillisecond);
BENCHMARK(findLibraryLines)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(grep, lines, "\\.dylib|\\.framework")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
WENTRA_FILTER(urls, analysis::urlFilter, "://");
WENTRA_FILTER(libraries, analysis::libraryFilter,
              R"(\.dylib|\\/usr\\/lib\\/|\\/System\\/Library\\/)");
WENTRA_FILTER(dylibs, analysis::dylibFilter, R"(\.dylib)");
WENTRA_FILTER(errors, analysis::errorFilter,
              R"(\\/private\\/preboot\\/|\\/private\\/var\\/containers)");
WENTRA_FILTER(system, analysis::systemFilter, R"(\\/System\\/Library\\/)");
WENTRA_FILTER(numbers, analysis::numberFilter, "[0-9].*[0-9]");
