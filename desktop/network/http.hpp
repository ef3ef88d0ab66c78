// Requests and responses as plain values, and who listens to a load.
#pragma once

#include "desktop/network/load_failure.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace desktop::network {

/// Names and values in the order of the message.
using Headers = std::vector<std::pair<std::string, std::string>>;

struct HttpRequest {
    std::string method = "GET";
    std::string url;
    Headers headers;
    std::string body;
    /// Seconds without any byte after which the load is given up.
    double quietTime = 60;
};

struct HttpResponse {
    /// The one asked for, or the one that redirections led to.
    std::string url;
    int status = 0;
    /// "HTTP/1.1"
    std::string version;
    Headers headers;
    /// The length of the body as the server tells it, -1 when it does not.
    long long expectedLength = -1;
};

/// Hears of one load. All calls come from the network's thread, in the order below.
class HttpListener {
public:
    virtual ~HttpListener() = default;

    /// A request is about to be sent to whom `answeredBy` tells, or refused: again after each
    /// redirection.
    virtual void willSend(const HttpRequest& request, std::string_view answeredBy) = 0;
    virtual void received(const HttpResponse& response) = 0;
    /// A piece of the body; false ends the load, because it is too long.
    virtual bool receivedData(std::string_view piece) = 0;
    /// Nothing follows.
    virtual void ended(std::optional<LoadFailure> failure) = 0;
};

} // namespace desktop::network
