// Folders with 100,000 entries: listing and sorting them against the system's calls alone,
// scrolling through their rows, and duplicates among 100,000 files in 5,000 folders against find.
#include "bench/support/phone.hpp"

#include "bindings/darwin/file_status.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/table_view.hpp"
#include "library/files/browser/browser.hpp"
#include "library/files/duplicates.hpp"
#include "library/files/listing.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr int entries = 100'000;
constexpr int folders = 5'000;

/// Folders of files, gone at the end.
class Trees {
public:
    Trees() {
        std::string name = fs::temp_directory_path() / "wentra-bench-XXXXXX";
        root_ = mkdtemp(name.data());
    }
    Trees(const Trees&) = delete;
    Trees& operator=(const Trees&) = delete;
    ~Trees() {
        std::error_code ignored;
        fs::remove_all(root_, ignored);
    }

    /// A folder with so many files; made at the first call.
    std::string flat(int count) {
        const fs::path folder = root_ / ("flat" + std::to_string(count));
        if (fs::create_directory(folder)) {
            for (int file = 0; file < count; ++file) {
                make(folder / ("file" + std::to_string(file) + ".dat"), 0);
            }
        }
        return folder;
    }
    std::string deep() {
        const fs::path top = root_ / "deep";
        if (fs::create_directory(top)) {
            for (int folder = 0; folder < folders; ++folder) {
                const fs::path place = top / std::to_string(folder % 70) / std::to_string(folder);
                fs::create_directories(place);
                for (int file = 0; file < entries / folders; ++file) {
                    make(place / std::to_string(file), (folder * 31 + file * 7) % 9973);
                }
            }
        }
        return top;
    }

private:
    static void make(const fs::path& file, off_t size) {
        const int made = open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
        static_cast<void>(ftruncate(made, size) == 0);
        close(made);
    }

    fs::path root_;
};

Trees& trees() {
    static Trees all;
    return all;
}

void listFolder(benchmark::State& state) {
    const std::string folder = trees().flat(entries);
    for (auto _ : state) {
        benchmark::DoNotOptimize(wentra::files::listing(folder));
    }
}

/// What `ls -f` does, a stat of each entry, and a sort.
void systemListing(benchmark::State& state) {
    struct Entry {
        timespec date;
        std::string name;
    };
    const std::string folder = trees().flat(entries);
    for (auto _ : state) {
        std::vector<Entry> found;
        DIR* const stream = opendir(folder.c_str());
        while (const dirent* entry = readdir(stream)) {
            struct stat status {};
            stat((folder + "/" + entry->d_name).c_str(), &status);
            found.push_back({darwin::modificationTime(status), entry->d_name});
        }
        closedir(stream);
        std::ranges::sort(found, [](const Entry& one, const Entry& other) {
            return std::pair(other.date.tv_sec, other.date.tv_nsec) <
                   std::pair(one.date.tv_sec, one.date.tv_nsec);
        });
        benchmark::DoNotOptimize(found);
    }
}

void findDuplicates(benchmark::State& state) {
    const std::string folder = trees().deep();
    for (auto _ : state) {
        benchmark::DoNotOptimize(wentra::files::groupedBySize(folder));
    }
}

void findTool(benchmark::State& state) {
    const std::string command = "find " + trees().deep() + " -type f -printf '%s' >/dev/null";
    for (auto _ : state) {
        if (std::system(command.c_str()) != 0) {
            state.SkipWithError("find failed");
        }
    }
}

/// A screenful further down at each turn.
void scrollFiles(benchmark::State& state) {
    bench::startPhone();
    const objc::Pool pool;
    const std::string folder = trees().flat(static_cast<int>(state.range(0)));
    const auto browser = wentra::files::UmaCollectionViewController::make();
    browser.send<"setPath1:">(ns::String::fromUtf8(folder));
    browser.send<"setPath2:">(ns::String::fromUtf8("/nowhere"));
    static_cast<void>(browser.view());
    const auto table = browser.send<"tableView1", ui::TableView>();
    table.setFrame({{0, 0}, {195, 675}});
    table.layoutIfNeeded();
    double top = 0;
    constexpr double screenful = 650;
    for (auto _ : state) {
        const objc::Pool inner;
        top = top + screenful < table.contentSize().height - screenful ? top + screenful : 0;
        table.setContentOffset({0, top});
        table.layoutIfNeeded();
    }
}

} // namespace

BENCHMARK(listFolder)->Unit(benchmark::kMillisecond);
BENCHMARK(systemListing)->Unit(benchmark::kMillisecond);
BENCHMARK(findDuplicates)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(findTool)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(scrollFiles)->Arg(1'000)->Arg(entries);
