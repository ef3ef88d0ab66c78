// Making sessions and tasks, and keeping the ones that run.
#include "desktop/foundation/url_session.hpp"

#include "bindings/foundation/exception.hpp"
#include "desktop/foundation/http_values.hpp"
#include "desktop/foundation/url_session_configuration.hpp"
#include "desktop/foundation/url_session_task.hpp"

#include <algorithm>
#include <utility>

namespace desktop::foundation {
namespace {

using namespace ns::literals;

/// One operation after the other, on threads of Foundation.
ns::OperationQueue backgroundQueue() {
    const auto queue = ns::OperationQueue::make();
    queue.send<"setMaxConcurrentOperationCount:">(1L);
    return queue;
}

} // namespace

std::vector<objc::MethodRow> UrlSession::methods() {
    using Self = UrlSession;
    return {
        objc::classMethod<"sharedSession", &Self::sharedSession>(),
        objc::classMethod<"sessionWithConfiguration:", &Self::withConfiguration>(),
        objc::classMethod<"sessionWithConfiguration:delegate:delegateQueue:",
                          &Self::withDelegate>(),
        objc::method<"configuration", &Self::configuration_>(),
        objc::method<"delegate", &Self::delegate>(),
        objc::method<"delegateQueue", &Self::queue_>(),
        objc::method<"dataTaskWithRequest:", &Self::dataTask>(),
        objc::method<"dataTaskWithURL:", &Self::dataTaskWithUrl>(),
        objc::method<"dataTaskWithRequest:completionHandler:", &Self::handledDataTask>(),
        objc::method<"dataTaskWithURL:completionHandler:", &Self::handledDataTaskWithUrl>(),
        objc::method<"downloadTaskWithRequest:", &Self::downloadTask>(),
        objc::method<"downloadTaskWithURL:", &Self::downloadTaskWithUrl>(),
        objc::method<"downloadTaskWithRequest:completionHandler:", &Self::handledDownloadTask>(),
        objc::method<"downloadTaskWithURL:completionHandler:", &Self::handledDownloadTaskWithUrl>(),
        objc::method<"invalidateAndCancel", &Self::invalidateAndCancel>(),
        objc::method<"finishTasksAndInvalidate", &Self::finishTasksAndInvalidate>(),
    };
}

ns::UrlSession UrlSession::sharedSession(Class) {
    static const auto* shared =
        new objc::Strong(withConfiguration(nullptr, ns::UrlSessionConfiguration::make()));
    return *shared;
}

ns::UrlSession UrlSession::withConfiguration(Class cls, ns::UrlSessionConfiguration configuration) {
    return withDelegate(cls, configuration, nullptr, nullptr);
}

ns::UrlSession UrlSession::withDelegate(Class, ns::UrlSessionConfiguration configuration,
                                        objc::Object delegate, ns::OperationQueue queue) {
    const auto session = ns::UrlSession::make();
    UrlSession& peer = of(session);
    peer.configuration_ =
        configuration ? configuration : ns::UrlSessionConfiguration::defaultSessionConfiguration();
    peer.queue_ = queue ? queue : backgroundQueue();
    peer.delegate_ = delegate;
    return session;
}

network::HttpRequest UrlSession::httpRequest(ns::UrlRequest request) const {
    const auto& configuration = UrlSessionConfiguration::of(configuration_);
    return foundation::httpRequest(request, configuration.additionalHeaders(),
                                   configuration.timeoutIntervalForRequest());
}

objc::Object UrlSession::delegate() const {
    const std::scoped_lock lock(mutex_);
    return delegate_.autoreleased();
}

void UrlSession::perform(std::function<void()> work) const {
    queue_.send<"addOperationWithBlock:">(objc::Block<void()>::from(std::move(work)));
}

template <class Task>
Task UrlSession::task(ns::UrlRequest request, std::unique_ptr<UrlDelivery> delivery) {
    {
        const std::scoped_lock lock(mutex_);
        if (invalid_) {
            ns::Exception::with(u"NSGenericException"_ns,
                                u"Task created in a session that has been invalidated"_ns)
                .raise();
        }
    }
    const Task made = Task::make();
    UrlSessionTask::of(made).setUp(self(), ++lastIdentifier_, request, std::move(delivery));
    return made;
}

ns::UrlSessionDataTask UrlSession::dataTask(ns::UrlRequest request) {
    return handledDataTask(request, {});
}
ns::UrlSessionDataTask UrlSession::dataTaskWithUrl(ns::Url url) {
    return handledDataTask(ns::UrlRequest::withUrl(url), {});
}
ns::UrlSessionDataTask UrlSession::handledDataTask(ns::UrlRequest request,
                                                   ns::UrlSession::Handler handler) {
    return task<ns::UrlSessionDataTask>(request, deliverData(handler));
}
ns::UrlSessionDataTask UrlSession::handledDataTaskWithUrl(ns::Url url,
                                                          ns::UrlSession::Handler handler) {
    return handledDataTask(ns::UrlRequest::withUrl(url), handler);
}
ns::UrlSessionDownloadTask UrlSession::downloadTask(ns::UrlRequest request) {
    return handledDownloadTask(request, {});
}
ns::UrlSessionDownloadTask UrlSession::downloadTaskWithUrl(ns::Url url) {
    return handledDownloadTask(ns::UrlRequest::withUrl(url), {});
}
ns::UrlSessionDownloadTask
UrlSession::handledDownloadTask(ns::UrlRequest request, ns::UrlSession::DownloadHandler handler) {
    return task<ns::UrlSessionDownloadTask>(request, deliverFile(handler));
}
ns::UrlSessionDownloadTask
UrlSession::handledDownloadTaskWithUrl(ns::Url url, ns::UrlSession::DownloadHandler handler) {
    return handledDownloadTask(ns::UrlRequest::withUrl(url), handler);
}

void UrlSession::began(ns::UrlSessionTask task) {
    const std::scoped_lock lock(mutex_);
    running_.emplace_back(task);
}

void UrlSession::ended(ns::UrlSessionTask task) {
    {
        const std::scoped_lock lock(mutex_);
        std::erase_if(running_, [task](const auto& running) { return running == task; });
    }
    letGoOfDelegateWhenIdle();
}

void UrlSession::invalidateAndCancel() {
    std::vector<objc::Strong<ns::UrlSessionTask>> running;
    {
        const std::scoped_lock lock(mutex_);
        running = running_;
    }
    for (const ns::UrlSessionTask task : running) {
        task.cancel();
    }
    finishTasksAndInvalidate();
}

void UrlSession::finishTasksAndInvalidate() {
    {
        const std::scoped_lock lock(mutex_);
        invalid_ = true;
    }
    letGoOfDelegateWhenIdle();
}

void UrlSession::letGoOfDelegateWhenIdle() {
    objc::Strong<objc::Object> delegate;
    {
        const std::scoped_lock lock(mutex_);
        if (!invalid_ || !running_.empty() || !delegate_) {
            return;
        }
        delegate = std::exchange(delegate_, nullptr);
    }
    perform([delegate, session = objc::Strong(self())] {
        if (delegate.respondsToSelector(
                objc::selector<"URLSession:didBecomeInvalidWithError:">())) {
            delegate.send<"URLSession:didBecomeInvalidWithError:">(session, ns::Error());
        }
    });
}

void installUrlSessions() {
    UrlSessionConfiguration::registerClass();
    UrlSession::registerClass();
    UrlSessionTask::registerClass();
    UrlSessionDataTask::registerClass();
    UrlSessionDownloadTask::registerClass();
}

} // namespace desktop::foundation
