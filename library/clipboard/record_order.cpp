// Sorts places, not times.
#include "library/clipboard/record_order.hpp"

#include <algorithm>
#include <numeric>

namespace wentra::clipboard {

std::vector<std::size_t> orderOf(std::span<const std::u16string> times, bool ascending) {
    std::vector<std::size_t> places(times.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::ranges::stable_sort(places, [times, ascending](std::size_t one, std::size_t other) {
        return ascending ? times[one] < times[other] : times[one] > times[other];
    });
    return places;
}

} // namespace wentra::clipboard
