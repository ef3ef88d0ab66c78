// Signals end the host at once, whatever it is doing, and nothing is left behind.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <thread>

namespace {

using nlohmann::json;
using std::chrono::milliseconds;
using support::HostProcess;
using tests::automatedHost;

bool hasDeviceFolder(const HostProcess& host) {
    const std::filesystem::directory_iterator files(host.temporaryFolder());
    return std::ranges::any_of(files, [](const auto& entry) {
        return entry.path().filename().string().starts_with("wentra-device-");
    });
}

/// How a host ended upon a signal.
struct End {
    int status;
    milliseconds took;
    std::string output;
    std::string errors;
};

End endOf(HostProcess& host, int signal) {
    const auto start = std::chrono::steady_clock::now();
    host.signal(signal);
    const int status = host.wait();
    const auto took = std::chrono::steady_clock::now() - start;
    EXPECT_FALSE(hasDeviceFolder(host));
    return {status, std::chrono::duration_cast<milliseconds>(took), host.rest(), host.errors()};
}

/// Starts a host with these options, lets `begin` do something with it, and interrupts it. On a
/// machine that is busy with other things, half a second may need another try.
template <class Begin>
End interrupted(const std::vector<std::string>& options, Begin begin) {
    const milliseconds longest = milliseconds(500) * support::patience();
    End end{};
    for (int tries = 0; tries == 0 || (tries < 4 && end.took > longest); ++tries) {
        HostProcess host = tests::hostWith(options);
        begin(host);
        end = endOf(host, SIGINT);
    }
    EXPECT_LE(end.took.count(), longest.count());
    return end;
}

TEST(Ending, TheSignalIsNamed) {
    for (const auto& [signal, line] : {std::pair{SIGTERM, "host: ended by SIGTERM\n"},
                                       std::pair{SIGINT, "host: ended by SIGINT\n"},
                                       std::pair{SIGHUP, "host: ended by SIGHUP\n"}}) {
        HostProcess host = automatedHost({"--app", "plain"});
        EXPECT_EQ(host.result({{"do", "events"}}), json::array());
        const End end = endOf(host, signal);
        EXPECT_EQ(end.status, 128 + signal);
        EXPECT_TRUE(end.errors.ends_with(line)) << end.errors;
    }
}

/// A request that takes ten minutes, and whether it can be answered when it is cut short.
class EndingAmidARequest : public testing::TestWithParam<std::pair<const char*, bool>> {};

TEST_P(EndingAmidARequest, DoesNotWaitForIt) {
    const auto& [request, isAnswered] = GetParam();
    const End end =
        interrupted({"--automation", "--no-library", "--app", "plain", "--clock", "real"},
                    [line = request + std::string("\n")](HostProcess& host) {
                        host.result({{"do", "events"}});
                        host.write(line);
                        std::this_thread::sleep_for(milliseconds(50)); // it has begun
                    });
    EXPECT_EQ(end.status, 128 + SIGINT);
    EXPECT_EQ(end.output,
              isAnswered ? "{\"error\":\"the host has been asked to stop\",\"ok\":false}\n" : "");
}

INSTANTIATE_TEST_SUITE_P(
    Requests, EndingAmidARequest,
    testing::Values(
        std::pair{R"({"do":"advance","seconds":600})", true},
        std::pair{R"({"do":"press","at":[100,100],"seconds":600})", true},
        std::pair{R"({"do":"slide","path":[[1,1],[1,800]],"hold":600})", true},
        std::pair{R"({"do":"wait","for":{"event":"never"},"seconds":600})", true},
        std::pair{
            R"({"do":"send","to":{"class":"NSThread"},"selector":"sleepForTimeInterval:","args":[600]})",
            false}));

/// From the first instant on: before the program has begun, while it comes up, and later.
class EndingAtTheStart : public testing::TestWithParam<int> {};

TEST_P(EndingAtTheStart, LeavesNothingBehind) {
    for (const bool isForAPage : {false, true}) {
        const End end = interrupted(
            {isForAPage ? "--viewer" : "--automation", "--app", "plain"},
            [](const HostProcess&) { std::this_thread::sleep_for(milliseconds(GetParam())); });
        EXPECT_TRUE(end.status == -SIGINT || end.status == (isForAPage ? 0 : 128 + SIGINT))
            << end.status << " " << end.errors;
    }
}

INSTANTIATE_TEST_SUITE_P(Moments, EndingAtTheStart, testing::Range(0, 400, 40));

TEST(Ending, AFreshDeviceFolderIsRemoved) {
    HostProcess host = automatedHost({"--app", "plain"});
    host.result({{"do", "preferences"}, {"set", {{"key", 1}}}});
    EXPECT_TRUE(hasDeviceFolder(host));
    host.result({{"do", "quit"}});
    EXPECT_EQ(host.wait(), 0);
    EXPECT_FALSE(hasDeviceFolder(host));
    HostProcess broken = tests::hostWith({"--automation", "--library", "/nonexistent/library.so"});
    EXPECT_EQ(broken.wait(), 1);
    EXPECT_FALSE(hasDeviceFolder(broken));
}

} // namespace
