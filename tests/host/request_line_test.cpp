// What is said of a line that is no request, and texts with halves of surrogate pairs.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;
using support::HostProcess;

class RequestLine : public testing::Test {
protected:
    HostProcess host = tests::automatedHost({"--app", "plain"});
};

TEST_F(RequestLine, AMistakeIsSaidWithItsPlace) {
    struct Case {
        const char* line;
        const char* place;
    };
    for (const auto& [line, place] : {
             Case{R"({"do":"events",})", "at byte 16 (…{\"do\":\"events\",}): "},
             Case{R"({"do" "events"})", "at byte 14 (…{\"do\" \"events\"): "},
             Case{R"({"do":"events")", "at byte 14 (…{\"do\":\"events\"): "},
             Case{R"({"do":"\x"})", "at byte 9 (…{\"do\":\"\\x): "},
             Case{R"({"do":"\ud83d",})", "at byte 16 (…{\"do\":\"\\ufffd\",}): "},
             Case{R"({"do":1e999})", "at byte 11 (…{\"do\":1e999): number overflow"},
             Case{R"({"text":"你好，世界，你好，世界"]})", "(…，你好，世界\"]): "},
             Case{"", "at byte 0: "},
         }) {
        const std::string error = host.sendLine(line).at("error");
        EXPECT_NE(error.find(place), std::string::npos) << line << ": " << error;
        EXPECT_TRUE(error.starts_with("malformed JSON at byte ")) << error;
        EXPECT_EQ(error.find("json.exception"), std::string::npos) << error;
    }
}

TEST_F(RequestLine, AMistakeInALongTextIsSaidShortly) {
    const std::string error =
        host.sendLine(R"({"do":")" + std::string(100'000, 'x') + "\x01\"}").at("error");
    EXPECT_LT(error.size(), 300U) << error.substr(0, 300);
}

TEST_F(RequestLine, TheIdentifierOfAMalformedLineIsEchoed) {
    struct Case {
        std::string line;
        json id;
    };
    for (const auto& [line, id] :
         {Case{R"({"id":7,"do":"events",})", 7}, Case{R"({"do":"events",,"id":"last"})", "last"},
          Case{R"({"do":events,"id":-3 } )", -3}, Case{R"({"do":"events" "id":8})", 8},
          Case{R"({"id":9,"x":)" + std::string(300, '['), 9}}) {
        const json answer = host.sendLine(line);
        EXPECT_EQ(answer.at("ok"), false);
        EXPECT_EQ(answer.value("id", json()), id) << line;
    }
    for (const char* line : {R"({"x":{"id":7},})", R"({"id":[1],})", "{", R"([{"id":1}])",
                             R"({"x":[{"id":7})", R"({"x" {"id":1},"y":2})"}) {
        EXPECT_FALSE(host.sendLine(line).contains("id")) << line;
    }
}

TEST_F(RequestLine, ValuesMayBeNestedInTwoHundredLevels) {
    const auto answer = [this](std::size_t lists) {
        return host.sendLine(R"({"do":"events","x":)" + std::string(lists, '[') +
                             std::string(lists, ']') + "}");
    };
    EXPECT_EQ(answer(199).at("ok"), true);
    EXPECT_EQ(answer(200).at("error"), "the request is nested too deeply");
}

/// What the host answers to the line, as it is written: this test's own reader takes no halves.
std::string answerTo(const std::string& line) {
    HostProcess host = tests::automatedHost({"--app", "plain"});
    host.write(line + '\n');
    host.closeInput();
    std::string answer = host.rest();
    return answer.substr(0, answer.find('\n'));
}

TEST(HalvesOfPairs, AreReadFromEscapes) {
    const std::string ending = R"(,"ok":true,"result":)";
    EXPECT_EQ(answerTo(R"({"do":"pasteboard","set":"a\ud83d�\ufffd\\ud83d\uD83D\uDE00\uDE00"})"),
              R"({"ok":true,"result":{"units":[97,55357,65533,65533,92,117,100,56,51,100,)"
              R"(55357,56832,56832]}})");
    EXPECT_EQ(answerTo(R"({"do":"send","to":"\ude00\ud83d","selector":"length"})"),
              R"({"ok":true,"result":2})");
    EXPECT_EQ(answerTo(R"({"do":"send","to":"\ud83d\ude00","selector":"self"})"),
              R"({"ok":true,"result":"😀"})");
}

TEST(HalvesOfPairs, AreWrittenAsEscapesWhereATextStandsAlone) {
    EXPECT_EQ(answerTo(R"({"do":"events","id":"\ude00你"})"),
              R"({"id":"\ude00你","ok":true,"result":[]})");
    EXPECT_EQ(answerTo(R"({"do":"send","to":{"\ud83d":[1.5,"b"]},"selector":"self"})"),
              R"({"ok":true,"result":{"\ud83d":[1.5,"b"]}})");
    EXPECT_EQ(answerTo(R"({"do":"\ud83d"})"), R"({"error":"unknown command: \ud83d","ok":false})");
}

TEST(HalvesOfPairs, AreFoundAndTyped) {
    HostProcess host = tests::automatedHost({"--app", "plain"});
    const json label = host.result({{"do", "find"}, {"where", {{"class", "UILabel"}}}}).at(0);
    host.message(label, "setText:", {{{"units", {0xD83D}}}});
    EXPECT_EQ(host.sendLine(R"({"do":"find","where":{"text":"\ud83d"}})").at("result").size(), 1U);
    EXPECT_EQ(host.sendLine(R"({"do":"find","where":{"text":"\ufffd"}})").at("result").size(), 0U);
}

} // namespace
