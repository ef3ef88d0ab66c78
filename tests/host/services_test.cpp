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
    EXPECT_EQ(host.result({{"do", "events"}}).at(0).at("kind"), "speechStopped");
}

} // namespace
