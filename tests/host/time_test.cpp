// The clock, waiting, and the log of events.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;
using support::HostProcess;

class Time : public testing::Test {
protected:
    /// Sends the label a message after that many seconds of the device's clock.
    void after(double seconds, const char* selector, const json& argument) {
        host.message(label, "performSelector:withObject:afterDelay:",
                     {{{"selector", selector}}, argument, seconds});
    }
    std::string text() { return host.message(label, "text"); }
    void advance(double seconds) { host.result({{"do", "advance"}, {"seconds", seconds}}); }

    HostProcess host = tests::automatedHost({"--app", "plain"});
    json label = host.result({{"do", "find"}, {"where", {{"class", "UILabel"}}}}).at(0);
};

TEST_F(Time, StandsStillUntilItIsMoved) {
    host.message(label, "setText:", {"before"});
    after(2, "setText:", "late");
    after(1, "setText:", "soon");
    EXPECT_EQ(text(), "before");
    advance(0.5);
    EXPECT_EQ(text(), "before");
    advance(0.5);
    EXPECT_EQ(text(), "soon");
    advance(60);
    EXPECT_EQ(text(), "late");
}

TEST_F(Time, DelayedMessagesCanBeCancelled) {
    host.message(label, "setText:", {"before"});
    after(1, "setText:", "one");
    after(2, "setText:", "two");
    const json requests{{"class", "NSObject"}};
    host.message(requests, "cancelPreviousPerformRequestsWithTarget:selector:object:",
                 {label, {{"selector", "setText:"}}, "one"});
    advance(1);
    EXPECT_EQ(text(), "before");
    advance(1);
    EXPECT_EQ(text(), "two");
    after(1, "setText:", "three");
    host.message(requests, "cancelPreviousPerformRequestsWithTarget:", {label});
    advance(1);
    EXPECT_EQ(text(), "two");
}

TEST_F(Time, WhatAnExceptionInterruptsIsTold) {
    after(1, "valueForKey:", "noSuchKey");
    const std::string error = host.error({{"do", "advance"}, {"seconds", 1}});
    EXPECT_EQ(error.find("NSUnknownKeyException"), 0U) << error;
    EXPECT_NE(error.find("noSuchKey"), std::string::npos) << error;
}

TEST_F(Time, WaitingEndsWhenTheViewIsThere) {
    host.message(label, "setText:", {"here"});
    const json found = host.result({{"do", "wait"}, {"for", {{"text", "here"}}}, {"seconds", 30}});
    EXPECT_EQ(found.at(0).at("object"), label.at("object"));
}

TEST_F(Time, WaitingRunsWhatOtherThreadsHandToTheMainThread) {
    // From a background thread to the main one, both by Foundation.
    host.message(label, "performSelectorInBackground:withObject:",
                 {{{"selector", "setText:"}}, "from afar"});
    const json found =
        host.result({{"do", "wait"}, {"for", {{"text", "from afar"}}}, {"seconds", 30}});
    EXPECT_EQ(found.size(), 1U);
}

TEST_F(Time, SwallowedExceptionsAreEvents) {
    const json center = host.message({{"class", "NSNotificationCenter"}}, "defaultCenter");
    host.message(
        center, "postNotificationName:object:userInfo:",
        {"WentraExceptionSwallowed",
         nullptr,
         {{"where", "UILabel setText:"}, {"name", "NSRangeException"}, {"reason", "far"}}});
    const json expected = json::parse(
        R"([{"kind":"exception","where":"UILabel setText:","name":"NSRangeException","reason":"far"}])");
    EXPECT_EQ(host.result({{"do", "wait"}, {"for", {{"event", "exception"}}}, {"seconds", 30}}),
              expected);
    EXPECT_EQ(host.result({{"do", "events"}, {"keep", true}}), expected);
    EXPECT_EQ(host.result({{"do", "events"}}), expected);
    EXPECT_EQ(host.result({{"do", "events"}}), json::array());
}

TEST_F(Time, LogLinesAreEventsAndGoToStandardError) {
    // Foundation logs that it cannot write there.
    host.message("text", "writeToFile:atomically:", {"/nonexistent/folder/file", true});
    const json events = host.result({{"do", "events"}});
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events.at(0).at("kind"), "log");
    const std::string line = events.at(0).at("text");
    EXPECT_NE(line.find("/nonexistent/folder/file"), std::string::npos) << line;
    EXPECT_EQ(line.find("host["), std::string::npos) << line;
    EXPECT_NE(host.errors().find(line), std::string::npos) << host.errors();
}

TEST(CalendarOfTheHost, FollowsTheClockFromTheGivenDate) {
    HostProcess host = tests::automatedHost({"--date", "2024-12-30T12:00:00"});
    const auto date = [&host] { return host.message({{"class", "NSDate"}}, "date"); };
    const json formatter = host.message({{"class", "NSDateFormatter"}}, "new");
    host.message(formatter, "setDateFormat:", {"yyyy-MM-dd HH:mm:ss"});
    const auto shown = [&] { return host.message(formatter, "stringFromDate:", {date()}); };
    EXPECT_EQ(shown(), "2024-12-30 12:00:00");
    host.result({{"do", "advance"}, {"seconds", 90}});
    EXPECT_EQ(shown(), "2024-12-30 12:01:30");
}

} // namespace
