// Foundation's requests, responses and errors, and the network's plain values: from one to the
// other.
#pragma once

#include "bindings/foundation/error.hpp"
#include "bindings/foundation/http_url_response.hpp"
#include "bindings/foundation/url_request.hpp"
#include "bindings/foundation/url_response.hpp"
#include "desktop/network/http.hpp"

namespace desktop::foundation {

/// The request as the network sends it. Headers that the request has not are taken from
/// `additional`, which may be nil; `quietTime`, in seconds, counts where the request says nothing.
network::HttpRequest httpRequest(ns::UrlRequest request, ns::Dictionary additional,
                                 double quietTime);

/// Seconds that a request says when it says nothing.
inline constexpr double defaultTimeout = 60;

/// The response, in the current pool. Headers of equal name are joined.
ns::HttpUrlResponse urlResponse(const network::HttpResponse& response);

/// The error, in the current pool, with its description and the URL that failed.
ns::Error urlError(network::LoadFailure failure, ns::Url url);

/// Tells the event log of a request, and the system log of one that is refused.
void recordRequest(const network::HttpRequest& request, std::string_view answeredBy);

} // namespace desktop::foundation
