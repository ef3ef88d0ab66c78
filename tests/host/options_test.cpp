// The host's command line: what is refused, and what is told.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using support::HostProcess;
using tests::hostWith;

TEST(Options, WrongOnesAreToldOnStandardErrorWithStatusTwo) {
    struct Case {
        std::vector<std::string> options;
        const char* told;
    };
    for (const auto& [options, told] : {
             Case{{"--bogus"}, "--bogus"},
             Case{{"stray"}, "stray"},
             Case{{"--app", "nobody"}, "nobody"},
             Case{{"--app"}, "--app"},
             Case{{"--clock", "sundial"}, "sundial"},
             Case{{"--date", "2024-12-30"}, "2024-12-30"},
             Case{{"--date", "2024-12-30T12:00:00Z"}, "2024-12-30T12:00:00Z"},
             Case{{"--device", "Nokia"}, "Nokia"},
             Case{{"--size", "390x844"}, "390x844"},
             Case{{"--size", "0x844@3"}, "0x844@3"},
             Case{{"--size", "nanx844@3"}, "nanx844@3"},
             Case{{"--size", "1e9x844@3"}, "1e9x844@3"},
             Case{{"--size", "390x844@3x"}, "390x844@3x"},
             Case{{"--no-library", "--library", "x.so"}, "--no-library"},
             Case{{"--app", "plain", "--content", "x.json"}, "--content"},
             Case{{"--viewer", "--automation"}, "--automation"},
             Case{{"--port", "8080"}, "--viewer"},
             Case{{"--viewer", "--port", "0"}, "--port 0"},
             Case{{"--viewer", "--port", "65536"}, "65536"},
             Case{{"--viewer", "--port", "80.5"}, "80.5"},
             Case{{"--viewer", "--port", "nan"}, "nan"},
             Case{{"--content", "/nonexistent.json"}, "/nonexistent.json"},
         }) {
        HostProcess host = hostWith(options);
        EXPECT_EQ(host.rest(), "") << told;
        EXPECT_EQ(host.wait(), 2) << told;
        EXPECT_NE(host.errors().find("usage: "), std::string::npos) << told;
        EXPECT_NE(host.errors().find(told), std::string::npos) << host.errors();
    }
}

TEST(Options, HelpAndListGoToStandardOutput) {
    HostProcess help = hostWith({"--help"});
    EXPECT_NE(help.rest().find("--automation"), std::string::npos);
    EXPECT_EQ(help.wait(), 0);
    HostProcess list = hostWith({"--list-apps"});
    const std::string apps = list.rest();
    EXPECT_EQ(list.wait(), 0);
    for (const char* line : {"notes", "com.example.notes", "settings", "com.apple.Preferences",
                             "chat", "com.hammerandchisel.discord", "browser",
                             "com.example.browser", "files", "com.example.files", "playground",
                             "com.example.playground", "plain", "com.example.plain"}) {
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
