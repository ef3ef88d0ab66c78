// Loading by NSURLSession: real HTTP and HTTPS on the loopback address.
#include "bindings/foundation/array.hpp"
#include "bindings/foundation/http_url_response.hpp"
#include "bindings/foundation/json_serialization.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/foundation/thread.hpp"
#include "bindings/foundation/url_connection.hpp"
#include "bindings/foundation/url_session.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/class.hpp"
#include "desktop/foundation/foundation.hpp"
#include "desktop/runtime/event_log.hpp"
#include "desktop/runtime/run_loop.hpp"
#include "desktop/services/authority.hpp"
#include "desktop/services/https_server.hpp"
#include "desktop/services/translation/translation.hpp"
#include "tests/desktop/network/plain_server.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <future>

namespace {

using namespace ns::literals;
using namespace desktop::services;
using tests::PlainServer;

/// What a completion handler was told.
struct Outcome {
    std::string body;
    long status = 0;
    std::string url;
    long error = 0;
    std::string description;
    bool onMainThread = false;
};

ns::Url urlFrom(const std::string& text) { return ns::Url::withString(ns::String::fromUtf8(text)); }

std::string bytesOf(ns::Data data) { return std::string(data.bytes()); }

/// Starts a data task and gives what will become of it.
std::future<Outcome> load(ns::UrlRequest request,
                          ns::UrlSession session = ns::UrlSession::sharedSession()) {
    auto promise = std::make_shared<std::promise<Outcome>>();
    session
        .dataTask(request,
                  ns::UrlSession::Handler::from(
                      [promise](ns::Data data, ns::UrlResponse response, ns::Error error) {
                          const auto http = response.assume<ns::HttpUrlResponse>();
                          promise->set_value({data ? bytesOf(data) : "", http.statusCode(),
                                              http.url().absoluteString().utf8(), error.code(),
                                              error.localizedDescription().utf8(),
                                              ns::Thread::isMainThread()});
                      }))
        .resume();
    return promise->get_future();
}

/// What has been promised; a failure and a value of nothing when it does not come.
template <typename Value>
Value awaited(std::future<Value> future) {
    if (future.wait_for(std::chrono::minutes(1)) != std::future_status::ready) {
        ADD_FAILURE() << "what has been promised does not come";
        return Value();
    }
    return future.get();
}

Outcome loaded(const std::string& url) {
    return awaited(load(ns::UrlRequest::withUrl(urlFrom(url))));
}

std::string response(const std::string& body, const std::string& head = "200 OK\r\n") {
    return "HTTP/1.1 " + head + "Content-Length: " + std::to_string(body.size()) +
           "\r\nConnection: close\r\n\r\n" + body;
}

std::string translationUrl(const std::string& text, const std::string& sign) {
    return "https://fanyi-api.baidu.com/api/trans/vip/translate?q=" + text +
           "&from=auto&to=zh&appid=desktop&salt=3&sign=" + sign;
}
std::string translationUrl(const std::string& text) {
    return translationUrl(text, translation::signatureOf("desktop", text, "3", "desktop-key"));
}

class UrlSession : public testing::Test {
protected:
    static void SetUpTestSuite() {
        static const bool once = [] {
            desktop::foundation::install("test.network");
            return true;
        }();
        static_cast<void>(once);
    }
    objc::Pool pool;
};

TEST_F(UrlSession, LoadsFromTheTranslationServiceUnderItsRealName) {
    desktop::EventLog::shared().take();
    const Outcome outcome = loaded(translationUrl("hello"));
    EXPECT_EQ(outcome.error, 0) << outcome.description;
    EXPECT_EQ(outcome.status, 200);
    EXPECT_EQ(outcome.url, translationUrl("hello"));
    EXPECT_FALSE(outcome.onMainThread);
    const auto json = ns::JsonSerialization::object(ns::Data::from(outcome.body)).value;
    const auto results = json.as<ns::Dictionary>().get(u"trans_result"_ns).as<ns::Array>();
    EXPECT_EQ(results.first().assume<ns::Dictionary>().get(u"dst"_ns).assume<ns::String>().utf8(),
              "你好");
    const auto events = desktop::EventLog::shared().take();
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].kind, "request");
    EXPECT_TRUE(events[0].fields.get(u"by"_ns).isEqual(u"loopback"_ns));
    EXPECT_TRUE(events[0].fields.get(u"method"_ns).isEqual(u"GET"_ns));
    EXPECT_EQ(events[0].fields.get(u"url"_ns).assume<ns::String>().utf8(), outcome.url);
}

