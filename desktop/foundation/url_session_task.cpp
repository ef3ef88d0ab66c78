// Starting and ending a load, and telling of it on the session's queue.
#include "desktop/foundation/url_session_task.hpp"

#include "bindings/objc/pool.hpp"
#include "desktop/foundation/http_values.hpp"
#include "desktop/foundation/url_session.hpp"

#include <utility>

namespace desktop::foundation {
namespace {

using network::HttpRequest;
using network::HttpResponse;
using network::LoadFailure;

/// Keeps the task while the network works for it.
class TaskListener : public network::HttpListener {
public:
    explicit TaskListener(ns::UrlSessionTask task) : task_(task) {}

    void willSend(const HttpRequest& request, std::string_view answeredBy) override {
        const objc::Pool pool;
        recordRequest(request, answeredBy);
    }
    void received(const HttpResponse& response) override {
        const objc::Pool pool;
        UrlSessionTask::of(task_).received(response);
    }
    bool receivedData(std::string_view piece) override {
        const objc::Pool pool;
        return UrlSessionTask::of(task_).receivedData(piece);
    }
    void ended(std::optional<LoadFailure> failure) override {
        const objc::Pool pool;
        UrlSessionTask::of(task_).ended(failure);
        task_ = nullptr; // here, with a pool
    }

private:
    objc::Strong<ns::UrlSessionTask> task_;
};

} // namespace

void UrlSessionTask::setUp(ns::UrlSession session, unsigned long identifier, ns::UrlRequest request,
                           std::unique_ptr<UrlDelivery> delivery) {
    session_ = session;
    request_ = request;
    identifier_ = identifier;
    delivery_ = std::move(delivery);
    delivery_->setTask(session, self());
}

void UrlSessionTask::resume() {
    const std::scoped_lock lock(mutex_);
    if (state_ != State::suspended) {
        return;
    }
    state_ = State::running;
    UrlSession::of(session_).began(self());
    ticket_ = network::Transfers::shared().start(UrlSession::of(session_).httpRequest(request_),
                                                 std::make_shared<TaskListener>(self()));
}

void UrlSessionTask::cancel() {
    const std::scoped_lock lock(mutex_);
    const State former = state_;
    if (former == State::running) {
        state_ = State::canceling;
        network::Transfers::shared().cancel(ticket_);
    } else if (former == State::suspended) {
        state_ = State::completed;
        error_ = urlError(LoadFailure::cancelled, request_.url());
        complete();
    }
}

void UrlSessionTask::received(const HttpResponse& response) {
    const std::scoped_lock lock(mutex_);
    response_ = urlResponse(response);
    expectedBytes_ = response.expectedLength;
}

bool UrlSessionTask::receivedData(std::string_view piece) {
    long long received = 0;
    long long expected = 0;
    {
        const std::scoped_lock lock(mutex_);
        receivedBytes_ += static_cast<long long>(piece.size());
        received = receivedBytes_;
        expected = expectedBytes_;
    }
    return delivery_->receive(piece, received, expected);
}

void UrlSessionTask::ended(std::optional<LoadFailure> failure) {
    const std::scoped_lock lock(mutex_);
    state_ = State::completed;
    if (failure) {
        error_ = urlError(*failure, request_.url());
    }
    complete();
}

/// With the mutex held.
void UrlSessionTask::complete() {
    UrlSession::of(session_).perform(
        [task = objc::Strong(self()), response = response_, error = error_] {
            UrlSessionTask& peer = of(task);
            peer.delivery_->finish(response, error);
            UrlSession::of(peer.session_).ended(task);
        });
}

ns::UrlSessionTaskState UrlSessionTask::state() const {
    const std::scoped_lock lock(mutex_);
    return state_;
}

ns::UrlResponse UrlSessionTask::response() const {
    const std::scoped_lock lock(mutex_);
    return response_.autoreleased();
}

ns::Error UrlSessionTask::error() const {
    const std::scoped_lock lock(mutex_);
    return error_.autoreleased();
}

long long UrlSessionTask::countOfBytesReceived() const {
    const std::scoped_lock lock(mutex_);
    return receivedBytes_;
}

long long UrlSessionTask::expectedBytes() const {
    const std::scoped_lock lock(mutex_);
    return expectedBytes_;
}

} // namespace desktop::foundation
