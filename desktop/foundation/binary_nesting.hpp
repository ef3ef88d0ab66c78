// How deep the collections of a binary property list lie in one another.
#pragma once

#include <string_view>

namespace desktop::foundation {

/// Whether collections lie deeper in one another than `deepestNesting`, or in themselves. Where the
/// bytes are malformed, there are none.
[[nodiscard]] bool isBinaryTooDeep(std::string_view list);

} // namespace desktop::foundation
