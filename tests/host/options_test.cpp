// The host's command line: what is refused, and what is told.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using support::HostProcess;
using tests::hostWith;

struct BadLine {
    std::vector<std::string> options;
    std::string told;
};

class BadOptions : public testing::TestWithParam<BadLine> {};

TEST_P(BadOptions, AreToldOnStandardErrorWithStatusTwo) {
    HostProcess host = hostWith(GetParam().options);
    EXPECT_EQ(host.rest(), "");
    EXPECT_EQ(host.wait(), 2);
    EXPECT_NE(host.errors().find("usage: "), std::string::npos);
    EXPECT_NE(host.errors().find(GetParam().told), std::string::npos) << host.errors();
}

INSTANTIATE_TEST_SUITE_P(
    All, BadOptions,
    testing::Values(BadLine{{"--bogus"}, "--bogus"}, BadLine{{"stray"}, "stray"},
                    BadLine{{"--app", "nobody"}, "nobody"}, BadLine{{"--app"}, "--app"},
                    BadLine{{"--clock", "sundial"}, "sundial"},
                    BadLine{{"--size", "390x844"}, "390x844"},
                    BadLine{{"--size", "0x844@3"}, "0x844@3"},
                    BadLine{{"--size", "nanx844@3"}, "nanx844@3"},
                    BadLine{{"--size", "1e9x844@3"}, "1e9x844@3"},
                    BadLine{{"--size", "390x844@3x"}, "390x844@3x"},
                    BadLine{{"--no-library", "--library", "x.so"}, "--no-library"},
                    BadLine{{"--app", "plain", "--content", "x.json"}, "--content"},
                    BadLine{{"--content", "/nonexistent.json"}, "/nonexistent.json"}));

TEST(Options, HelpAndListGoToStandardOutput) {
    HostProcess help = hostWith({"--help"});
    EXPECT_NE(help.rest().find("--automation"), std::string::npos);
    EXPECT_EQ(help.wait(), 0);
    HostProcess list = hostWith({"--list-apps"});
    const std::string apps = list.rest();
    EXPECT_EQ(list.wait(), 0);
    for (const char* line : {"notes", "com.example.notes", "settings", "com.apple.Preferences",
                             "chat", "com.hammerandchisel.discord", "plain", "com.example.plain"}) {
        EXPECT_NE(apps.find(line), std::string::npos) << line;
    }
}

TEST(Options, ALibraryThatCannotBeLoadedIsAnError) {
    HostProcess host = hostWith({"--automation", "--library", "/nonexistent/library.so"});
    EXPECT_EQ(host.wait(), 1);
    EXPECT_NE(host.errors().find("/nonexistent/library.so"), std::string::npos) << host.errors();
}

TEST(Options, TheScreenHasTheSizeThatWasAskedFor) {
    HostProcess host = tests::automatedHost({"--size", "320x568@2"});
    const auto screen = host.message({{"class", "UIScreen"}}, "mainScreen");
    EXPECT_EQ(host.message(screen, "bounds"), nlohmann::json::parse(R"({"rect":[0,0,320,568]})"));
    EXPECT_EQ(host.message(screen, "scale"), 2);
}

} // namespace
