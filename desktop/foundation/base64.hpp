// Base64 where GNUstep takes what the phone refuses.
#pragma once

#include <string_view>

namespace desktop::foundation {

/// Whether the text is Base64 to the letter: its alphabet only, whole groups of four, and nothing
/// behind the padding.
[[nodiscard]] bool isBase64(std::u16string_view text);

/// Makes data refuse other texts, unless it is told to overlook unknown characters.
void installBase64();

} // namespace desktop::foundation
