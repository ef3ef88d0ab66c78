// A set of row numbers, kept as stretches.
#pragma once

#include <map>
#include <optional>

namespace wentra::toolbox {

/// Rows may be any numbers. What it takes to ask depends on the number of stretches, not of rows.
class RowSet {
public:
    void insert(long row);
    void erase(long row);
    [[nodiscard]] bool contains(long row) const;

    /// The first row from `from` on, `to` included, that is not in the set.
    [[nodiscard]] std::optional<long> firstMissing(long from, long to) const;
    /// The same downwards, for a `from` that is not below `to`.
    [[nodiscard]] std::optional<long> lastMissing(long from, long to) const;
    /// A row of the set that is not from `first` to `last`: the lowest below, or else the highest
    /// above.
    [[nodiscard]] std::optional<long> outside(long first, long last) const;

private:
    using Stretches = std::map<long, long>;
    /// The stretch that holds the row, or the end.
    [[nodiscard]] Stretches::const_iterator holding(long row) const;

    Stretches stretches_; // first row to last; no two touch
};

} // namespace wentra::toolbox
