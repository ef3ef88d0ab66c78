// Sizes in bytes as people read them.
#pragma once

#include <string>

namespace desktop::foundation {

/// Like a phone in simplified Chinese: whole bytes and KB, MB with one decimal, what is larger with
/// two, without zeros at the end. `unit`: how many of one unit make the next, 1000 or 1024.
[[nodiscard]] std::string byteCountText(long long bytes, double unit);

/// Gives the byte count formatter the phone's decimals.
void installByteCounts();

} // namespace desktop::foundation
