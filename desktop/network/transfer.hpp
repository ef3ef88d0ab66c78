// One load: its request on libcurl, redirection by redirection.
#pragma once

#include "desktop/network/http.hpp"
#include "desktop/network/route.hpp"

#include <curl/curl.h>

#include <chrono>
#include <memory>

namespace desktop::network {

/// Belongs to the network's thread.
class Transfer {
public:
    Transfer(HttpRequest request, std::shared_ptr<HttpListener> listener);
    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;

    /// Makes the handle ready for the next request and tells the listener; the failure when there
    /// is no way for it.
    std::optional<LoadFailure> prepare();
    [[nodiscard]] CURL* handle() const { return handle_.get(); }

    /// Takes the result of the request. True: there is a redirection, `prepare` again. False: the
    /// listener has been told that the load ended.
    bool finish(CURLcode result);
    /// Tells the listener that the load ended.
    void end(std::optional<LoadFailure> failure) { listener_->ended(failure); }

private:
    using Moment = std::chrono::steady_clock::time_point;

    static std::size_t headerArrived(char* text, std::size_t, std::size_t length, void* self);
    static std::size_t bodyArrived(char* text, std::size_t, std::size_t length, void* self);
    static int progress(void* self, curl_off_t, curl_off_t received, curl_off_t, curl_off_t sent);

    void set(const Route& route);
    void setMethodAndBody();
    void setHeaders();
    void takeHeader(std::string_view line);
    void completeHead();
    /// Turns to where the response points.
    CURLcode redirect();
    [[nodiscard]] bool isQuietTooLong(long long bytes);

    HttpRequest request_;
    std::shared_ptr<HttpListener> listener_;
    std::unique_ptr<CURL, void (*)(CURL*)> handle_;
    std::unique_ptr<curl_slist, void (*)(curl_slist*)> headers_;
    std::unique_ptr<curl_slist, void (*)(curl_slist*)> connectTo_;
    HttpResponse response_;
    bool headIsComplete_ = false;
    bool redirects_ = false;
    int redirections_ = 0;
    long long bytesSeen_ = 0;
    Moment lastByte_;
};

} // namespace desktop::network
