// How the C++ library fails on a phone: as an exception that every border knows how to report.
#include "bindings/foundation/exception.hpp"

#include <__verbose_abort>
#include <array>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace {

using namespace ns::literals;

/// Sources that are compiled without C++ exceptions tell the reason by this function instead of
/// throwing. An Objective-C exception takes the same way through the frames, and needs no type of
/// the phone's C++ library.
[[noreturn]] void raise(const char* reason) {
    ns::Exception::with(u"std::exception"_ns, ns::String::fromUtf8(reason)).raise();
}

} // namespace

void std::__libcpp_verbose_abort(const char* format, ...) {
    std::array<char, 256> reason{};
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(reason.data(), reason.size(), format, arguments);
    va_end(arguments);
    raise(reason.data());
}

namespace std {

void __throw_bad_alloc() { raise("out of memory"); }

/// Where an exception reaches a function that promised to throw none.
[[noreturn]] void terminate() noexcept { std::abort(); }

} // namespace std
