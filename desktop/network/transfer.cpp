// Setting libcurl up for a request, and taking what it hands back.
#include "desktop/network/transfer.hpp"

#include "desktop/network/header_text.hpp"
#include "desktop/services/loopback_names.hpp"

#include <algorithm>
#include <charconv>
#include <utility>

namespace desktop::network {
namespace {

/// The number at which the platform gives up too.
constexpr int mostRedirections = 20;

const std::string* valueOf(const Headers& headers, const char* name) {
    const auto found = std::ranges::find_if(
        headers, [name](const auto& header) { return isSameName(header.first, name); });
    return found == headers.end() ? nullptr : &found->second;
}

/// Of the body as it is received; -1 when it is not known, as for one that comes compressed.
long long lengthIn(const Headers& headers) {
    const std::string* length = valueOf(headers, "Content-Length");
    if (length == nullptr || valueOf(headers, "Content-Encoding") != nullptr) {
        return -1;
    }
    unsigned long long bytes = 0;
    const char* const end = length->data() + length->size();
    const auto [rest, failure] = std::from_chars(length->data(), end, bytes);
    return failure == std::errc() && rest == end && std::in_range<long long>(bytes)
               ? static_cast<long long>(bytes)
               : -1;
}

/// A header with a line break in it would be two.
bool isOneLine(const std::string& text) {
    return text.find_first_of(std::string_view("\r\n\0", 3)) == std::string::npos;
}

bool isRedirection(int status) {
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

/// What browsers and the platform do: "see other", and an answer to a POST, is fetched by GET.
bool becomesGet(int status, const std::string& method) {
    return (status == 303 && method != "HEAD") ||
           ((status == 301 || status == 302) && method == "POST");
}

} // namespace

Transfer::Transfer(HttpRequest request, std::shared_ptr<HttpListener> listener)
    : request_(std::move(request)), listener_(std::move(listener)),
      handle_(curl_easy_init(), &curl_easy_cleanup), headers_(nullptr, &curl_slist_free_all),
      connectTo_(nullptr, &curl_slist_free_all) {}

std::optional<LoadFailure> Transfer::prepare() {
    if (!isOneLine(request_.method)) {
        return LoadFailure::badUrl;
    }
    const auto target = targetOf(request_.url);
    if (const auto* failure = std::get_if<LoadFailure>(&target)) {
        return *failure;
    }
    const Route route = routeTo(std::get<Target>(target));
    listener_->willSend(request_, answeredBy(route));
    if (const auto* failure = std::get_if<LoadFailure>(&route)) {
        return *failure;
    }
    response_ = HttpResponse();
    headIsComplete_ = false;
    redirects_ = false;
    bytesSeen_ = 0;
    lastByte_ = std::chrono::steady_clock::now();
    set(route);
    setMethodAndBody();
    setHeaders();
    return std::nullopt;
}

void Transfer::set(const Route& route) {
    CURL* const curl = handle_.get();
    curl_easy_reset(curl);
    curl_easy_setopt(curl, CURLOPT_PRIVATE, this);
    curl_easy_setopt(curl, CURLOPT_URL, request_.url.c_str());
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_PROXY, ""); // the environment's would lead elsewhere
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_ACCEPT_ENCODING, "");
    // The system's authorities are a folder beside it, read as far as they are needed.
    const std::string& authority = services::authorityCertificate();
    curl_blob blob{const_cast<char*>(authority.data()), authority.size(), CURL_BLOB_COPY};
    curl_easy_setopt(curl, CURLOPT_CAINFO_BLOB, &blob);
    connectTo_.reset();
    if (const auto* service = std::get_if<ToService>(&route)) {
        connectTo_.reset(
            curl_slist_append(nullptr, ("::127.0.0.1:" + std::to_string(service->port)).c_str()));
    }
    curl_easy_setopt(curl, CURLOPT_CONNECT_TO, connectTo_.get());
    curl_easy_setopt(curl, CURLOPT_HEADERFUNCTION, &Transfer::headerArrived);
    curl_easy_setopt(curl, CURLOPT_HEADERDATA, this);
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, &Transfer::bodyArrived);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, this);
    curl_easy_setopt(curl, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(curl, CURLOPT_XFERINFOFUNCTION, &Transfer::progress);
    curl_easy_setopt(curl, CURLOPT_XFERINFODATA, this);
}

