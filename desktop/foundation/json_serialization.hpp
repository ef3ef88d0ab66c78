// NSJSONSerialization, as far as GNUstep's differs from the phone's.
#pragma once

#include <string_view>

namespace desktop::foundation {

/// Whether arrays and objects lie more than 512 levels deep in one another, which the phone
/// refuses. Malformed JSON is for the reader to find.
[[nodiscard]] bool isNestedTooDeeplyInJson(std::string_view json);

void installJsonSerialization();

} // namespace desktop::foundation
