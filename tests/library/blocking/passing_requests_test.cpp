// Loading with the hooks on requests in place is what it was without them, by every way to load.
#include "library/blocking/request_hooks.hpp"

#include "bindings/foundation/http_url_response.hpp"
#include "bindings/foundation/run_loop.hpp"
#include "bindings/foundation/url_connection.hpp"
#include "bindings/foundation/url_session.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/class.hpp"
#include "desktop/foundation/foundation.hpp"
#include "tests/desktop/network/plain_server.hpp"

#include <gtest/gtest.h>

#include <future>

namespace wentra::blocking {
namespace {

using namespace ns::literals;
using objc::Object;

/// What a load came to, as far as its way tells.
struct Outcome {
    std::string body;
    long status = 0;
    std::string domain;
    long error = 0;
    bool operator==(const Outcome&) const = default;
};

void PrintTo(const Outcome& outcome, std::ostream* stream) {
    *stream << '"' << outcome.body << "\" " << outcome.status << ' ' << outcome.domain << ' '
            << outcome.error;
}

std::string bytesOf(ns::Data data) { return std::string(data.bytes()); }

long statusOf(ns::UrlResponse response) {
    const auto http = response.as<ns::HttpUrlResponse>();
    return http ? http.statusCode() : 0;
}

Outcome outcomeOf(ns::Data data, ns::UrlResponse response, ns::Error error) {
    return {data ? bytesOf(data) : "", statusOf(response), error ? error.domain().utf8() : "",
            error ? error.code() : 0};
}

ns::Data contentsOf(ns::Url file) {
    return file ? ns::Data::withContentsOfFile(file.send<"path", ns::String>()) : ns::Data();
}

struct WitnessKind : objc::Kind<WitnessKind, "LoadingWitness"> {
    using Kind::Kind;
};

/// The delegate of a session or a connection; it notes what it is told until the end.
class Witness : public desktop::PlatformClass<Witness, WitnessKind> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"URLSession:dataTask:didReceiveData:", &Witness::taskData>(),
            objc::method<"URLSession:downloadTask:didFinishDownloadingToURL:", &Witness::file>(),
            objc::method<"URLSession:task:didCompleteWithError:", &Witness::taskEnd>(),
            objc::method<"connection:didReceiveResponse:", &Witness::response>(),
            objc::method<"connection:didReceiveData:", &Witness::data>(),
            objc::method<"connectionDidFinishLoading:", &Witness::finished>(),
            objc::method<"connection:didFailWithError:", &Witness::failed>(),
        };
    }
    std::promise<Outcome> outcome;
    bool isOver = false;

private:
    void taskData(Object, Object, ns::Data data) { bytes_ += bytesOf(data); }
    void file(Object, Object, ns::Url file) { bytes_ = bytesOf(contentsOf(file)); }
    void taskEnd(Object, ns::UrlSessionTask task, ns::Error error) {
        status_ = statusOf(task.send<"response", ns::UrlResponse>());
        failed(nullptr, error);
    }
    void response(Object, ns::UrlResponse response) { status_ = statusOf(response); }
    void data(Object, ns::Data data) { bytes_ += bytesOf(data); }
    void finished(Object) { failed(nullptr, nullptr); }
    void failed(Object, ns::Error error) {
        isOver = true;
        Outcome told = outcomeOf(nullptr, nullptr, error);
        told.body = bytes_;
        told.status = status_;
        outcome.set_value(told);
    }

    std::string bytes_;
    long status_ = 0;
};

template <objc::Literal Message>
Outcome handledData(Object what) {
    std::promise<Outcome> outcome;
    ns::UrlSession::sharedSession()
        .send<Message, ns::UrlSessionTask>(
            what, ns::UrlSession::Handler::from(
                      [&](ns::Data data, ns::UrlResponse response, ns::Error error) {
                          outcome.set_value(outcomeOf(data, response, error));
                      }))
        .resume();
    return outcome.get_future().get();
}

template <objc::Literal Message>
Outcome handledDownload(Object what) {
    std::promise<Outcome> outcome;
    ns::UrlSession::sharedSession()
        .send<Message, ns::UrlSessionTask>(
            what, ns::UrlSession::DownloadHandler::from(
                      [&](ns::Url file, ns::UrlResponse response, ns::Error error) {
                          outcome.set_value(outcomeOf(contentsOf(file), response, error));
                      }))
        .resume();
    return outcome.get_future().get();
}

template <objc::Literal Message>
Outcome delegatedTask(Object what) {
    const auto delegate = WitnessKind::make();
    const auto session = ns::UrlSession::with(
        ns::UrlSessionConfiguration::defaultSessionConfiguration(), delegate, nullptr);
    session.send<Message, ns::UrlSessionTask>(what).resume();
    session.finishTasksAndInvalidate();
    return Witness::of(delegate).outcome.get_future().get();
}

