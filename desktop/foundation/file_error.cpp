// Cocoa's numbers, with the system's error below.
#include "desktop/foundation/file_error.hpp"

#include "bindings/foundation/error.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace desktop::foundation {
namespace {

using namespace ns::literals;

/// Cocoa's numbers of what went wrong.
long cocoaCode(int failure) {
    constexpr long unknown = 256;
    constexpr std::array<std::pair<int, long>, 4> known{
        {{EACCES, 257}, {ENOENT, 260}, {EEXIST, 516}, {ENOSPC, 640}}};
    const auto* const found = std::ranges::find(known, failure, &std::pair<int, long>::first);
    return found != known.end() ? found->second : unknown;
}

} // namespace

void report(id* error, int failure) {
    if (error != nullptr) {
        const auto cause = ns::Error::with(u"NSPOSIXErrorDomain"_ns, failure);
        *error = ns::Error::with(u"NSCocoaErrorDomain"_ns, cocoaCode(failure),
                                 ns::Dictionary::withObject(cause, u"NSUnderlyingError"_ns))
                     .raw();
    }
}

} // namespace desktop::foundation
