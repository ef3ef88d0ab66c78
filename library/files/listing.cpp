// Lists folders, and sorts names by what the system tells of each, which it is asked once.
#include "library/files/listing.hpp"

#include "bindings/darwin/file_status.hpp"
#include "library/files/folder.hpp"

#include <algorithm>
#include <limits>
#include <utility>

namespace wentra::files {
namespace {

/// Seconds and nanoseconds, or bytes.
using Rank = std::pair<long long, long>;

struct Ranked {
    Rank rank;
    std::size_t place; ///< among those that are sorted: equal ones keep their order
    std::string name;
};

Rank byDate(const struct stat& status) {
    const timespec time = darwin::modificationTime(status);
    return {time.tv_sec, time.tv_nsec};
}

Rank bySize(const struct stat& status) { return {status.st_size, 0}; }

constexpr Rank oldest{std::numeric_limits<long long>::min(), 0};
constexpr Rank empty{0, 0};

void add(std::vector<Ranked>& entries, const Folder& folder, const char* name,
         Rank (*rank)(const struct stat&), Rank unknown) {
    struct stat status {};
    entries.push_back({folder.ask(name, status) ? rank(status) : unknown, entries.size(), name});
}

std::vector<Ranked> ranked(const Names& names, const std::string& path,
                           Rank (*rank)(const struct stat&), Rank unknown) {
    const Folder folder(path);
    std::vector<Ranked> entries;
    entries.reserve(names.size());
    for (const std::string& name : names) {
        add(entries, folder, name.c_str(), rank, unknown);
    }
    return entries;
}

/// Takes the entries' names.
Names sorted(std::vector<Ranked> entries, Order order) {
    std::ranges::sort(entries, [order](const Ranked& one, const Ranked& other) {
        if (one.rank == other.rank) {
            return one.place < other.place;
        }
        return (order == Order::ascending) == (one.rank < other.rank);
    });
    Names names;
    names.reserve(entries.size());
    for (Ranked& entry : entries) {
        names.push_back(std::move(entry.name));
    }
    return names;
}

} // namespace

Names listing(const std::string& path) {
    const Folder folder(path);
    std::vector<Ranked> entries;
    while (const dirent* entry = folder.next()) {
        add(entries, folder, entry->d_name, &byDate, oldest);
    }
    return sorted(std::move(entries), Order::descending);
}

Names sortedByDate(const Names& names, const std::string& folder, Order order) {
    return sorted(ranked(names, folder, &byDate, oldest), order);
}

Names sortedBySize(const Names& names, const std::string& folder, Order order) {
    const Names reversed(names.rbegin(), names.rend());
    return sorted(ranked(reversed, folder, &bySize, empty), order);
}

} // namespace wentra::files