TEST_F(UrlSession, FailuresOfTheServiceArrive) {
    EXPECT_NE(loaded(translationUrl("hello", "00")).body.find("54001"), std::string::npos);
    EXPECT_NE(loaded(translationUrl("!error")).body.find("54003"), std::string::npos);
    EXPECT_EQ(
        ns::JsonSerialization::object(ns::Data::from(loaded(translationUrl("!json")).body)).value,
        nullptr);
    const Outcome broken = loaded(translationUrl("!500"));
    EXPECT_EQ(broken.status, 500);
    EXPECT_EQ(broken.error, 0);
    const Outcome dropped = loaded(translationUrl("!drop"));
    EXPECT_EQ(dropped.error, -1005);
    EXPECT_EQ(dropped.description, "网络连接已中断。");
}

TEST_F(UrlSession, ALateAnswerHoldsUpNoOther) {
    auto late = load(ns::UrlRequest::withUrl(urlFrom(translationUrl("!late"))));
    EXPECT_EQ(loaded(translationUrl("hello")).status, 200);
    EXPECT_EQ(late.wait_for(std::chrono::seconds(0)), std::future_status::timeout);
    EXPECT_EQ(awaited(std::move(late)).status, 200);
}

TEST_F(UrlSession, TwoHundredAtOnceAllComeBack) {
    std::vector<std::future<Outcome>> outcomes;
    for (int i = 0; i < 200; ++i) {
        outcomes.push_back(
            load(ns::UrlRequest::withUrl(urlFrom(translationUrl("line" + std::to_string(i))))));
    }
    for (int i = 0; i < 200; ++i) {
        const Outcome outcome = awaited(std::move(outcomes[static_cast<std::size_t>(i)]));
        EXPECT_NE(outcome.body.find("\"line" + std::to_string(i) + "\""), std::string::npos)
            << outcome.description;
    }
}

TEST_F(UrlSession, RefusesACertificateThatIsNotForTheHostOrNotFromItsAuthority) {
    const auto answer = [](std::string_view) { return Answer{}; };
    const Authority stranger;
    const auto port = serveHttps(stranger.identityFor("localhost"), answer);
    const Outcome outcome = loaded("https://localhost:" + std::to_string(port) + "/");
    EXPECT_EQ(outcome.error, -1202);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(loaded("http://localhost:" + std::to_string(port) + "/").error, -1005);
}

TEST_F(UrlSession, NothingLeavesTheMachineNotEvenByARedirection) {
    EXPECT_EQ(loaded("https://example.com/").error, -1003);
    EXPECT_EQ(loaded("ftp://127.0.0.1/").error, -1002);
    const PlainServer server([](const std::string&) {
        return response("", "302 Found\r\nLocation: https://example.com/there\r\n");
    });
    desktop::EventLog::shared().take();
    const Outcome outcome = loaded(server.url("/"));
    EXPECT_EQ(outcome.error, -1003);
    EXPECT_EQ(outcome.description, "未能找到使用指定主机名的服务器。");
    std::string answerers;
    for (const desktop::LoggedEvent& event : desktop::EventLog::shared().take()) {
        answerers += event.fields.get(u"by"_ns).assume<ns::String>().utf8() + " ";
    }
    EXPECT_EQ(answerers, "local nobody ");
}

TEST_F(UrlSession, NeitherDoesFoundationsOlderLoading) {
    const auto load = [](const std::string& url) {
        return ns::UrlConnection::sendSynchronous(ns::UrlRequest::withUrl(urlFrom(url)));
    };
    EXPECT_EQ(load("https://example.com/").error.code(), -1003);
    const PlainServer server([](const std::string&) { return response("here"); });
    EXPECT_EQ(bytesOf(load(server.url("/")).value), "here");
}

TEST_F(UrlSession, NeitherDoesWhoOnlyWantsTheBytes) {
    const PlainServer server([](const std::string&) { return response("here"); });
    const auto dataOf = [](const std::string& url) {
        return ns::Data::sendClass<"dataWithContentsOfURL:", ns::Data>(urlFrom(url));
    };
    EXPECT_EQ(bytesOf(dataOf(server.url("/"))), "here");
    std::string elsewhere = server.url("/");
    elsewhere.replace(elsewhere.find("127.0.0.1"), 9, "0.0.0.0"); // which the system takes for here
    EXPECT_FALSE(dataOf(elsewhere));
}

TEST_F(UrlSession, FollowsRedirectionsWithinLimits) {
    const PlainServer server([](const std::string& request) {
        if (request.starts_with("POST /form ")) {
            return response("x", "303 See Other\r\nLocation: /end\r\n");
        }
        if (request.starts_with("GET /end ")) {
            return response("there");
        }
        return response("", "301 Moved\r\nLocation: /again\r\n");
    });
    const auto request = ns::MutableUrlRequest::withUrl(urlFrom(server.url("/form")));
    request.setHttpMethod(u"POST"_ns);
    const Outcome outcome = awaited(load(request));
    EXPECT_EQ(outcome.body, "there");
    EXPECT_EQ(outcome.url, server.url("/end"));
    EXPECT_EQ(loaded(server.url("/circle")).error, -1007);
}

