// The commands for recording the screen and recognising speech.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;

TEST(CaptureCommands, TellHowThingsStand) {
    support::HostProcess host = tests::automatedHost({"--app", "plain"});
    EXPECT_EQ(host.result({{"do", "recorder"}}),
              json::parse(R"({"recording":false,"fails":false})"));
    EXPECT_EQ(host.result({{"do", "recorder"}, {"fails", true}, {"interrupt", true}})["fails"],
              true);
    EXPECT_EQ(host.result({{"do", "recognizer"}, {"hears", "你好"}, {"authorized", false}}),
              json::parse(R"({"authorized":false,"available":true,"hears":"你好","error":null})"));
    EXPECT_EQ(host.result({{"do", "recognizer"}, {"hears", nullptr}})["hears"], nullptr);
}

TEST(Film, IsMadeOnTheDeviceAndTold) {
    support::HostProcess host = tests::automatedHost({"--app", "plain"});
    EXPECT_EQ(host.result({{"do", "film"}}), json::parse(R"({"films":false,"file":null})"));
    const json film = host.result({{"do", "film"}, {"films", true}});
    EXPECT_EQ(film.at("file"), "/var/mobile/Library/ReplayKit/film-1.webm");
    EXPECT_EQ(host.result({{"do", "film"}}), film);
    host.result({{"do", "advance"}, {"seconds", 1}});
    EXPECT_EQ(host.result({{"do", "film"}, {"films", false}}).at("films"), false);
    EXPECT_EQ(host.result({{"do", "events"}}),
              json::array({{{"kind", "film"}, {"file", film.at("file")}}}));
}

TEST(Film, IsWrittenToAFileOfTheMachine) {
    support::HostProcess host = tests::automatedHost({"--app", "plain"});
    const std::string file = host.temporaryFolder() / "film.webm";
    host.result({{"do", "film"}, {"films", true}, {"file", file}});
    host.result({{"do", "advance"}, {"seconds", 1}});
    host.result({{"do", "film"}, {"films", false}});
    constexpr const char* matroska = "\x1A\x45\xDF\xA3";
    EXPECT_TRUE(support::readFile(file).starts_with(matroska));
}

TEST(Film, IsRefusedWhereThereIsOneOrNone) {
    support::HostProcess host = tests::automatedHost({"--app", "plain"});
    EXPECT_EQ(host.error({{"do", "film"}, {"films", false}}), "nothing is being filmed");
    EXPECT_NE(host.error({{"do", "film"}, {"films", true}, {"file", "/nonexistent/a.webm"}}), "");
    host.result({{"do", "film"}, {"films", true}});
    EXPECT_EQ(host.error({{"do", "film"}, {"films", true}}), "the screen is being filmed");
}

TEST(CaptureCommands, RefuseWhatIsNoAnswer) {
    support::HostProcess host = tests::automatedHost({"--app", "plain"});
    EXPECT_NE(host.error({{"do", "recorder"}, {"fails", "yes"}}), "");
    EXPECT_NE(host.error({{"do", "recognizer"}, {"hears", 5}}), "");
    EXPECT_NE(host.error({{"do", "recognizer"}, {"available", nullptr}}), "");
}

} // namespace
