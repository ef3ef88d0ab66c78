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

TEST(CaptureCommands, RefuseWhatIsNoAnswer) {
    support::HostProcess host = tests::automatedHost({"--app", "plain"});
    EXPECT_NE(host.error({{"do", "recorder"}, {"fails", "yes"}}), "");
    EXPECT_NE(host.error({{"do", "recognizer"}, {"hears", 5}}), "");
    EXPECT_NE(host.error({{"do", "recognizer"}, {"available", nullptr}}), "");
}

} // namespace
