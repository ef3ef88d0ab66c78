// Stretches of rows that grow together and fall apart.
#include "library/toolbox/grid/row_set.hpp"

#include <iterator>
#include <limits>

namespace wentra::toolbox {

RowSet::Stretches::const_iterator RowSet::holding(long row) const {
    const auto above = stretches_.upper_bound(row);
    if (above == stretches_.begin() || std::prev(above)->second < row) {
        return stretches_.end();
    }
    return std::prev(above);
}

bool RowSet::contains(long row) const { return holding(row) != stretches_.end(); }

void RowSet::insert(long row) {
    using Limits = std::numeric_limits<long>;
    if (contains(row)) {
        return;
    }
    long first = row;
    long last = row;
    if (const auto above = row == Limits::max() ? stretches_.end() : stretches_.find(row + 1);
        above != stretches_.end()) {
        last = above->second;
        stretches_.erase(above);
    }
    if (const auto below = row == Limits::min() ? stretches_.end() : holding(row - 1);
        below != stretches_.end()) {
        first = below->first;
    }
    stretches_[first] = last;
}

void RowSet::erase(long row) {
    const auto found = holding(row);
    if (found == stretches_.end()) {
        return;
    }
    const auto [first, last] = *found;
    stretches_.erase(found);
    if (first < row) {
        stretches_[first] = row - 1;
    }
    if (row < last) {
        stretches_[row + 1] = last;
    }
}

std::optional<long> RowSet::firstMissing(long from, long to) const {
    const auto found = holding(from);
    const bool beyond = found != stretches_.end() && found->second >= to;
    if (from > to || beyond) {
        return std::nullopt;
    }
    return found == stretches_.end() ? from : found->second + 1;
}

std::optional<long> RowSet::lastMissing(long from, long to) const {
    const auto found = holding(from);
    const bool beyond = found != stretches_.end() && found->first <= to;
    if (from < to || beyond) {
        return std::nullopt;
    }
    return found == stretches_.end() ? from : found->first - 1;
}

std::optional<long> RowSet::outside(long first, long last) const {
    if (stretches_.empty()) {
        return std::nullopt;
    }
    if (stretches_.begin()->first < first) {
        return stretches_.begin()->first;
    }
    const long highest = stretches_.rbegin()->second;
    return highest > last ? std::optional(highest) : std::nullopt;
}

} // namespace wentra::toolbox
