// Calling each of them.
#include "desktop/host/apps/entry_points.hpp"

#include "bindings/foundation/error.hpp"
#include "bindings/foundation/url_connection.hpp"
#include "bindings/foundation/url_protocol.hpp"
#include "bindings/foundation/url_session.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/webkit/web_view.hpp"
#include "desktop/class.hpp"

#include <array>
#include <utility>

namespace desktop::host {
namespace {

using namespace ns::literals;
using objc::Object;

/// Not by a maker that is tried itself.
ns::Url urlFrom(ns::String address) {
    return ns::Url::make<"initWithString:relativeToURL:">(address, ns::Url());
}
ns::UrlRequest requestFor(ns::String address) { return ns::UrlRequest::withUrl(urlFrom(address)); }

Passage passage(ns::Url url, ns::String address) {
    return url && url.absoluteString().isEqualToString(address) ? Passage::passed
                                                                : Passage::changed;
}
Passage passage(ns::UrlSessionTask task, ns::String address) {
    task.resume();
    return passage(task.send<"originalRequest", ns::UrlRequest>().url(), address);
}

void newUrl(ns::String address, const PassageHandler& handler) {
    handler(passage(ns::Url::withString(address), address));
}

void initialisedUrl(ns::String address, const PassageHandler& handler) {
    handler(passage(ns::Url::make<"initWithString:">(address), address));
}

void dataTaskOfSessionClass(ns::String address, const PassageHandler& handler) {
    handler(
        passage(ns::UrlSession::sendClass<"dataTaskWithURL:", ns::UrlSessionTask>(urlFrom(address)),
                address));
}

void handledDataTask(ns::String address, const PassageHandler& handler) {
    const auto ignored = ns::UrlSession::Handler::from([](ns::Data, ns::UrlResponse, ns::Error) {});
    handler(
        passage(ns::UrlSession::sharedSession().dataTask(requestFor(address), ignored), address));
}

void dataTask(ns::String address, const PassageHandler& handler) {
    handler(
        passage(ns::UrlSession::sharedSession().send<"dataTaskWithRequest:", ns::UrlSessionTask>(
                    requestFor(address)),
                address));
}

struct ConnectionListenerKind : objc::Kind<ConnectionListenerKind, "BrowserConnectionListener"> {
    using Kind::Kind;
};

/// Hears from where a connection loads, or fails to.
class ConnectionListener : public PlatformClass<ConnectionListener, ConnectionListenerKind> {
public:
    static constexpr auto methods() {
        using Self = ConnectionListener;
        return std::array{
            objc::method<"connection:didReceiveResponse:", &Self::received>(),
            objc::method<"connection:didFailWithError:", &Self::failed>(),
        };
    }
    void listen(ns::String address, PassageHandler handler) {
        address_ = address;
        handler_ = std::move(handler);
    }

private:
    void received(Object, ns::UrlResponse response) { tell(response.url().absoluteString()); }
    void failed(Object, ns::Error error) {
        tell(error.userInfo().get(u"NSErrorFailingURLStringKey"_ns).as<ns::String>());
    }
    void tell(ns::String loaded) const {
        handler_(loaded.isEqualToString(address_) ? Passage::passed : Passage::changed);
    }

    objc::Copied<ns::String> address_;
    PassageHandler handler_;
};

void connection(ns::String address, const PassageHandler& handler) {
    const auto listener = ConnectionListenerKind::make();
    ConnectionListener::of(listener).listen(address, handler);
    ns::UrlConnection::sendClass<"connectionWithRequest:delegate:", Object>(requestFor(address),
                                                                            listener);
}

void webView(ns::String address, const PassageHandler& handler) {
    const auto view = wk::WebView::withFrame({});
    handler(view.load(requestFor(address)) ? Passage::passed : Passage::changed);
}

void urlOfRequest(ns::String address, const PassageHandler& handler) {
    const auto request = requestFor(u"https://example.com"_ns);
    request.send<"setURL:">(urlFrom(address));
    handler(passage(request.url(), address));
}

/// The platform leaves the answer to subclasses, and raises.
bool isTaken(ns::UrlRequest request) {
    try {
        return ns::UrlProtocol::sendClass<"canInitWithRequest:", bool>(request);
    } catch (...) {
        return false;
    }
}

void protocol(ns::String address, const PassageHandler& handler) {
    const bool takes = isTaken(requestFor(address));
    handler(takes ? Passage::changed : Passage::passed);
}

void canonicalRequest(ns::String address, const PassageHandler& handler) {
    handler(passage(ns::UrlProtocol::sendClass<"canonicalRequestForRequest:", ns::UrlRequest>(
                        requestFor(address))
                        .url(),
                    address));
}

ns::UrlSessionTask addedDataTask(Object, ns::Url url) {
    return ns::UrlSession::sharedSession().send<"dataTaskWithURL:", ns::UrlSessionTask>(url);
}

/// As the mutable kind does it, which has no variables of its own.
void addedSetUrl(ns::UrlRequest request, ns::Url url) {
    const SEL name = objc::selector<"setURL:">();
    using Setter = void (*)(id, SEL, id);
    reinterpret_cast<Setter>(class_getMethodImplementation(ns::MutableUrlRequest::classObject(),
                                                           name))(request.raw(), name, url.raw());
}

} // namespace

std::span<const EntryPoint> entryPoints() {
    static constexpr std::array all{
        EntryPoint{"NSURL", "+URLWithString:", &newUrl},
        EntryPoint{"NSURL", "initWithString:", &initialisedUrl},
        EntryPoint{"NSURLSession", "+dataTaskWithURL:", &dataTaskOfSessionClass},
        EntryPoint{"NSURLSession", "dataTaskWithRequest:completionHandler:", &handledDataTask},
        EntryPoint{"NSURLSession", "dataTaskWithRequest:", &dataTask},
        EntryPoint{"NSURLConnection", "+connectionWithRequest:delegate:", &connection},
        EntryPoint{"WKWebView", "loadRequest:", &webView},
        EntryPoint{"NSURLRequest", "setURL:", &urlOfRequest},
        EntryPoint{"NSURLProtocol", "+canInitWithRequest:", &protocol},
        EntryPoint{"NSURLProtocol", "+canonicalRequestForRequest:", &canonicalRequest},
    };
    return all;
}

void installEntryPoints() {
    objc::install(objc::classAddition<"NSURLSession", "dataTaskWithURL:", &addedDataTask>());
    objc::install(objc::addition<"setURL:", &addedSetUrl>());
    ConnectionListener::registerClass();
}

} // namespace desktop::host
