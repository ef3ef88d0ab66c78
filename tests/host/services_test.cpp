// What the host process brings with it: services of the outside world, and speech.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;

TEST(Services, ARequestToTheOutsideIsRefusedAndTold) {
    support::HostProcess host = tests::automatedHost({"--app", "plain"});
    const json session = host.message({{"class", "NSURLSession"}}, "sharedSession");
    const json task =
        host.message(session, "dataTaskWithURL:", {{{"url", "https://example.com/a?b=%20"}}});
    host.message(task, "resume");
    const json events =
        host.result({{"do", "wait"}, {"for", {{"event", "request"}}}, {"seconds", 30}});
    EXPECT_EQ(events.at(0), json::parse(R"({"kind":"request","method":"GET","headers":{},
        "url":"https://example.com/a?b=%20","by":"nobody"})"));
    json error; // comes right after the event
    for (int i = 0; i < 1000 && error.is_null(); ++i) {
        error = host.message(task, "error");
    }
    EXPECT_EQ(host.message(error, "code"), -1003);
    EXPECT_EQ(host.message(error, "domain"), "NSURLErrorDomain");
}

class Serving : public testing::Test {
protected:
    json session() { return host.message({{"class", "NSURLSession"}}, "sharedSession"); }
    json get(const std::string& url) {
        return ended(host.message(session(), "dataTaskWithURL:", {{{"url", url}}}));
    }
    /// The task, which is started, when it has ended, on real time.
    json ended(const json& task) {
        constexpr int completed = 3;
        host.message(task, "resume");
        for (int i = 0; i < 3000 && host.message(task, "state") != completed; ++i) {
            host.error({{"do", "wait"}, {"for", {{"event", "none"}}}, {"seconds", 0.01}});
        }
        EXPECT_EQ(host.message(task, "state"), completed) << task;
        return task;
    }
    json statusOf(const json& task) {
        return host.message(host.message(task, "response"), "statusCode");
    }
    json bytesOf(const json& task) { return host.message(task, "countOfBytesReceived"); }
    json serve(json request) {
        request["do"] = "serve";
        return host.result(request);
    }

    const std::string whole =
        "https://api.douyin.wtf/api/video/douyin/?url=https://v.douyin.com/whole/";
    support::HostProcess host = tests::automatedHost({"--app", "plain"});
};

TEST_F(Serving, AServiceAnswersWhatItIsToldTo) {
    EXPECT_EQ(statusOf(get(whole)), 200);
    EXPECT_EQ(serve({{"service", "links"}, {"status", 503}, {"body", "four"}}),
              json::array({"translation", "links", "files"}));
    const json changed = get(whole);
    EXPECT_EQ(statusOf(changed), 503);
    EXPECT_EQ(bytesOf(changed), 4);
    EXPECT_EQ(statusOf(get("https://fanyi-api.baidu.com/")), 404) << "its own answer";
    serve({{"service", "links"}, {"status", 204}});
    EXPECT_EQ(statusOf(get(whole)), 204);
    serve({{"service", "links"}, {"drop", true}});
    EXPECT_EQ(host.message(host.message(get(whole), "error"), "code"), -1005);
    for (const json& back :
         {json{{"service", "links"}}, json{{"service", "links"}, {"reset", true}}}) {
        serve({{"service", "links"}, {"status", 500}});
        serve(back);
        EXPECT_EQ(statusOf(get(whole)), 200) << back;
    }
}

TEST_F(Serving, AnAnswerMayBeTooLate) {
    serve({{"service", "links"}, {"delay", 3600}});
    const json request = host.result({{"do", "make"},
                                      {"class", "NSMutableURLRequest"},
                                      {"selector", "initWithURL:"},
                                      {"args", {{{"url", whole}}}}});
    host.message(request, "setTimeoutInterval:", {0.2});
    const json task = ended(host.message(session(), "dataTaskWithRequest:", {request}));
    EXPECT_EQ(host.message(host.message(task, "error"), "code"), -1001);
}

