// What a folder holds, and the orders in which it is shown.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wentra::files {

/// Names of entries, bytes as the system has them.
using Names = std::vector<std::string>;

/// Which of two entries comes first.
enum class Order { ascending, descending };

/// The names of all entries, hidden ones included, the latest change first. Links count by
/// themselves. Empty for what is no folder or cannot be read.
[[nodiscard]] Names listing(const std::string& folder);

/// The names by the dates of change of these entries of the folder; what cannot be asked counts as
/// the oldest. Equal ones keep their order.
[[nodiscard]] Names sortedByDate(const Names& names, const std::string& folder, Order order);

/// The names by size; what cannot be asked counts as empty. Equal ones change their order, as with
/// a comparison that never says so: two sorts give opposite orders.
[[nodiscard]] Names sortedBySize(const Names& names, const std::string& folder, Order order);

} // namespace wentra::files
