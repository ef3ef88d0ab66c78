// NSURLRequest and NSMutableURLRequest.
#pragma once

#include "bindings/foundation/data.hpp"
#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/url.hpp"

namespace ns {

struct MutableUrlRequest;

struct UrlRequest : objc::Kind<UrlRequest, "NSURLRequest"> {
    using Kind::Kind;

    static UrlRequest withUrl(Url url) { return sendClass<"requestWithURL:", UrlRequest>(url); }
    [[nodiscard]] Url url() const { return send<"URL", Url>(); }
    [[nodiscard]] String httpMethod() const { return send<"HTTPMethod", String>(); }
    [[nodiscard]] Data httpBody() const { return send<"HTTPBody", Data>(); }
    [[nodiscard]] Dictionary allHttpHeaderFields() const {
        return send<"allHTTPHeaderFields", Dictionary>();
    }
    /// Seconds.
    [[nodiscard]] double timeoutInterval() const { return send<"timeoutInterval", double>(); }
    [[nodiscard]] inline MutableUrlRequest mutableCopy() const;
};

struct MutableUrlRequest : objc::Kind<MutableUrlRequest, "NSMutableURLRequest", UrlRequest> {
    using Kind::Kind;

    static MutableUrlRequest withUrl(Url url) {
        return sendClass<"requestWithURL:", MutableUrlRequest>(url);
    }
    void setUrl(ns::Url url) const { send<"setURL:">(url); }
    void setHttpMethod(String method) const { send<"setHTTPMethod:">(method); }
    void setHttpBody(Data body) const { send<"setHTTPBody:">(body); }
    void setValue(String value, String headerField) const {
        send<"setValue:forHTTPHeaderField:">(value, headerField);
    }
    void setTimeoutInterval(double seconds) const { send<"setTimeoutInterval:">(seconds); }
};

MutableUrlRequest UrlRequest::mutableCopy() const {
    return objc::Strong<MutableUrlRequest>::adopt(send<"mutableCopy", MutableUrlRequest>())
        .autoreleased();
}

} // namespace ns
