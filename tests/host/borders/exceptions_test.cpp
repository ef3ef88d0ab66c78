// Exceptions at each border between the host and a library.
#include "tests/host/borders/host_with_borders.hpp"

#include <gtest/gtest.h>

namespace {

using tests::HostWithBorders;
using tests::Json;

/// As in gate.hpp.
enum Fault { none, objectiveC, cxx };

struct Border {
    const char* method;
    const char* where; ///< as it is reported
};

constexpr Border borders[] = {
    {"inMethod:", "inMethod:"},
    {"inBlocks:", "block"},
    {"inDispatchedWork:", "dispatched work"},
    {"inWorkOfAnotherThread:", "dispatched work"},
    {"inDelayedWork:", "dispatched work"},
    {"inTimer:", "timerFired:"},
    {"inNotification:", "heard:"},
};

class Exceptions : public testing::TestWithParam<Border> {
protected:
    /// What is reported when the library's code fails at the border; one frame of it was left.
    Json swallowed(Fault fault) {
        host.message(visitor, GetParam().method, {fault});
        std::vector<Json> reports;
        EXPECT_TRUE(host.until([&] {
            const std::vector<Json> now = host.swallowed();
            reports.insert(reports.end(), now.begin(), now.end());
            return !reports.empty();
        }));
        EXPECT_EQ(reports.size(), 1U);
        EXPECT_EQ(host.message(visitor, "departures"), ++departures);
        return reports.empty() ? Json() : reports.front();
    }

    HostWithBorders host;
    Json visitor = host.message({{"class", "Visitor"}}, "new");
    int departures = 0;
};

TEST_P(Exceptions, OfTheLibraryEndThere) {
    const Json report = swallowed(none);
    EXPECT_EQ(report["where"], GetParam().where);
    EXPECT_EQ(report["name"], "std::exception") << "the standard library's own";
}

TEST_P(Exceptions, OfTheHostsObjectiveCEndThere) {
    const Json report = swallowed(objectiveC);
    EXPECT_EQ(report["where"], GetParam().where);
    EXPECT_EQ(report["name"], "Closed");
    EXPECT_EQ(report["reason"], "by the host");
}

TEST_P(Exceptions, OfTheHostsCxxEndThere) {
    const Json report = swallowed(cxx);
    EXPECT_EQ(report["where"], GetParam().where);
    EXPECT_EQ(report["name"].get<std::string>().find("std::"), 0U) << report;
}

TEST_P(Exceptions, EndThereAgainAndAgain) {
    for (const Fault fault : {cxx, objectiveC, none, objectiveC, cxx, none}) {
        EXPECT_EQ(swallowed(fault)["where"], GetParam().where);
    }
}

INSTANTIATE_TEST_SUITE_P(, Exceptions, testing::ValuesIn(borders), [](const auto& border) {
    const std::string method = border.param.method;
    return method.substr(2, method.size() - 3);
});

TEST(Hooks, LetTheFormerMethodsExceptionsPass) {
    HostWithBorders host;
    const Json gate = host.message({{"class", "Gate"}}, "gate");
    const Json visitor = host.message({{"class", "Visitor"}}, "new");
    int departures = 0;
    for (const char* selector : {"openThroughHook:", "openThroughExchange:"}) {
        const auto failure = [&](Fault fault) {
            return host.error(
                {{"do", "send"}, {"to", gate}, {"selector", selector}, {"args", {fault}}});
        };
        EXPECT_EQ(host.message(gate, selector, {none}), 7);
        EXPECT_EQ(failure(objectiveC), "Closed: by the host");
        EXPECT_EQ(failure(cxx), "closed by the host");
        EXPECT_EQ(host.message(visitor, "departures"), departures += 3)
            << "the replacement's frames were left";
    }
    EXPECT_TRUE(host.swallowed().empty());
}

TEST(Hooks, EndWhatTheReplacementThrows) {
    HostWithBorders host;
    const Json gate = host.message({{"class", "Gate"}}, "gate");
    for (const auto& [fault, name] : std::vector<std::pair<Fault, std::string>>{
             {none, "std::exception"}, {objectiveC, "Closed"}, {cxx, "std::"}}) {
        EXPECT_EQ(host.message(gate, "openTwice:", {fault}), 7)
            << "what the host's method answered";
        const auto reports = host.swallowed();
        ASSERT_EQ(reports.size(), 1U);
        EXPECT_EQ(reports[0]["where"], "Gate openTwice:");
        EXPECT_EQ(reports[0]["name"].get<std::string>().find(name), 0U) << reports[0];
    }
}

} // namespace
