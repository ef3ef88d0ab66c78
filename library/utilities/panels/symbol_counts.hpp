// How often the symbols of source code stand in a text, as a whole and method by method.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace wentra::utilities {

/// In the order in which they are told.
inline constexpr std::u16string_view symbols = u"{}<>()[].$:*^;=\"-&%#@!";

/// By the symbols' order.
using SymbolCounts = std::array<std::size_t, symbols.size()>;

[[nodiscard]] SymbolCounts countSymbols(std::u16string_view text);

/// The parts of the text that begin with "- (" and end with the first line after it that begins
/// with "}", that bracket included. Views of the text.
[[nodiscard]] std::vector<std::u16string_view> methodBodies(std::u16string_view text);

/// What the counter tells about the text.
[[nodiscard]] std::u16string symbolReport(std::u16string_view text);

} // namespace wentra::utilities
