// NSURLSessionConfiguration: what the tasks of a session have in common.
#pragma once

#include "bindings/foundation/url_session.hpp"
#include "desktop/class.hpp"
#include "desktop/foundation/http_values.hpp"

namespace desktop::foundation {

/// Any thread, but not several at once.
class UrlSessionConfiguration
    : public PlatformClass<UrlSessionConfiguration, ns::UrlSessionConfiguration> {
public:
    static constexpr auto methods() {
        using Self = UrlSessionConfiguration;
        return std::array{
            objc::classMethod<"defaultSessionConfiguration", &Self::fresh>(),
            // No session keeps anything on disk.
            objc::classMethod<"ephemeralSessionConfiguration", &Self::fresh>(),
            objc::method<"copyWithZone:", &Self::copyWithZone>(),
            objc::property<"timeoutIntervalForRequest", &Self::timeoutIntervalForRequest_>(),
            objc::property<"HTTPAdditionalHeaders", &Self::additionalHeaders_>(),
        };
    }

    /// Seconds.
    [[nodiscard]] double timeoutIntervalForRequest() const { return timeoutIntervalForRequest_; }
    [[nodiscard]] ns::Dictionary additionalHeaders() const { return additionalHeaders_; }

private:
    static ns::UrlSessionConfiguration fresh(Class) { return Kind::make(); }
    [[nodiscard]] ns::UrlSessionConfiguration copyWithZone(void*) const {
        const auto copy = Kind::make();
        of(copy).timeoutIntervalForRequest_ = timeoutIntervalForRequest_;
        of(copy).additionalHeaders_ = additionalHeaders_;
        return objc::Strong(copy).release();
    }

    double timeoutIntervalForRequest_ = defaultTimeout;
    objc::Copied<ns::Dictionary> additionalHeaders_;
};

} // namespace desktop::foundation
