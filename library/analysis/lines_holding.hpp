// The lines of a text that hold certain fragments.
#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace wentra::analysis {

/// The lines (ended by "\n" alone) that hold at least one of the fragments, in their order and
/// without their ends. They are views of the text. A fragment holds no line feed.
[[nodiscard]] std::vector<std::u16string_view>
linesHolding(std::u16string_view text, std::span<const std::u16string_view> fragments);

/// The lines in which one fragment, which holds no line feed, stands at a place that is accepted by
/// the text from there on.
[[nodiscard]] std::vector<std::u16string_view> linesWhere(std::u16string_view text,
                                                          std::u16string_view fragment,
                                                          bool (*accept)(std::u16string_view rest));

} // namespace wentra::analysis
