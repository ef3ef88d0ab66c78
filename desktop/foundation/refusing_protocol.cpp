// A protocol that takes every request with nowhere to go, and fails it; and who else would load.
#include "desktop/foundation/refusing_protocol.hpp"

#include "bindings/foundation/url_connection.hpp"
#include "bindings/foundation/url_protocol.hpp"
#include "bindings/foundation/url_request.hpp"
#include "bindings/objc/hook.hpp"
#include "desktop/class.hpp"
#include "desktop/foundation/http_values.hpp"
#include "desktop/network/route.hpp"

namespace desktop::foundation {
namespace {

struct RefusingProtocolKind
    : objc::Kind<RefusingProtocolKind, "RefusingProtocol", ns::UrlProtocol> {
    using Kind::Kind;
};

/// The services answer URL sessions only: Foundation does not know their certificates.
class RefusingProtocol : public PlatformClass<RefusingProtocol, RefusingProtocolKind> {
public:
    static constexpr auto methods() {
        using Self = RefusingProtocol;
        return std::array{
            objc::classMethod<"canInitWithRequest:", &Self::canInitWithRequest>(),
            objc::classMethod<"canonicalRequestForRequest:", &Self::canonicalRequest>(),
            objc::method<"startLoading", &Self::startLoading>(),
            objc::method<"stopLoading", &Self::stopLoading>(),
        };
    }

private:
    static bool canInitWithRequest(Class, ns::UrlRequest request) {
        const auto target = network::targetOf(request.url().absoluteString().utf8());
        const auto* known = std::get_if<network::Target>(&target);
        return known != nullptr &&
               !std::holds_alternative<network::ToThisMachine>(network::routeTo(*known));
    }
    static ns::UrlRequest canonicalRequest(Class, ns::UrlRequest request) { return request; }

    void startLoading() {
        const auto request = self().send<"request", ns::UrlRequest>();
        recordRequest(httpRequest(request, nullptr, defaultTimeout), "nobody");
        self().send<"client", objc::Object>().send<"URLProtocol:didFailWithError:">(
            self(), urlError(network::LoadFailure::cannotFindHost, request.url()));
    }
    void stopLoading() {}
};

/// Of `dataWithContentsOfURL:` and its like. Foundation's own way asks no protocol.
ns::Data resourceData(objc::Next<ns::Data(bool)> next, ns::Url url, bool usesCache) {
    return url.send<"isFileURL", bool>()
               ? next(usesCache)
               : ns::UrlConnection::sendSynchronous(ns::UrlRequest::withUrl(url)).value;
}

} // namespace

void installRefusingProtocol() {
    objc::install(objc::hook<"NSURL", "resourceDataUsingCache:", &resourceData>());
    RefusingProtocol::registerClass();
    ns::UrlProtocol::registerClass(RefusingProtocolKind::classObject());
}

} // namespace desktop::foundation