void Transfer::setMethodAndBody() {
    CURL* const curl = handle_.get();
    if (!request_.body.empty()) {
        curl_easy_setopt(curl, CURLOPT_POSTFIELDSIZE_LARGE,
                         static_cast<curl_off_t>(request_.body.size()));
        curl_easy_setopt(curl, CURLOPT_POSTFIELDS, request_.body.data());
    } else if (request_.method == "HEAD") {
        curl_easy_setopt(curl, CURLOPT_NOBODY, 1L);
    } else if (request_.method == "POST") {
        curl_easy_setopt(curl, CURLOPT_POSTFIELDSIZE, 0L);
        curl_easy_setopt(curl, CURLOPT_POSTFIELDS, "");
    }
    curl_easy_setopt(curl, CURLOPT_CUSTOMREQUEST, request_.method.c_str());
}

void Transfer::setHeaders() {
    // libcurl would wait for a "continue" before it sends a long body.
    headers_.reset(curl_slist_append(nullptr, "Expect:"));
    for (const auto& [name, value] : request_.headers) {
        if (!name.empty() && isOneLine(name) && isOneLine(value)) {
            const std::string line = value.empty() ? name + ';' : name + ": " + value;
            curl_slist_append(headers_.get(), line.c_str());
        }
    }
    curl_easy_setopt(handle_.get(), CURLOPT_HTTPHEADER, headers_.get());
}

std::size_t Transfer::headerArrived(char* text, std::size_t, std::size_t length, void* self) {
    static_cast<Transfer*>(self)->takeHeader({text, length});
    return length;
}

void Transfer::takeHeader(std::string_view line) {
    if (line.starts_with("HTTP/")) {
        response_ = HttpResponse();
        response_.version = line.substr(0, line.find(' '));
        return;
    }
    line = trimmed(line);
    if (line.empty()) {
        completeHead();
        return;
    }
    if (const auto colon = line.find(':'); colon != std::string_view::npos) {
        response_.headers.emplace_back(trimmed(line.substr(0, colon)),
                                       trimmed(line.substr(colon + 1)));
    }
}

void Transfer::completeHead() {
    constexpr long firstFinal = 200; // before that: "continue", and the like
    constexpr long switching = 101;
    long status = 0;
    curl_easy_getinfo(handle_.get(), CURLINFO_RESPONSE_CODE, &status);
    if (headIsComplete_ || (status < firstFinal && status != switching)) {
        return; // trailers, too, end with an empty line
    }
    headIsComplete_ = true;
    response_.status = static_cast<int>(status);
    response_.url = request_.url;
    response_.expectedLength = lengthIn(response_.headers);
    redirects_ =
        isRedirection(response_.status) && valueOf(response_.headers, "Location") != nullptr;
    if (!redirects_) {
        listener_->received(response_);
    }
}

std::size_t Transfer::bodyArrived(char* text, std::size_t, std::size_t length, void* self) {
    auto& transfer = *static_cast<Transfer*>(self);
    const bool wanted = transfer.redirects_ || transfer.listener_->receivedData({text, length});
    return wanted ? length : CURL_WRITEFUNC_ERROR;
}

int Transfer::progress(void* self, curl_off_t, curl_off_t received, curl_off_t, curl_off_t sent) {
    return static_cast<Transfer*>(self)->isQuietTooLong(received + sent) ? 1 : 0;
}

bool Transfer::isQuietTooLong(long long bytes) {
    const Moment now = std::chrono::steady_clock::now();
    if (std::exchange(bytesSeen_, bytes) != bytes) {
        lastByte_ = now;
    }
    return std::chrono::duration<double>(now - lastByte_).count() > request_.quietTime;
}

bool Transfer::finish(CURLcode result) {
    if (result == CURLE_OK && redirects_) {
        result = redirect();
        if (result == CURLE_OK) {
            return true;
        }
    }
    if (result == CURLE_OK) {
        end(std::nullopt);
    } else {
        // Only `progress` ends a transfer by a callback.
        end(result == CURLE_ABORTED_BY_CALLBACK ? LoadFailure::timedOut : failureFromCurl(result));
    }
    return false;
}

CURLcode Transfer::redirect() {
    char* location = nullptr; // absolute
    curl_easy_getinfo(handle_.get(), CURLINFO_REDIRECT_URL, &location);
    if (location == nullptr) {
        return CURLE_WEIRD_SERVER_REPLY;
    }
    if (++redirections_ > mostRedirections) {
        return CURLE_TOO_MANY_REDIRECTS;
    }
    request_.url = location;
    if (becomesGet(response_.status, request_.method)) {
        request_.method = "GET";
        request_.body.clear();
    }
    // What was said to one host is not for another to hear.
    std::erase_if(request_.headers,
                  [](const auto& header) { return isSameName(header.first, "Authorization"); });
    return CURLE_OK;
}

} // namespace desktop::network
