// The order of the list of copied texts.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace wentra::clipboard {

/// The places of the times in the order of their texts, unit by unit; equal ones stay as they are.
[[nodiscard]] std::vector<std::size_t> orderOf(std::span<const std::u16string> times,
                                               bool ascending);

} // namespace wentra::clipboard
