// NSURLSession.
#pragma once

#include "bindings/foundation/url_session.hpp"
#include "desktop/class.hpp"
#include "desktop/foundation/url_delivery.hpp"
#include "desktop/network/http.hpp"

#include <atomic>
#include <functional>
#include <mutex>
#include <vector>

namespace desktop::foundation {

/// Any thread.
class UrlSession : public PlatformClass<UrlSession, ns::UrlSession> {
public:
    static std::vector<objc::MethodRow> methods();

    /// The request as a task of this session sends it.
    [[nodiscard]] network::HttpRequest httpRequest(ns::UrlRequest request) const;
    /// A task runs from now on.
    void began(ns::UrlSessionTask task);
    /// A task is over, its end told.
    void ended(ns::UrlSessionTask task);
    /// Runs `work` in its turn on the session's queue.
    void perform(std::function<void()> work) const;

private:
    static ns::UrlSession sharedSession(Class);
    static ns::UrlSession withConfiguration(Class, ns::UrlSessionConfiguration configuration);
    static ns::UrlSession withDelegate(Class, ns::UrlSessionConfiguration configuration,
                                       objc::Object delegate, ns::OperationQueue queue);

    [[nodiscard]] objc::Object delegate() const;
    template <class Task>
    Task task(ns::UrlRequest request, std::unique_ptr<UrlDelivery> delivery);
    ns::UrlSessionDataTask dataTask(ns::UrlRequest request);
    ns::UrlSessionDataTask dataTaskWithUrl(ns::Url url);
    ns::UrlSessionDataTask handledDataTask(ns::UrlRequest request, ns::UrlSession::Handler handler);
    ns::UrlSessionDataTask handledDataTaskWithUrl(ns::Url url, ns::UrlSession::Handler handler);
    ns::UrlSessionDownloadTask downloadTask(ns::UrlRequest request);
    ns::UrlSessionDownloadTask downloadTaskWithUrl(ns::Url url);
    ns::UrlSessionDownloadTask handledDownloadTask(ns::UrlRequest request,
                                                   ns::UrlSession::DownloadHandler handler);
    ns::UrlSessionDownloadTask handledDownloadTaskWithUrl(ns::Url url,
                                                          ns::UrlSession::DownloadHandler handler);
    void invalidateAndCancel();
    void finishTasksAndInvalidate();
    void letGoOfDelegateWhenIdle();

    // Fixed once the session is made.
    objc::Copied<ns::UrlSessionConfiguration> configuration_;
    objc::Strong<ns::OperationQueue> queue_;
    std::atomic<unsigned long> lastIdentifier_{0};

    mutable std::mutex mutex_; ///< of what follows
    objc::Strong<objc::Object> delegate_;
    std::vector<objc::Strong<ns::UrlSessionTask>> running_;
    bool invalid_ = false;
};

/// Makes the session, its configuration and its tasks known. Once.
void installUrlSessions();

} // namespace desktop::foundation
