// NSURLSessionTask: one load of a session.
#pragma once

#include "bindings/foundation/error.hpp"
#include "bindings/foundation/url_response.hpp"

namespace ns {

/// The platform's numbers.
enum class UrlSessionTaskState : long { running = 0, suspended = 1, canceling = 2, completed = 3 };

/// The code of the error with which a task ends that was cancelled.
inline constexpr long urlErrorCancelled = -999;

struct UrlSessionTask : objc::Kind<UrlSessionTask, "NSURLSessionTask"> {
    using Kind::Kind;

    /// Starts the load, or goes on with it: a task is made suspended.
    void resume() const { send<"resume">(); }
    /// The task ends with the error "cancelled" (-999).
    void cancel() const { send<"cancel">(); }
    [[nodiscard]] UrlSessionTaskState state() const { return send<"state", UrlSessionTaskState>(); }
    [[nodiscard]] UrlResponse response() const { return send<"response", UrlResponse>(); }
    [[nodiscard]] Error error() const { return send<"error", Error>(); }
};

} // namespace ns