/// What the delegate is told while Foundation's own run loop runs.
Outcome awaited(WitnessKind delegate) {
    constexpr int mostPasses = 10'000;
    for (int pass = 0; pass < mostPasses && !Witness::of(delegate).isOver; ++pass) {
        const objc::Pool pool;
        constexpr double patience = 10;
        ns::RunLoop::mainRunLoop().acceptInput(
            ns::RunLoop::defaultMode(),
            ns::Date::sendClass<"dateWithTimeIntervalSinceNow:", ns::Date>(patience));
    }
    if (!Witness::of(delegate).isOver) {
        return {"it has no end", 0, "", 0};
    }
    return Witness::of(delegate).outcome.get_future().get();
}

Outcome madeConnection(Object request) {
    const auto delegate = WitnessKind::make();
    const auto connection =
        ns::UrlConnection::sendClass<"connectionWithRequest:delegate:", Object>(request, delegate);
    EXPECT_TRUE(connection);
    return awaited(delegate);
}

Outcome initialisedConnection(Object request) {
    const auto delegate = WitnessKind::make();
    const auto connection = ns::UrlConnection::make<"initWithRequest:delegate:">(request, delegate);
    EXPECT_TRUE(connection);
    return awaited(delegate);
}

Outcome synchronousConnection(Object request) {
    const ns::ErrorPointer error;
    id response = nullptr;
    const auto data =
        ns::UrlConnection::sendClass<"sendSynchronousRequest:returningResponse:error:", ns::Data>(
            request, &response, error.out());
    const auto [value, failure] = error.result(data);
    return outcomeOf(value, objc::wrap<ns::UrlResponse>(response), failure);
}

Outcome dataOf(Object url) {
    return outcomeOf(ns::Data::sendClass<"dataWithContentsOfURL:", ns::Data>(url), nullptr,
                     nullptr);
}

/// A way to load: of a request or, for some, of an URL.
struct Way {
    const char* name;
    Outcome (*load)(Object what);
    bool ofUrl = false;
    bool tellsOfResponse = true;
};

constexpr std::array ways{
    Way{"data by a handler", &handledData<"dataTaskWithRequest:completionHandler:">},
    Way{"data of an URL by a handler", &handledData<"dataTaskWithURL:completionHandler:">, true},
    Way{"data by a delegate", &delegatedTask<"dataTaskWithRequest:">},
    Way{"data of an URL by a delegate", &delegatedTask<"dataTaskWithURL:">, true},
    Way{"download by a handler", &handledDownload<"downloadTaskWithRequest:completionHandler:">},
    Way{"download of an URL by a handler",
        &handledDownload<"downloadTaskWithURL:completionHandler:">, true},
    Way{"download by a delegate", &delegatedTask<"downloadTaskWithRequest:">},
    Way{"download of an URL by a delegate", &delegatedTask<"downloadTaskWithURL:">, true},
    Way{"connectionWithRequest:delegate:", &madeConnection},
    Way{"initWithRequest:delegate:", &initialisedConnection},
    Way{"sendSynchronousRequest:", &synchronousConnection},
    Way{"dataWithContentsOfURL:", &dataOf, true, false},
};

/// Tells in its body which path was asked for, and which header came with it.
std::string answer(const std::string& request) {
    const bool isMarked = request.find("X-Mark: kept") != std::string::npos;
    const std::string body = request.substr(0, request.find(" HTTP")) + (isMarked ? " marked" : "");
    return "HTTP/1.1 203 Told\r\nContent-Length: " + std::to_string(body.size()) +
           "\r\nConnection: close\r\n\r\n" + body;
}

class PassingRequests : public testing::Test {
protected:
    static void SetUpTestSuite() {
        desktop::foundation::install("test.requests");
        Witness::registerClass();
    }
    static void installHooks() {
        for (const objc::Change& change : requestHooks()) {
            objc::install(change);
        }
    }
    static Outcome load(const Way& way, const std::string& address) {
        const auto url = ns::Url::withString(ns::String::fromUtf8(address));
        const auto request = ns::MutableUrlRequest::withUrl(url);
        request.setValue(u"kept"_ns, u"X-Mark"_ns);
        return way.load(way.ofUrl ? Object(url) : Object(request));
    }

    objc::Pool pool_;
};

TEST_F(PassingRequests, ArriveAndAreAnsweredAsBefore) {
    const tests::PlainServer server(&answer);
    const auto loadsAll = [&] {
        for (const Way& way : ways) {
            const std::string body = way.ofUrl ? "GET /page?q=1" : "GET /page?q=1 marked";
            EXPECT_EQ(load(way, server.url("/page?q=1")),
                      (Outcome{body, way.tellsOfResponse ? 203 : 0, "", 0}))
                << way.name;
        }
    };
    loadsAll();
    installHooks();
    loadsAll();
}

TEST_F(PassingRequests, FailAsBefore) {
    for (const char* address : {"http://127.0.0.1:1/closed", "https://example.invalid/nowhere"}) {
        std::vector<Outcome> before;
        before.reserve(ways.size());
        for (const Way& way : ways) {
            before.push_back(load(way, address));
            EXPECT_EQ(before.back().error != 0, way.tellsOfResponse) << way.name << address;
            EXPECT_EQ(before.back().body, "") << way.name << address;
        }
        installHooks();
        for (std::size_t i = 0; i < ways.size(); ++i) {
            EXPECT_EQ(load(ways.at(i), address), before.at(i)) << ways.at(i).name << address;
        }
    }
}

} // namespace
} // namespace wentra::blocking
