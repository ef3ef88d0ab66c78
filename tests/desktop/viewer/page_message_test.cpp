// What pages may say, and what is refused.
#include "desktop/viewer/page_message.hpp"

#include <gtest/gtest.h>

namespace {

using namespace desktop::viewer;

TEST(PageMessage, FingersCarryPhaseAndPlaces) {
    const auto message = std::get<Fingers>(parsePageMessage(
        R"({"type":"fingers","phase":"moved","points":[[0,1.5,-2],[7,390,844]]})"));
    EXPECT_EQ(message.phase, FingerPhase::moved);
    ASSERT_EQ(message.fingers.size(), 2U);
    EXPECT_EQ(message.fingers[0].y, -2);
    EXPECT_EQ(message.fingers[1].id, 7);
    EXPECT_EQ(message.fingers[1].x, 390);
}

TEST(PageMessage, EachKindIsRead) {
    const auto wheel =
        std::get<Wheel>(parsePageMessage(R"({"type":"wheel","x":1,"y":2,"byX":3,"byY":-4})"));
    EXPECT_EQ(wheel.y, 2);
    EXPECT_EQ(wheel.byY, -4);
    EXPECT_EQ(std::get<Look>(parsePageMessage(R"({"type":"look","scale":2.5})")).scale, 2.5);
    EXPECT_EQ(std::get<Seen>(parsePageMessage(R"({"type":"seen","picture":4294967295})")).picture,
              4294967295U);
    EXPECT_EQ(std::get<Insert>(parsePageMessage(R"({"type":"insert","text":"你"})")).text, "你");
    EXPECT_EQ(std::get<Compose>(parsePageMessage(R"({"type":"compose","text":""})")).text, "");
    EXPECT_EQ(std::get<Press>(parsePageMessage(R"({"type":"press","key":"enter"})")).key,
              Key::enter);
    EXPECT_EQ(std::get<Paste>(parsePageMessage(R"({"type":"paste","picture":"AA=="})")).picture,
              "AA==");
    EXPECT_EQ(
        std::get<Launch>(parsePageMessage(R"({"type":"launch","application":"chat"})")).application,
        "chat");
    // A request becomes one line, whatever it looked like.
    EXPECT_EQ(std::get<Ask>(parsePageMessage("{\"type\":\"ask\",\"request\":{\n\"do\":\"tree\"}}"))
                  .request,
              R"({"do":"tree"})");
}

TEST(PageMessage, WhatDoesNotFitIsRefused) {
    const std::string eleven = R"([0,1,1],[1,1,1],[2,1,1],[3,1,1],[4,1,1],[5,1,1],[6,1,1],)"
                               R"([7,1,1],[8,1,1],[9,1,1],[10,1,1])";
    const std::string deep = R"({"type":"ask","request":{"a":)" + std::string(100'000, '[');
    for (const std::string& text :
         {std::string(),
          std::string("null"),
          std::string("[]"),
          std::string(1, '\0'),
          std::string("\xff\xfe"),
          std::string(1'000'000, '{'),
          deep,
          std::string(R"({})"),
          std::string(R"({"type":7})"),
          std::string(R"({"type":"dance"})"),
          std::string(R"({"type":"fingers","phase":"began","points":[]})"),
          std::string(R"({"type":"fingers","phase":"hovers","points":[[0,1,1]]})"),
          std::string(R"({"type":"fingers","phase":"began","points":[[0,1]]})"),
          std::string(R"({"type":"fingers","phase":"began","points":[[0,null,1]]})"),
          std::string(R"({"type":"fingers","phase":"began","points":[[0,NaN,1]]})"),
          std::string(R"({"type":"fingers","phase":"began","points":[[0,1e300,1]]})"),
          std::string(R"({"type":"fingers","phase":"began","points":[[0,1e999,1]]})"),
          std::string(R"({"type":"fingers","phase":"began","points":[[-1,1,1]]})"),
          std::string(R"({"type":"fingers","phase":"began","points":[[1.5,1,1]]})"),
          std::string(R"({"type":"fingers","phase":"began","points":[[3,1,1],[3,2,2]]})"),
          R"({"type":"fingers","phase":"began","points":[)" + eleven + "]}",
          std::string(R"({"type":"wheel","x":1,"y":2,"byX":3})"),
          std::string(R"({"type":"look","scale":0})"),
          std::string(R"({"type":"look","scale":1000})"),
          std::string(R"({"type":"look","scale":"2"})"),
          std::string(R"({"type":"seen","picture":-1})"),
          std::string(R"({"type":"seen","picture":4294967296})"),
          std::string(R"({"type":"insert"})"),
          std::string(R"({"type":"insert","text":["a"]})"),
          std::string(R"({"type":"press","key":"power"})"),
          std::string(R"({"type":"ask","request":"tree"})")}) {
        EXPECT_THROW(static_cast<void>(parsePageMessage(text)), MessageError) << text.substr(0, 80);
    }
}

} // namespace
