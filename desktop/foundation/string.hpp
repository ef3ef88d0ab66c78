// Strings of any UTF-16 units.
#pragma once

namespace desktop::foundation {

/// Lets strings be made of any units, halves of surrogate pairs and a leading U+FEFF or U+FFFE
/// included, as on the phone: GNUstep makes none of the former, and takes the latter for byte order
/// marks, of UTF-8 as well. What has no UTF-8 form gives none where GNUstep raises. Equal are
/// strings of the same units, as documented; GNUstep composes characters first, which takes long.
void installStrings();

} // namespace desktop::foundation
