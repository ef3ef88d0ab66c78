// Strings that are kept as bytes.
#pragma once

namespace desktop::foundation {

/// Lets such strings give out their units many at a time, which GNUstep converts one by one.
void installAsciiStrings();

} // namespace desktop::foundation
