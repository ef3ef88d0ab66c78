// The translation service's rules: signatures, the dictionary, answers.
#include "desktop/services/translation/dictionary.hpp"
#include "desktop/services/translation/translation.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <array>
#include <cstdio>

namespace {

using namespace desktop::services;
using namespace desktop::services::translation;
using nlohmann::json;

std::string escaped(std::string_view text) {
    std::string target;
    for (const char c : text) {
        char escape[4];
        std::snprintf(escape, sizeof escape, "%%%02X", static_cast<unsigned>(c) & 0xFFU);
        target += escape;
    }
    return target;
}

/// A well-signed request for that text.
std::string targetFor(std::string_view text, std::string_view to = "zh") {
    return "/api/trans/vip/translate?q=" + escaped(text) + "&from=auto&to=" + std::string(to) +
           "&appid=desktop&salt=7&sign=" + signatureOf(accountId, text, "7", accountKey);
}

std::string errorOf(const std::string& target) {
    return json::parse(answerTo(target).body).value("error_code", "none");
}

/// The first line's translation.
std::string firstOf(const Answer& answer) {
    return json::parse(answer.body).at("trans_result").at(0).at("dst");
}

TEST(TranslationSignature, IsTheDigestOfAllFourParts) {
    // By another implementation: printf 'desktophello7desktop-key' | sha256sum
    EXPECT_EQ(signatureOf("desktop", "hello", "7", "desktop-key"),
              "3ac0b8268b3c5c239265d12cf67900bfbdb6f23427524f48abe53e3c73a1679c");
    EXPECT_NE(signatureOf("desktop", "hello", "8", "desktop-key"),
              signatureOf("desktop", "hello", "7", "desktop-key"));
}

TEST(TranslationDictionary, KnowsBothDirections) {
    struct Case {
        const char* line;
        Language to;
        const char* expected;
    };
    constexpr std::array cases{
        Case{"hello", Language::chinese, "你好"},
        Case{"  HeLLo! ", Language::chinese, "你好"},
        Case{"Good morning", Language::chinese, "早上好"},
        Case{"谢谢", Language::english, "thank you"},
        Case{"世界。", Language::english, "world"},
        Case{"unheard of", Language::chinese, "⟦unheard of⟧"},
        Case{"未知", Language::english, "⟦未知⟧"},
        Case{"你好", Language::chinese, "你好"},
        Case{"😀", Language::chinese, "⟦😀⟧"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(translated(c.line, c.to), c.expected) << c.line;
    }
}

TEST(TranslationDictionary, TellsChineseFromTheRest) {
    EXPECT_EQ(languageOf("一"), Language::chinese); // the first of them
    EXPECT_EQ(languageOf("abc 中 def"), Language::chinese);
    EXPECT_EQ(languageOf("\u9fff"), Language::chinese);
    EXPECT_EQ(languageOf("héllo, мир, かな, 😀"), Language::english);
    EXPECT_EQ(languageOf(""), Language::english);
}

TEST(TranslationAnswer, TranslatesLineByLineWithEscapes) {
    const Answer answer = answerTo(targetFor("hello\nworld"));
    EXPECT_EQ(answer.status, 200);
    EXPECT_EQ(answer.body, R"({"from":"en","to":"zh","trans_result":[)"
                           R"({"src":"hello","dst":"\u4f60\u597d"},)"
                           R"({"src":"world","dst":"\u4e16\u754c"}]})");
    EXPECT_EQ(firstOf(answerTo(targetFor("你好", "auto"))), "hello");
    EXPECT_EQ(firstOf(answerTo(targetFor("hello", "auto"))), "你好");
    EXPECT_EQ(firstOf(answerTo(targetFor("一", "zh"))), "一");
}

TEST(TranslationAnswer, RefusesAsTheServiceDoes) {
    const std::string good = targetFor("hello");
    const auto with = [&good](std::string_view from, std::string_view to) {
        std::string target = good;
        return target.replace(target.find(from), from.size(), to);
    };
    EXPECT_EQ(errorOf(good), "none");
    EXPECT_EQ(errorOf(targetFor("")), "54000");
    EXPECT_EQ(errorOf(with("&salt=7", "")), "54000");
    EXPECT_EQ(errorOf(with("appid=desktop", "appid=nobody")), "52003");
    EXPECT_EQ(errorOf(with("salt=7", "salt=8")), "54001");
    EXPECT_EQ(errorOf(with("to=zh", "to=xx")), "58001");
    EXPECT_EQ(answerTo(with("sign=", "sign=0")).body,
              R"({"error_code":"54001","error_msg":"Invalid Sign"})");
    EXPECT_EQ(answerTo("/elsewhere").status, 404);
}

TEST(TranslationAnswer, FailsOnDemand) {
    EXPECT_EQ(errorOf(targetFor("!error please")), "54003");
    EXPECT_FALSE(json::accept(answerTo(targetFor("!json")).body));
    EXPECT_EQ(answerTo(targetFor("!500")).status, 500);
    EXPECT_TRUE(answerTo(targetFor("!drop")).dropped);
    const Answer late = answerTo(targetFor("!late"));
    EXPECT_EQ(late.delay, 2);
    EXPECT_EQ(firstOf(late), "⟦!late⟧");
    EXPECT_EQ(errorOf(targetFor("well !error")), "none");
}

} // namespace
