// The protocol itself: what is refused and survived, identifiers, and how a session ends.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>

namespace {

using nlohmann::json;
using support::HostProcess;
using tests::automatedHost;

bool isRefusal(const json& response) {
    return response.is_object() && !response.value("ok", true) && response.contains("error") &&
           !response.at("error").get<std::string>().empty();
}

TEST(Protocol, BadLinesAreRefusedAndTheHostGoesOn) {
    HostProcess host = automatedHost({"--app", "plain"});
    const std::vector<std::string> lines{"",
                                         " ",
                                         "{",
                                         "null",
                                         "[]",
                                         "\"quit\"",
                                         "{}",
                                         R"({"do":7})",
                                         R"({"do":"dance"})",
                                         R"({"do":"hover","at":[1,1]})",
                                         "{\"do\":\"\xff\"}",
                                         std::string(1, '\0'),
                                         std::string(100'000, '['),
                                         R"({"do":"events","x":)" + std::string(100'000, '[')};
    for (const std::string& line : lines) {
        EXPECT_TRUE(isRefusal(host.sendLine(line))) << line.substr(0, 40);
    }
    EXPECT_EQ(host.result({{"do", "events"}}), json::array());
}

TEST(Protocol, BadArgumentsAreRefusedAndTheHostGoesOn) {
    HostProcess host = automatedHost({"--app", "plain"});
    for (
        const char* request : {
            R"({"do":"send"})",
            R"({"do":"send","to":null,"selector":"description"})",
            R"({"do":"send","to":{"class":"NoSuchClass"},"selector":"new"})",
            R"({"do":"send","to":{"object":0},"selector":"description"})",
            R"({"do":"send","to":{"object":99999},"selector":"description"})",
            R"({"do":"send","to":{"object":-1},"selector":"description"})",
            R"({"do":"send","to":{"object":"1"},"selector":"description"})",
            R"({"do":"send","to":{"class":"NSObject"}})",
            R"({"do":"send","to":{"class":"NSObject"},"selector":"noSuchMethod"})",
            R"({"do":"send","to":{"class":"NSObject"},"selector":""})",
            R"({"do":"send","to":"a","selector":"length","args":{}})",
            R"({"do":"send","to":"a","selector":"length","args":[1]})",
            R"({"do":"send","to":"a","selector":"characterAtIndex:","args":["x"]})",
            R"({"do":"send","to":"a","selector":"characterAtIndex:","args":[-1]})",
            R"({"do":"send","to":"a","selector":"characterAtIndex:","args":[1.5]})",
            R"({"do":"send","to":"a","selector":"substringWithRange:","args":[[0,1]]})",
            R"({"do":"send","to":"a","selector":"substringWithRange:","args":[{"range":[0]}]})",
            R"({"do":"send","to":"a","selector":"isEqual:","args":[{"rect":[0,0,1,1]}]})",
            R"({"do":"send","to":"a","selector":"isKindOfClass:","args":["NSString"]})",
            R"({"do":"send","to":{"class":"NSString"},"selector":"stringWithFormat:","args":["%@"]})",
            R"({"do":"tree","of":"a string"})",
            R"({"do":"find"})",
            R"({"do":"find","where":[]})",
            R"({"do":"find","where":{"colour":"red"}})",
            R"({"do":"find","where":{"tag":"1"}})",
            R"({"do":"find","where":{"visible":1}})",
            R"({"do":"pasteboard","set":7})",
            R"({"do":"pasteboard","image":"/nonexistent.png"})",
            R"({"do":"preferences","set":7})",
            R"({"do":"preferences","set":{"a":{"class":"NSObject"}}})",
            R"({"do":"preferences","replace":{},"format":"yaml"})",
            R"({"do":"preferences","remove":"yes"})",
            R"({"do":"defaults"})",
            R"({"do":"advance"})",
            R"({"do":"advance","seconds":-1})",
            R"({"do":"advance","seconds":1e300})",
            R"({"do":"advance","seconds":"1"})",
            R"({"do":"wait","seconds":0})",
            R"({"do":"wait","for":{"text":"nowhere"},"seconds":0})",
            R"({"do":"wait","for":{"event":"nothing"},"seconds":0})",
            R"({"do":"wait","for":{"event":"log","text":"x"},"seconds":0})",
            R"({"do":"events","keep":1})",
            R"({"do":"screenshot"})",
            R"({"do":"screenshot","file":"/nonexistent/folder/shot.png"})",
        }) {
        EXPECT_TRUE(isRefusal(host.sendLine(request))) << request;
    }
    EXPECT_EQ(host.message("abc", "length"), 3);
}

TEST(Protocol, TheIdentifierIsEchoed) {
    HostProcess host = automatedHost({"--app", "plain"});
    EXPECT_EQ(host.send({{"do", "events"}, {"id", "first"}}).at("id"), "first");
    EXPECT_EQ(host.send({{"do", "dance"}, {"id", 2}}).at("id"), 2);
    EXPECT_FALSE(host.send({{"do", "events"}}).contains("id"));
}

TEST(Protocol, AnExceptionIsToldByNameAndReason) {
    HostProcess host = automatedHost({"--app", "plain"});
    const std::string error = host.error(
        {{"do", "send"}, {"to", "a"}, {"selector", "characterAtIndex:"}, {"args", {99}}});
    EXPECT_EQ(error.find("NSRangeException: "), 0U) << error;
}

TEST(Protocol, ALineBeyondTheLimitIsRefusedAndTheHostGoesOn) {
    HostProcess host = automatedHost({"--app", "plain"});
    constexpr std::size_t limit = std::size_t{64} << 20U;
    EXPECT_TRUE(isRefusal(
        host.sendLine(R"({"do":"pasteboard","set":")" + std::string(limit, 'x') + "\"}")));
    EXPECT_EQ(host.result({{"do", "pasteboard"}}), nullptr);
}

TEST(Protocol, QuitAnswersAndEndsWell) {
    HostProcess host = automatedHost({"--app", "plain"});
    EXPECT_EQ(host.result({{"do", "quit"}}), nullptr);
    EXPECT_EQ(host.rest(), "");
    EXPECT_EQ(host.wait(), 0);
}

TEST(Protocol, TheEndOfInputEndsWellAfterTheLastRequest) {
    HostProcess host = automatedHost({"--app", "plain"});
    host.write("{\"do\":\"events\",\"id\":1}\n{\"do\":\"events\",\"id\":2}"); // no line break
    host.closeInput();
    const std::string output = host.rest();
    EXPECT_EQ(host.wait(), 0);
    EXPECT_EQ(std::ranges::count(output, '\n'), 2) << output;
    EXPECT_NE(output.find("\"id\":2"), std::string::npos) << output;
}

/// The host, started by a command of the shell.
HostProcess startedBy(const std::string& command) {
    return {
        "/bin/sh",
        {"-c", command, tests::hostProgram(), "--automation", "--no-library", "--app", "plain"}};
}

TEST(Protocol, ClosedDescriptorsAreNotTakenForOthers) {
    for (const char* closed : {"<&-", ">&-", "2>&-", "<&- >&- 2>&-"}) {
        HostProcess host = startedBy(std::string("exec \"$0\" \"$@\" ") + closed);
        host.closeInput();
        EXPECT_EQ(host.wait(), 0) << closed;
    }
}

TEST(Protocol, AFileThatCannotGrowIsAnError) {
    HostProcess host = startedBy("ulimit -f 1; exec \"$0\" \"$@\"");
    const std::string file = host.temporaryFolder() / "screen.png";
    EXPECT_EQ(host.error({{"do", "screenshot"}, {"file", file}}), "cannot write " + file);
    EXPECT_EQ(host.result({{"do", "events"}}), json::array());
}

} // namespace