TEST_F(UrlSession, SendsMethodHeadersAndBody) {
    std::string received;
    const PlainServer server([&received](const std::string& request) {
        received = request;
        return response("");
    });
    const auto configuration = ns::UrlSessionConfiguration::defaultSessionConfiguration();
    const auto common = ns::MutableDictionary::make();
    common.set(u"one"_ns, u"X-Common"_ns);
    common.set(u"lost"_ns, u"X-Own"_ns);
    configuration.send<"setHTTPAdditionalHeaders:">(common);
    const auto request = ns::MutableUrlRequest::withUrl(urlFrom(server.url("/path?q=%E4")));
    request.setHttpMethod(u"PUT"_ns);
    request.setHttpBody(ns::Data::from("body"));
    request.setValue(u"own 值"_ns, u"X-Own"_ns);
    request.setValue(u"a\r\nX-Evil: 1"_ns, u"X-Broken"_ns);
    EXPECT_EQ(awaited(load(request, ns::UrlSession::with(configuration))).status, 200);
    EXPECT_TRUE(received.starts_with("PUT /path?q=%E4 HTTP/1.1\r\n")) << received;
    EXPECT_NE(received.find("X-Common: one\r\n"), std::string::npos) << received;
    EXPECT_NE(received.find("X-Own: own 值\r\n"), std::string::npos) << received;
    EXPECT_NE(received.find("Content-Length: 4\r\n"), std::string::npos) << received;
    EXPECT_EQ(received.find("Evil"), std::string::npos) << received;
}

TEST_F(UrlSession, SurvivesAHugeAnswerABrokenOneAndNone) {
    constexpr std::size_t hundredMegabytes = 100'000'000;
    const PlainServer server([](const std::string& request) {
        if (request.starts_with("GET /huge ")) {
            return response(std::string(hundredMegabytes, 'x'));
        }
        if (request.starts_with("GET /short ")) {
            return std::string("HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nshort");
        }
        return request.starts_with("GET /none ") ? std::string() : std::string("rubbish\r\n\r\n");
    });
    const Outcome huge = loaded(server.url("/huge"));
    EXPECT_EQ(huge.body.size(), hundredMegabytes) << huge.description;
    EXPECT_EQ(loaded(server.url("/short")).error, -1005);
    EXPECT_EQ(loaded(server.url("/none")).error, -1005);
    EXPECT_NE(loaded(server.url("/rubbish")).error, 0);
}

TEST_F(UrlSession, GivesUpAfterTheTimeThatTheRequestGrants) {
    std::promise<void> done;
    {
        const PlainServer server([&done](const std::string&) {
            awaited(done.get_future());
            return std::string();
        });
        const auto request = ns::MutableUrlRequest::withUrl(urlFrom(server.url("/")));
        request.setTimeoutInterval(0.3);
        EXPECT_EQ(awaited(load(request)).error, -1001);
        done.set_value();
    }
}

TEST_F(UrlSession, CancelledTasksSaySo) {
    std::promise<long> code;
    const auto handler = ns::UrlSession::Handler::from(
        [&code](ns::Data, ns::UrlResponse, ns::Error error) { code.set_value(error.code()); });
    const auto session = ns::UrlSession::sharedSession();
    const auto running = session.dataTask(urlFrom(translationUrl("!late")), handler);
    EXPECT_EQ(running.state(), ns::UrlSessionTaskState::suspended);
    running.resume();
    running.resume();
    running.cancel();
    EXPECT_EQ(awaited(code.get_future()), -999);
    EXPECT_EQ(running.state(), ns::UrlSessionTaskState::completed);
    EXPECT_EQ(running.error().code(), -999);
    running.cancel();

    code = {};
    const auto fresh = session.dataTask(urlFrom(translationUrl("hello")), handler);
    fresh.cancel();
    EXPECT_EQ(awaited(code.get_future()), -999);
    fresh.resume();
}

TEST_F(UrlSession, ATaskResumedTwiceLoadsOnce) {
    std::atomic<int> requests{0};
    const PlainServer server([&requests](const std::string& request) {
        requests += request.starts_with("GET /twice ") ? 1 : 0;
        return response("here");
    });
    std::atomic<int> answers{0};
    std::promise<void> promise;
    const auto task = ns::UrlSession::sharedSession().dataTask(
        urlFrom(server.url("/twice")),
        ns::UrlSession::Handler::from([&](ns::Data, ns::UrlResponse, ns::Error) {
            if (answers++ == 0) {
                promise.set_value();
            }
        }));
    task.resume();
    task.resume();
    awaited(promise.get_future());
    task.resume();
    EXPECT_EQ(loaded(server.url("/after")).body, "here"); // a second load would be before it
    EXPECT_EQ(requests, 1);
    EXPECT_EQ(answers, 1);
}

