// Sorts places, not times.
#include "library/clipboard/record_order.hpp"

#include <algorithm>
#include <numeric>

namespace wentra::clipboard {

std::vector<std::size_t> orderOf(std::span<const std::u16string> times, bool ascending) {
    std::vector<std::size_t> places(times.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::ranges::sort(places, [times, ascending](std::size_t one, std::size_t other) {
        const int order = times[one].compare(times[other]);
        return order == 0 ? one < other : (order < 0) == ascending;
    });
    return places;
}

} // namespace wentra::clipboard
