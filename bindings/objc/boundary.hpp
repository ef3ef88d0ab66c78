// The border that no exception of ours crosses: what a hook throws is reported and ends there.
#pragma once

#include "bindings/objc/passing.hpp"

#include <string>
#include <utility>

namespace objc {

/// What becomes of an exception that leaves a peer's method.
enum class Boundary {
    contained,  ///< It is reported and the method answers zero: for classes of the library.
    propagates, ///< The caller gets it, as from any method: for classes that play the platform.
};

/// What is known of an exception: the class or type, and its reason in UTF-8.
struct ExceptionText {
    std::string name;
    std::string reason;
};

/// Describes the exception being handled; call it inside a `catch` block only. Objective-C and C++
/// exceptions alike.
[[nodiscard]] ExceptionText describeCurrentException();

/// Reports the exception being handled as swallowed at `where` ("UILabel setText:"): a line in the
/// system log, and a `WentraExceptionSwallowed` notification whose user info holds the strings
/// "where", "name" and "reason". Call it inside a `catch` block only; it throws nothing itself.
void reportSwallowed(const char* where) noexcept;

/// The same for the method that is running: its selector, and its class where that is known.
void reportSwallowed(SEL method, const char* className = nullptr) noexcept;

/// Writes a line to the system log, after "Wentra: ". UTF-8. Throws nothing.
void logLine(const std::string& text) noexcept;

/// Runs `body`; an exception is reported and gives a zero result.
template <class Body>
auto contained(const char* where, Body&& body) noexcept {
    using Result = decltype(std::forward<Body>(body)());
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        reportSwallowed(where);
        return zero<Result>();
    }
}

} // namespace objc
