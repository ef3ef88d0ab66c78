// What is said to the phone, and how far it has been said.
#include "desktop/avfaudio/microphone.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using desktop::firstPart;
using desktop::Microphone;

TEST(Microphone, CharactersStayWhole) {
    EXPECT_EQ(firstPart("你好吗", 0), "");
    EXPECT_EQ(firstPart("你好吗", 0.5), "你");
    EXPECT_EQ(firstPart("你好吗", 0.99), "你好");
    EXPECT_EQ(firstPart("你好吗", 1), "你好吗");
    EXPECT_EQ(firstPart("", 1), "");
}

TEST(Microphone, SpeechComesLittleByLittleAndIsFollowedBySilence) {
    Microphone microphone;
    microphone.say("今天天气很好");
    const auto first = microphone.next(1024);
    EXPECT_EQ(first.samples.size(), 1024U);
    EXPECT_LT(first.said.size(), microphone.text().size());
    const auto all = microphone.next(1'000'000);
    EXPECT_EQ(all.said, "今天天气很好");
    EXPECT_TRUE(std::ranges::any_of(all.samples, [](float sample) { return sample != 0; }));
    const auto rest = microphone.next(100);
    EXPECT_EQ(rest.said, "今天天气很好");
    EXPECT_EQ(rest.samples, std::vector<float>(100));
    microphone.restart();
    EXPECT_EQ(microphone.next(1024).said, first.said);
}

TEST(Microphone, NothingIsSaidAtFirst) {
    Microphone microphone;
    const auto stretch = microphone.next(64);
    EXPECT_EQ(stretch.said, "");
    EXPECT_EQ(stretch.samples, std::vector<float>(64));
}

} // namespace
