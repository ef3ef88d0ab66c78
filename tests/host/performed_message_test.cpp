// Messages that have another one performed: what they give, and what cannot be performed.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;
using support::HostProcess;

class PerformedMessage : public testing::Test {
protected:
    static json named(const char* selector) { return {{"selector", selector}}; }
    std::string refusal(const json& receiver, const char* selector, const json& arguments) {
        return host.error(
            {{"do", "send"}, {"to", receiver}, {"selector", selector}, {"args", arguments}});
    }

    HostProcess host = tests::automatedHost({"--app", "plain"});
    json label = host.result({{"do", "make"}, {"class", "UILabel"}, {"selector", "init"}});
};

TEST_F(PerformedMessage, GivesWhatIsAnObjectOnly) {
    host.message(label, "performSelector:withObject:", {named("setText:"), "你好"});
    EXPECT_EQ(host.message(label, "performSelector:", {named("text")}), "你好");
    EXPECT_EQ(host.message("abc", "performSelector:", {named("length")}), nullptr);
    EXPECT_EQ(host.message(label, "performSelector:", {named("class")}),
              json({{"class", "UILabel"}}));
    EXPECT_EQ(host.message(label, "performSelector:withObject:",
                           {named("isKindOfClass:"), {{"class", "UIView"}}}),
              nullptr);
}

TEST_F(PerformedMessage, IgnoresObjectsThatItDoesNotTake) {
    host.message(label, "setText:", {"你好"});
    EXPECT_EQ(host.message(label, "performSelector:withObject:withObject:", {named("text"), 1, 2}),
              "你好");
}

TEST_F(PerformedMessage, MayComeLater) {
    host.message(label, "performSelector:withObject:afterDelay:", {named("setText:"), "你好", 1});
    host.result({{"do", "advance"}, {"seconds", 1}});
    EXPECT_EQ(host.message(label, "text"), "你好");
}

TEST_F(PerformedMessage, IsRefusedWhereObjectsAreNotEnough) {
    for (const auto& [selector, arguments] : std::vector<std::pair<const char*, json>>{
             {"performSelector:", {nullptr}},
             {"performSelector:", {"text"}},
             {"performSelector:", json::array()},
             {"performSelector:", {named("noSuchMethod")}},
             {"performSelector:", {named("setText:")}},
             {"performSelector:", {named("frame")}},
             {"performSelector:", {named("dealloc")}},
             {"performSelector:", {named("init")}},
             {"performSelector:withObject:", {named("setText:"), 7}},
             {"performSelector:withObject:", {named("setFont:"), "text"}},
             {"performSelector:withObject:", {named("setAlpha:"), 1}},
             {"performSelector:withObject:", {named("setFrame:"), nullptr}},
             {"performSelector:withObject:", {named("isKindOfClass:"), "UIView"}},
             {"performSelector:withObject:afterDelay:", {nullptr, nullptr, 0}},
             {"performSelectorOnMainThread:withObject:waitUntilDone:",
              {named("setFont:"), "text", true}},
         }) {
        EXPECT_NE(refusal(label, selector, arguments), "") << selector << arguments;
    }
    EXPECT_EQ(refusal(label, "performSelector:", {nullptr}), "no selector is given to perform");
}

TEST_F(PerformedMessage, IsComparedWithEachElement) {
    EXPECT_EQ(host.message({label, label},
                           "makeObjectsPerformSelector:withObject:", {named("setText:"), "你好"}),
              nullptr);
    EXPECT_EQ(host.message(label, "text"), "你好");
    EXPECT_NE(refusal({label, "text"},
                      "makeObjectsPerformSelector:withObject:", {named("setText:"), "你好"}),
              "");
    const json set = host.result({{"do", "send"},
                                  {"to", {{"class", "NSSet"}}},
                                  {"selector", "setWithObject:"},
                                  {"args", {label}}});
    EXPECT_NE(refusal(set, "makeObjectsPerformSelector:", {named("dealloc")}), "");
}

TEST_F(PerformedMessage, MayBeNamedByAKey) {
    host.message(label, "setText:", {"你好"});
    EXPECT_EQ(host.message(label, "valueForKeyPath:", {"text.length"}), 2);
    for (const char* key : {"dealloc", "autorelease", "init"}) {
        EXPECT_NE(refusal(label, "valueForKey:", json::array({key})), "") << key;
        EXPECT_NE(refusal(label, "valueForKeyPath:", json::array({std::string("text.") + key})),
                  "");
    }
}

TEST_F(PerformedMessage, DoesNotReachWhatAnObjectKeepsToItself) {
    for (const char* key : {"UILabel", "isa"}) {
        EXPECT_NE(refusal(label, "valueForKey:", json::array({key})).find("NSUnknownKeyException"),
                  std::string::npos);
        EXPECT_NE(refusal(label, "setValue:forKey:", {"text", key}).find("NSUnknownKeyException"),
                  std::string::npos);
    }
}

} // namespace
