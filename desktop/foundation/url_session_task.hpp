// NSURLSessionTask and its kinds: one load.
#pragma once

#include "bindings/foundation/url_session.hpp"
#include "desktop/class.hpp"
#include "desktop/foundation/url_delivery.hpp"
#include "desktop/network/transfers.hpp"

#include <mutex>

namespace desktop::foundation {

/// Any thread. While it runs, the network keeps the task, and the task its session.
class UrlSessionTask : public PlatformClass<UrlSessionTask, ns::UrlSessionTask> {
public:
    static constexpr auto methods() {
        using Self = UrlSessionTask;
        return std::array{
            objc::method<"resume", &Self::resume>(),
            objc::method<"cancel", &Self::cancel>(),
            objc::method<"state", &Self::state>(),
            objc::method<"taskIdentifier", &Self::identifier_>(),
            objc::method<"originalRequest", &Self::request_>(),
            objc::method<"response", &Self::response>(),
            objc::method<"error", &Self::error>(),
            objc::method<"countOfBytesReceived", &Self::countOfBytesReceived>(),
            objc::method<"countOfBytesExpectedToReceive", &Self::expectedBytes>(),
        };
    }

    /// Makes a new task one of the session's.
    void setUp(ns::UrlSession session, unsigned long identifier, ns::UrlRequest request,
               std::unique_ptr<UrlDelivery> delivery);

    // What the network tells.
    void received(const network::HttpResponse& response);
    bool receivedData(std::string_view piece);
    void ended(std::optional<network::LoadFailure> failure);

private:
    using State = ns::UrlSessionTaskState;

    void resume();
    void cancel();
    void complete();
    [[nodiscard]] State state() const;
    [[nodiscard]] ns::UrlResponse response() const;
    [[nodiscard]] ns::Error error() const;
    [[nodiscard]] long long countOfBytesReceived() const;
    [[nodiscard]] long long expectedBytes() const;

    // Fixed once the task is set up.
    objc::Strong<ns::UrlSession> session_;
    objc::Copied<ns::UrlRequest> request_;
    unsigned long identifier_ = 0;
    std::unique_ptr<UrlDelivery> delivery_;

    mutable std::mutex mutex_; ///< of what follows
    State state_ = State::suspended;
    objc::Strong<ns::UrlResponse> response_;
    objc::Strong<ns::Error> error_;
    network::Transfers::Ticket ticket_ = 0;
    long long receivedBytes_ = 0;
    long long expectedBytes_ = -1;
};

class UrlSessionDataTask : public PlatformClass<UrlSessionDataTask, ns::UrlSessionDataTask> {
public:
    static constexpr std::array<objc::MethodRow, 0> methods() { return {}; }
};

class UrlSessionDownloadTask
    : public PlatformClass<UrlSessionDownloadTask, ns::UrlSessionDownloadTask> {
public:
    static constexpr std::array<objc::MethodRow, 0> methods() { return {}; }
};

} // namespace desktop::foundation
