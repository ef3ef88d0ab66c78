// Which application opens which URLs.
#pragma once

#include <string>
#include <string_view>

namespace desktop {

/// The name, as people know it, of the application that opens URLs of that scheme, whatever its
/// case; the scheme itself when no such application is known.
[[nodiscard]] std::u16string openerOf(std::u16string_view scheme);

} // namespace desktop
