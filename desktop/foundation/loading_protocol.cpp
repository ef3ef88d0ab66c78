// A protocol that takes every request over HTTP; and who else would load.
#include "desktop/foundation/loading_protocol.hpp"

#include "bindings/foundation/thread.hpp"
#include "bindings/foundation/url_connection.hpp"
#include "bindings/foundation/url_protocol.hpp"
#include "bindings/foundation/url_request.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/class.hpp"
#include "desktop/foundation/http_values.hpp"
#include "desktop/network/route.hpp"
#include "desktop/network/transfers.hpp"
#include "desktop/runtime/main_queue.hpp"

#include <deque>
#include <functional>
#include <mutex>
#include <utility>

namespace desktop::foundation {
namespace {

using network::LoadFailure;

struct LoadingProtocolKind : objc::Kind<LoadingProtocolKind, "LoadingProtocol", ns::UrlProtocol> {
    using Kind::Kind;
};

/// What the network brings is told to the client on the thread that began to load, when its run
/// loop comes to it.
class LoadingProtocol : public PlatformClass<LoadingProtocol, LoadingProtocolKind> {
public:
    static constexpr auto methods() {
        using Self = LoadingProtocol;
        return std::array{
            objc::classMethod<"canInitWithRequest:", &Self::canInitWithRequest>(),
            objc::classMethod<"canonicalRequestForRequest:", &Self::canonicalRequest>(),
            objc::method<"startLoading", &Self::startLoading>(),
            objc::method<"stopLoading", &Self::stopLoading>(),
            objc::method<"tellClient", &Self::tellClient>(),
        };
    }

    /// Has `news` told to the client in its turn. The network's thread.
    void tell(std::function<void(LoadingProtocol&)> news);
    void tellOfResponse(const network::HttpResponse& response);
    void tellOfData(const std::string& piece);
    void tellOfEnd(std::optional<LoadFailure> failure);

private:
    static bool canInitWithRequest(Class, ns::UrlRequest request) {
        const auto target = network::targetOf(request.url().absoluteString().utf8());
        return std::holds_alternative<network::Target>(target);
    }
    static ns::UrlRequest canonicalRequest(Class, ns::UrlRequest request) { return request; }

    void startLoading();
    void stopLoading();
    void tellClient();
    [[nodiscard]] ns::UrlRequest request() const {
        return self().send<"request", ns::UrlRequest>();
    }
    [[nodiscard]] objc::Object client() const { return self().send<"client", objc::Object>(); }

    // Fixed once loading has begun.
    objc::Strong<ns::Thread> thread_;
    network::Transfers::Ticket ticket_ = 0;

    std::mutex mutex_; ///< of what follows
    std::deque<std::function<void(LoadingProtocol&)>> news_;
    bool stopped_ = false;
};

/// Keeps the protocol while the network works for it.
class ProtocolListener : public network::HttpListener {
public:
    explicit ProtocolListener(LoadingProtocolKind protocol) : protocol_(protocol) {}

    void willSend(const network::HttpRequest& request, std::string_view answeredBy) override {
        const objc::Pool pool;
        recordRequest(request, answeredBy);
    }
    void received(const network::HttpResponse& response) override {
        tell([response](LoadingProtocol& protocol) { protocol.tellOfResponse(response); });
    }
    bool receivedData(std::string_view piece) override {
        tell([piece = std::string(piece)](LoadingProtocol& protocol) {
            protocol.tellOfData(piece);
        });
        return true;
    }
    void ended(std::optional<LoadFailure> failure) override {
        tell([failure](LoadingProtocol& protocol) { protocol.tellOfEnd(failure); });
        const objc::Pool pool;
        protocol_ = nullptr;
    }

private:
    void tell(std::function<void(LoadingProtocol&)> news) {
        const objc::Pool pool;
        LoadingProtocol::of(protocol_).tell(std::move(news));
    }

    objc::Strong<LoadingProtocolKind> protocol_;
};

void LoadingProtocol::startLoading() {
    thread_ = ns::Thread::currentThread();
    ticket_ = network::Transfers::shared().start(httpRequest(request(), nullptr, defaultTimeout),
                                                 std::make_shared<ProtocolListener>(self()));
}

void LoadingProtocol::stopLoading() {
    {
        const std::scoped_lock lock(mutex_);
        stopped_ = true;
    }
    network::Transfers::shared().cancel(ticket_);
}

void LoadingProtocol::tell(std::function<void(LoadingProtocol&)> news) {
    {
        const std::scoped_lock lock(mutex_);
        news_.push_back(std::move(news));
    }
    self().send<"performSelector:onThread:withObject:waitUntilDone:">(
        objc::selector<"tellClient">(), thread_, objc::Object(), false);
    MainQueue::shared().wake(); // it may be the main thread's run loop that sleeps
}

void LoadingProtocol::tellClient() {
    const objc::Strong<LoadingProtocolKind> kept = self(); // the client may let go of it
    for (;;) {
        std::function<void(LoadingProtocol&)> news;
        {
            const std::scoped_lock lock(mutex_);
            if (stopped_ || news_.empty()) {
                return;
            }
            news = std::move(news_.front());
            news_.pop_front();
        }
        news(*this);
    }
}

void LoadingProtocol::tellOfResponse(const network::HttpResponse& response) {
    constexpr unsigned long notStored = 2; // NSURLCacheStorageNotAllowed
    client().send<"URLProtocol:didReceiveResponse:cacheStoragePolicy:">(
        self(), urlResponse(response), notStored);
}

void LoadingProtocol::tellOfData(const std::string& piece) {
    client().send<"URLProtocol:didLoadData:">(self(), ns::Data::from(piece));
}

void LoadingProtocol::tellOfEnd(std::optional<LoadFailure> failure) {
    if (failure) {
        client().send<"URLProtocol:didFailWithError:">(self(), urlError(*failure, request().url()));
    } else {
        client().send<"URLProtocolDidFinishLoading:">(self());
    }
}

/// Of `dataWithContentsOfURL:` and its like. Foundation's own way asks no protocol.
ns::Data resourceData(objc::Next<ns::Data(bool)> next, ns::Url url, bool usesCache) {
    return url.send<"isFileURL", bool>()
               ? next(usesCache)
               : ns::UrlConnection::sendSynchronous(ns::UrlRequest::withUrl(url)).value;
}

} // namespace

void installLoadingProtocol() {
    objc::install(objc::hook<"NSURL", "resourceDataUsingCache:", &resourceData>());
    LoadingProtocol::registerClass();
    ns::UrlProtocol::registerClass(LoadingProtocolKind::classObject());
}

} // namespace desktop::foundation
