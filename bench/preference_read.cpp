// Measures reading the preferences against reading the same bytes and doing nothing with them.
#include "library/startup/preferences.hpp"
#include "tests/library/startup/property_list_writer.hpp"
#include "tests/library/startup/temporary_folder.hpp"

#include <benchmark/benchmark.h>

#include <array>
#include <bit>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace wentra::startup {
namespace {

// Two thirds switches, the rest numbers and texts of different values.
WrittenValue valueAt(std::size_t index) {
    switch (index * 7 % 9) {
    case 0:
        return "ff88" + std::to_string(index);
    case 1:
        return 0.25 * static_cast<double>(index);
    case 2:
        return static_cast<std::int64_t>(index);
    default:
        return index % 2 == 0;
    }
}

// All the known keys, most of them Chinese, and keys of others up to 150.
WrittenEntries entries() {
    WrittenEntries entries;
    for (const Key& key : std::bit_cast<std::array<Key, knownKeyCount>>(keys))
        entries.emplace_back(key.name(), valueAt(entries.size()));
    while (entries.size() < 150)
        entries.emplace_back("otherKey" + std::to_string(entries.size()), valueAt(entries.size()));
    return entries;
}

void readPlainly(benchmark::State& state, const std::string& bytes) {
    const TemporaryFolder folder;
    const std::string path = folder.write("preferences.plist", bytes);
    std::string buffer(bytes.size(), '\0');
    for (auto _ : state) {
        const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
        struct stat status {};
        fstat(descriptor, &status);
        const ssize_t count = read(descriptor, buffer.data(), buffer.size());
        benchmark::DoNotOptimize(count);
        close(descriptor);
    }
}

void readPreferences(benchmark::State& state, const std::string& bytes) {
    const TemporaryFolder folder;
    const std::string path = folder.write("preferences.plist", bytes);
    for (auto _ : state) {
        const Preferences preferences = Preferences::readFile(path);
        benchmark::DoNotOptimize(preferences.on(keys.recolour));
    }
}

void PlainReadXml(benchmark::State& state) { readPlainly(state, xmlPropertyList(entries())); }
void PlainReadBinary(benchmark::State& state) { readPlainly(state, binaryPropertyList(entries())); }
void PreferencesXml(benchmark::State& state) { readPreferences(state, xmlPropertyList(entries())); }
void PreferencesBinary(benchmark::State& state) {
    readPreferences(state, binaryPropertyList(entries()));
}

BENCHMARK(PlainReadXml);
BENCHMARK(PlainReadBinary);
BENCHMARK(PreferencesXml);
BENCHMARK(PreferencesBinary);

} // namespace
} // namespace wentra::startup