TEST_F(Serving, AnAnswerMayLieAboutItsLengthAndBreakOff) {
    const auto errorOf = [&](const json& task) {
        return host.message(host.message(task, "error"), "code");
    };
    constexpr int connectionLost = -1005;
    const std::string file = "https://files.example/a.bin?size=1000";
    EXPECT_EQ(bytesOf(get(file)), 1000);
    serve({{"service", "files"}, {"length", 2000}});
    EXPECT_EQ(errorOf(get(file)), connectionLost);
    serve({{"service", "files"}, {"length", 300}});
    const json shorter = get(file);
    EXPECT_EQ(host.message(shorter, "error"), nullptr);
    EXPECT_EQ(bytesOf(shorter), 300);
    serve({{"service", "files"}, {"cut", 400}});
    const json broken = get(file);
    EXPECT_EQ(errorOf(broken), connectionLost);
    EXPECT_EQ(bytesOf(broken), 400);
    serve({{"service", "files"}, {"rate", 5000}, {"headers", {{"X-Told", "so"}}}});
    const json slow = get(file);
    EXPECT_EQ(bytesOf(slow), 1000);
    EXPECT_EQ(host.message(host.message(slow, "response"), "allHeaderFields")["X-Told"], "so");
}

TEST_F(Serving, TheHostEndsInTheMidstOfRequests) {
    constexpr int requests = 40;
    serve({{"service", "links"}, {"drop", true}}); // so that each opens a connection
    for (int i = 0; i < requests; ++i) {
        host.message(host.message(session(), "dataTaskWithURL:", {{{"url", whole}}}), "resume");
    }
    EXPECT_EQ(host.result({{"do", "quit"}}), nullptr);
    EXPECT_EQ(host.wait(), 0);
}

TEST_F(Serving, WhatCannotBeServedIsRefused) {
    const std::vector<json> requests{
        json::object(),
        {{"service", "nobody"}},
        {{"service", "links"}, {"status", 99}},
        {{"service", "links"}, {"status", 600}},
        {{"service", "links"}, {"status", 200.5}},
        {{"service", "links"}, {"status", "200"}},
        {{"service", "links"}, {"body", 7}},
        {{"service", "links"}, {"drop", 1}},
        {{"service", "links"}, {"delay", -1}},
        {{"service", "links"}, {"length", -1}},
        {{"service", "links"}, {"cut", "1"}},
        {{"service", "links"}, {"rate", 0.5}},
        {{"service", "links"}, {"headers", "X: y"}},
        {{"service", "links"}, {"headers", {{"X", 1}}}},
        {{"service", "links"}, {"reset", true}, {"cut", 1}},
        {{"service", "links"}, {"reset", 1}},
        {{"service", "links"}, {"reset", true}, {"status", 200}},
    };
    for (json request : requests) {
        request["do"] = "serve";
        EXPECT_NE(host.error(request), "") << request;
    }
}

TEST(Services, SpeechIsAFileOnTheDevice) {
    const support::TemporaryFolder root;
    support::HostProcess host =
        tests::automatedHost({"--app", "plain", "--root", root.path().string()});
    const json synthesizer = host.message({{"class", "AVSpeechSynthesizer"}}, "new");
    const json utterance =
        host.message({{"class", "AVSpeechUtterance"}}, "speechUtteranceWithString:", {"早上好"});
    host.message(utterance, "setPreUtteranceDelay:", {0.3});
    host.message(synthesizer, "speakUtterance:", {utterance});
    const json event = host.result({{"do", "events"}}).at(0);
    EXPECT_EQ(event.at("kind"), "speech");
    EXPECT_EQ(event.at("text"), "早上好");
    EXPECT_EQ(event.at("language"), "zh-CN");
    EXPECT_EQ(event.at("delay"), 0.3);
    const auto file = root.path() / event.at("file").get<std::string>().substr(1);
    host.result({{"do", "advance"}, {"seconds", 0.2}});
    EXPECT_EQ(support::readFile(file), "");
    host.result({{"do", "advance"}, {"seconds", 0.2}});
    EXPECT_GT(support::readFile(file).size(), 10'000U);
    EXPECT_EQ(host.message(synthesizer, "stopSpeakingAtBoundary:", {0}), true);
    const json since = host.result({{"do", "events"}});
    ASSERT_EQ(since.size(), 2U);
    EXPECT_EQ(since[0], json({{"kind", "speechStarted"}, {"file", event.at("file")}}));
    EXPECT_EQ(since[1].at("kind"), "speechStopped");
}

} // namespace
