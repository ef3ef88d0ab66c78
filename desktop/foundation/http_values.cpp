// Converting, and telling the logs.
#include "desktop/foundation/http_values.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/http_url_response.hpp"
#include "bindings/foundation/log.hpp"
#include "desktop/runtime/event_log.hpp"

extern "C" {
extern id NSLocalizedDescriptionKey;
extern id NSURLErrorDomain;
extern id NSURLErrorFailingURLErrorKey;
extern id NSURLErrorFailingURLStringErrorKey;
}

namespace desktop::foundation {
namespace {

using namespace ns::literals;
using network::Headers;

void addHeaders(ns::Dictionary fields, Headers& headers) {
    for (const objc::Object name : fields.allKeys()) {
        headers.emplace_back(ns::description(name).utf8(),
                             ns::description(fields.get(name)).utf8());
    }
}

/// In UTF-8 or else, as of old, in Latin-1.
ns::String textOf(const std::string& value) {
    const auto text = ns::String::fromUtf8(value);
    return text ? text : ns::String::from(ns::Data::from(value), ns::StringEncoding::isoLatin1);
}

ns::Dictionary joined(const Headers& headers) {
    const auto fields = ns::MutableDictionary::make();
    for (const auto& [name, value] : headers) {
        const auto key = ns::String::fromUtf8(name);
        ns::String text = textOf(value);
        if (!key) {
            continue; // not UTF-8
        }
        if (const auto former = fields.get(key).assume<ns::String>()) {
            text = ns::String::from(former.utf16() + u", " + text.utf16());
        }
        fields.set(text, key);
    }
    return fields;
}

} // namespace

network::HttpRequest httpRequest(ns::UrlRequest request, ns::Dictionary additional,
                                 double quietTime) {
    network::HttpRequest plain;
    plain.method = request.httpMethod().utf8();
    plain.url = request.url().absoluteString().utf8();
    const auto fields = ns::MutableDictionary::make();
    fields.addEntries(additional ? additional : ns::MutableDictionary::make());
    if (const auto own = request.allHttpHeaderFields()) {
        fields.addEntries(own);
    }
    addHeaders(fields, plain.headers);
    if (const ns::Data body = request.httpBody()) {
        plain.body = body.bytes();
    }
    const double own = request.timeoutInterval();
    plain.quietTime = own > 0 && own != defaultTimeout ? own : quietTime;
    return plain;
}

ns::HttpUrlResponse urlResponse(const network::HttpResponse& response) {
    // Not by the initialisers that the library hooks: nobody asks for this URL.
    const auto url = ns::Url::make<"initWithString:relativeToURL:">(
        ns::String::fromUtf8(response.url), ns::Url());
    return ns::HttpUrlResponse::make<"initWithURL:statusCode:HTTPVersion:headerFields:">(
        url, static_cast<long>(response.status), ns::String::fromUtf8(response.version),
        joined(response.headers));
}

ns::Error urlError(network::LoadFailure failure, ns::Url url) {
    const auto userInfo = ns::MutableDictionary::make();
    userInfo.set(ns::String::fromUtf8(network::descriptionOf(failure)),
                 objc::wrap(NSLocalizedDescriptionKey));
    if (url) {
        userInfo.set(url, objc::wrap(NSURLErrorFailingURLErrorKey));
        userInfo.set(url.absoluteString(), objc::wrap(NSURLErrorFailingURLStringErrorKey));
    }
    return ns::Error::with(objc::wrap<ns::String>(NSURLErrorDomain), static_cast<long>(failure),
                           userInfo);
}

void recordRequest(const network::HttpRequest& request, std::string_view answeredBy) {
    const auto fields = ns::MutableDictionary::make();
    fields.set(ns::String::fromUtf8(request.method), u"method"_ns);
    fields.set(ns::String::fromUtf8(request.url), u"url"_ns);
    fields.set(joined(request.headers), u"headers"_ns);
    fields.set(ns::String::fromUtf8(answeredBy), u"by"_ns);
    EventLog::shared().record("request", fields);
    if (answeredBy == "nobody") {
        ns::log("network: nothing leaves this machine; refused: " + request.url);
    }
}

} // namespace desktop::foundation
