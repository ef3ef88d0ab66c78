// The system log.
#pragma once

#include "bindings/foundation/string.hpp"

extern "C" void NSLog(id format, ...); // NOLINT(cert-dcl50-cpp): the platform's own

namespace ns {

/// Writes a line of UTF-8 to the system log. Any thread.
inline void log(std::string_view line) {
    std::string format;
    for (const char c : line) {
        format += c;
        if (c == '%') { // the text is the format: no variadic argument crosses the border
            format += c;
        }
    }
    NSLog(String::fromUtf8(format).raw());
}

} // namespace ns
