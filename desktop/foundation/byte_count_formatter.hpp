// NSByteCountFormatter: sizes as people read them.
#pragma once

#include <string>

namespace desktop::foundation {

/// The size in the largest unit of which there is one, "1.2 MB" for instance; a kilobyte is that
/// many bytes. Kilobytes are whole, megabytes have one digit behind the point and what is larger
/// two, as far as they are not zeros.
[[nodiscard]] std::string byteCountText(long long bytes, double kilobyte);

/// Makes NSByteCountFormatter write by these rules; GNUstep's writes other units.
void installByteCountFormatter();

} // namespace desktop::foundation
