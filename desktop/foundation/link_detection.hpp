// Where a text has links, as the phone's data detector finds them.
#pragma once

#include "bindings/foundation/range.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace desktop::foundation {

struct DetectedLink {
    ns::Range range;    ///< in UTF-16 units
    std::u16string url; ///< the text with "http://" or "mailto:" before it where that is not there
};

/// The links, in the text's order; none overlaps another. A link is an address with a scheme and
/// "://"; a host that begins with "www." or ends in a top-level domain that there is, with what
/// follows it; or a mail address at such a host. It ends before white space, quotation marks and
/// Chinese punctuation, and marks at its end belong to the sentence around it. Linear.
[[nodiscard]] std::vector<DetectedLink> detectLinks(std::u16string_view text);

} // namespace desktop::foundation
