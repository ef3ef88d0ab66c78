// NSURLSession and its tasks: loading what URLs point to.
#pragma once

#include "bindings/foundation/data.hpp"
#include "bindings/foundation/error.hpp"
#include "bindings/foundation/operation_queue.hpp"
#include "bindings/foundation/url_request.hpp"
#include "bindings/foundation/url_response.hpp"
#include "bindings/objc/block.hpp"

namespace ns {

/// The platform's numbers.
enum class UrlSessionTaskState : long { running = 0, suspended = 1, canceling = 2, completed = 3 };

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

struct UrlSessionDataTask : objc::Kind<UrlSessionDataTask, "NSURLSessionDataTask", UrlSessionTask> {
    using Kind::Kind;
};

struct UrlSessionDownloadTask
    : objc::Kind<UrlSessionDownloadTask, "NSURLSessionDownloadTask", UrlSessionTask> {
    using Kind::Kind;
};

struct UrlSessionConfiguration : objc::Kind<UrlSessionConfiguration, "NSURLSessionConfiguration"> {
    using Kind::Kind;

    /// A fresh one that may be changed.
    static UrlSessionConfiguration defaultConfiguration() {
        return sendClass<"defaultSessionConfiguration", UrlSessionConfiguration>();
    }
    /// Seconds.
    void setTimeoutIntervalForRequest(double seconds) const {
        send<"setTimeoutIntervalForRequest:">(seconds);
    }
};

struct UrlSession : objc::Kind<UrlSession, "NSURLSession"> {
    using Kind::Kind;

    /// Called on the session's queue with the body, the response and the error; the first two are
    /// nil when there is an error, the last one when there is none.
    using Handler = objc::Block<void(Data, UrlResponse, Error)>;
    /// The same with the file that was loaded, which is removed when the handler returns.
    using DownloadHandler = objc::Block<void(Url, UrlResponse, Error)>;

    static UrlSession sharedSession() { return sendClass<"sharedSession", UrlSession>(); }
    static UrlSession with(UrlSessionConfiguration configuration) {
        return sendClass<"sessionWithConfiguration:", UrlSession>(configuration);
    }
    /// The session keeps its delegate until it is invalidated; a nil queue stands for one of its
    /// own, in the background.
    static UrlSession with(UrlSessionConfiguration configuration, objc::Object delegate,
                           OperationQueue queue) {
        return sendClass<"sessionWithConfiguration:delegate:delegateQueue:", UrlSession>(
            configuration, delegate, queue);
    }
    [[nodiscard]] UrlSessionDataTask dataTask(Url url, Handler handler) const {
        return send<"dataTaskWithURL:completionHandler:", UrlSessionDataTask>(url, handler);
    }
    [[nodiscard]] UrlSessionDataTask dataTask(UrlRequest request, Handler handler) const {
        return send<"dataTaskWithRequest:completionHandler:", UrlSessionDataTask>(request, handler);
    }
    [[nodiscard]] UrlSessionDownloadTask downloadTask(Url url) const {
        return send<"downloadTaskWithURL:", UrlSessionDownloadTask>(url);
    }
    [[nodiscard]] UrlSessionDownloadTask downloadTask(Url url, DownloadHandler handler) const {
        return send<"downloadTaskWithURL:completionHandler:", UrlSessionDownloadTask>(url, handler);
    }
    void invalidateAndCancel() const { send<"invalidateAndCancel">(); }
    void finishTasksAndInvalidate() const { send<"finishTasksAndInvalidate">(); }
};

} // namespace ns
