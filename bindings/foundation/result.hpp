// What comes of a message that can fail: its answer, or an error that tells why not.
#pragma once

#include "bindings/foundation/error.hpp"

namespace ns {

/// The answer of a message that can fail. Exactly one of the two is nil.
template <class Value>
struct [[nodiscard]] Result {
    Value value;
    Error error;

    explicit operator bool() const { return !error; }
};

/// Where a message writes its error. `out` goes to the message, and the answer into `result`, or
/// into `unless` when the message only tells whether it worked:
///
///     const ErrorPointer error;
///     return error.result(sendClass<"…:error:", Data>(…, error.out()));
class ErrorPointer {
public:
    [[nodiscard]] id* out() const { return &error_; }

    /// An answer of nil is a failure, and only then the error counts.
    template <class Value>
    Result<Value> result(Value answer) const {
        return {answer, unless(static_cast<bool>(answer))};
    }
    /// Nil when it worked.
    [[nodiscard]] Error unless(bool worked) const {
        return worked ? Error() : error_ != nullptr ? objc::wrap<Error>(error_) : unexplained();
    }

private:
    /// Some messages fail without a word.
    static Error unexplained() {
        using namespace literals;
        return Error::with(u"NSCocoaErrorDomain"_ns, 0);
    }

    mutable id error_ = nullptr; ///< borrowed from the pool
};

inline Error String::writeToFile(String path, bool atomically, StringEncoding encoding) const {
    const ErrorPointer error;
    return error.unless(send<"writeToFile:atomically:encoding:error:", bool>(
        path, atomically, encoding, error.out()));
}

} // namespace ns
