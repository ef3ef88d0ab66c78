// The arithmetic of the panel's sizes.
#include "library/toolbox/panel/layout_values.hpp"

#include <limits>

namespace wentra::toolbox {
namespace {

constexpr long long step = 180;
constexpr std::size_t firstRow = 0;
constexpr std::size_t gridHeight = 4;

/// The sum, or the nearest number that there is.
long long sum(long long one, long long other) {
    using Limits = std::numeric_limits<long long>;
    long long result = 0;
    if (__builtin_add_overflow(one, other, &result)) {
        return other > 0 ? Limits::max() : Limits::min();
    }
    return result;
}

/// The change of every value that is stored.
template <class Change>
NewLayout changed(const LayoutValues& values, Change change) {
    NewLayout result;
    for (std::size_t at = 0; at < values.size(); ++at) {
        if (values[at].current) {
            result[at] = change(*values[at].current, values[at].original);
        }
    }
    return result;
}

} // namespace

NewLayout toggledLayout(const LayoutValues& values) {
    const LayoutValue& row = values[firstRow];
    if (!row.current) {
        return {};
    }
    const bool enlarged = *row.current > row.original;
    return changed(values, [enlarged](long long current, long long original) {
        return enlarged ? original : sum(current, step);
    });
}

NewLayout shrunkLayout(const LayoutValues& values) {
    constexpr long long lowestGrid = 142;
    if (values[gridHeight].current.value_or(0) < lowestGrid) {
        return {};
    }
    return changed(values, [](long long current, long long original) {
        return current > sum(original, step) ? original : sum(current, -step);
    });
}

} // namespace wentra::toolbox