TEST_F(UrlSession, IsUsedFromSeveralThreads) {
    std::atomic<int> good{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&good] {
            const objc::Pool own;
            for (int j = 0; j < 10; ++j) {
                good += loaded(translationUrl("hello")).status == 200 ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(good, 40);
}

struct DelegateKind : objc::Kind<DelegateKind, "SessionTestDelegate"> {
    using Kind::Kind;
};

/// Writes down what a session tells its delegate.
class Delegate : public desktop::PlatformClass<Delegate, DelegateKind> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"URLSession:dataTask:didReceiveData:", &Delegate::data>(),
            objc::method<"URLSession:downloadTask:didWriteData:totalBytesWritten:"
                         "totalBytesExpectedToWrite:",
                         &Delegate::wrote>(),
            objc::method<"URLSession:downloadTask:didFinishDownloadingToURL:",
                         &Delegate::downloaded>(),
            objc::method<"URLSession:task:didCompleteWithError:", &Delegate::completed>(),
            objc::method<"URLSession:didBecomeInvalidWithError:", &Delegate::invalid>(),
        };
    }
    std::string told;
    std::string bytes;
    std::promise<void> over;

private:
    using Object = objc::Object;
    void data(Object, Object, ns::Data data) { bytes += bytesOf(data); }
    void wrote(Object, Object, long long, long long written, long long expected) {
        if (written == expected) {
            told += "all written, ";
        }
    }
    void downloaded(Object, Object, ns::Url file) {
        bytes = bytesOf(ns::Data::withContentsOfFile(file.path()));
        told += "downloaded, ";
    }
    void completed(Object, Object, ns::Error error) { told += error ? "failed, " : "completed, "; }
    void invalid(Object, ns::Error) {
        told += "invalid";
        over.set_value();
    }
};

class UrlSessionDelegate : public UrlSession {
protected:
    static void SetUpTestSuite() {
        UrlSession::SetUpTestSuite();
        Delegate::registerClass();
    }
    /// What the delegate was told by the time its session is invalid.
    std::string told() {
        session.finishTasksAndInvalidate();
        awaited(Delegate::of(delegate).over.get_future());
        return Delegate::of(delegate).told;
    }

    const std::string content = std::string(300'000, 'x');
    PlainServer server{[this](const std::string&) { return response(content); }};
    DelegateKind delegate = DelegateKind::make();
    ns::UrlSession session = ns::UrlSession::with(
        ns::UrlSessionConfiguration::defaultSessionConfiguration(), delegate, nullptr);
};

TEST_F(UrlSessionDelegate, GetsTheDataInOrderThenTheEnd) {
    session.send<"dataTaskWithURL:", ns::UrlSessionTask>(urlFrom(server.url("/"))).resume();
    EXPECT_EQ(told(), "completed, invalid");
    EXPECT_EQ(Delegate::of(delegate).bytes, content);
    EXPECT_ANY_THROW(static_cast<void>(session.downloadTask(urlFrom(server.url("/")))));
}

TEST_F(UrlSessionDelegate, GetsTheProgressOfADownloadAndItsFile) {
    session.downloadTask(urlFrom(server.url("/"))).resume();
    EXPECT_EQ(told(), "all written, downloaded, completed, invalid");
    EXPECT_EQ(Delegate::of(delegate).bytes, content);
}

TEST_F(UrlSessionDelegate, AHandlersFileIsGoneAfterwards) {
    std::promise<std::pair<std::string, std::string>> promise;
    session
        .downloadTask(
            urlFrom(server.url("/")),
            ns::UrlSession::DownloadHandler::from(
                [&promise](ns::Url file, ns::UrlResponse, ns::Error) {
                    const auto path = file.path();
                    promise.set_value({path.utf8(), bytesOf(ns::Data::withContentsOfFile(path))});
                }))
        .resume();
    EXPECT_EQ(told(), "invalid");
    const auto [path, bytes] = awaited(promise.get_future());
    EXPECT_EQ(bytes, content);
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(UrlSessionDelegate, HearsOfTasksThatInvalidationCancels) {
    session.downloadTask(urlFrom(translationUrl("!late"))).resume();
    session.invalidateAndCancel();
    EXPECT_EQ(told(), "failed, invalid");
}

} // namespace
