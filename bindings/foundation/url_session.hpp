// NSURLSession: loads what URLs point to.
#pragma once

#include "bindings/foundation/data.hpp"
#include "bindings/foundation/error.hpp"
#include "bindings/foundation/operation_queue.hpp"
#include "bindings/foundation/url_request.hpp"
#include "bindings/foundation/url_response.hpp"
#include "bindings/foundation/url_session_configuration.hpp"
#include "bindings/foundation/url_session_data_task.hpp"
#include "bindings/foundation/url_session_download_task.hpp"
#include "bindings/objc/block.hpp"

namespace ns {

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
