// The dynamic loader's list of what is loaded.
#pragma once

#include <cstdint>

extern "C" {
std::uint32_t _dyld_image_count(); // NOLINT(bugprone-reserved-identifier): the loader's own
/// Null past the end.
const char* _dyld_get_image_name(std::uint32_t index); // NOLINT(bugprone-reserved-identifier)
}

namespace dyld {

/// Calls `body` with the path of each image, UTF-8, in the order in which they were loaded.
template <class Body>
void forEachImage(Body body) {
    for (std::uint32_t index = 0; index < _dyld_image_count(); ++index) {
        if (const char* const path = _dyld_get_image_name(index); path != nullptr) {
            body(path);
        }
    }
}

} // namespace dyld
