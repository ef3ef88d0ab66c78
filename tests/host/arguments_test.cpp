// Arguments that a method cannot take: each is an error, and the host goes on.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;
using support::HostProcess;

class Arguments : public testing::Test {
protected:
    std::string refusal(const json& receiver, const char* selector, const json& arguments) {
        return host.error(
            {{"do", "send"}, {"to", receiver}, {"selector", selector}, {"args", arguments}});
    }
    json made(const char* cls) {
        return host.result({{"do", "make"}, {"class", cls}, {"selector", "init"}});
    }
    /// The window shows the view, and the whole is drawn.
    void show(const json& view) {
        host.message(host.result({{"do", "find"}, {"where", {{"class", "UIWindow"}}}}).at(0),
                     "addSubview:", {view});
        host.message(view, "sizeToFit");
        host.result({{"do", "screenshot"}, {"file", host.temporaryFolder() / "shot.png"}});
        EXPECT_NE(host.result({{"do", "tree"}}), nullptr);
    }

    HostProcess host = tests::automatedHost({"--app", "plain"});
};

TEST_F(Arguments, OfAnotherClassThanTheMethodTakesAreRefused) {
    const json label = made("UILabel");
    EXPECT_EQ(refusal(label, "setFont:", json::array({"text"})),
              "argument 1 cannot be \"text\" (it must be of the class UIFont)");
    for (const auto& [selector, argument] : std::vector<std::pair<const char*, json>>{
             {"setFont:", 7},
             {"setFont:", json{{"class", "UIFont"}}},
             {"setText:", json::array()},
             {"setTextColor:", "red"},
             {"setAttributedText:", "text"},
             {"addSubview:", "text"},
             {"addLayoutGuide:", "text"},
             {"addGestureRecognizer:", label},
             {"addConstraints:", json::array({"text"})},
             {"removeConstraints:", json::array({nullptr})},
         }) {
        EXPECT_NE(refusal(label, selector, json::array({argument})).find("it must be of the class"),
                  std::string::npos)
            << selector << " " << argument;
    }
    show(label);
}

TEST(ArgumentsOfApplications, OfAnotherClassThanTheMethodTakesAreRefused) {
    HostProcess host = tests::automatedHost({"--app", "notes"});
    const json label = host.result({{"do", "make"}, {"class", "YYLabel"}, {"selector", "init"}});
    EXPECT_EQ(
        host.error({{"do", "send"}, {"to", label}, {"selector", "setFont:"}, {"args", {"text"}}}),
        "argument 1 cannot be \"text\" (it must be of the class UIFont)");
}

TEST_F(Arguments, OfAnotherClassAreRefusedWhereTheyAreOnlyPassedOn) {
    const json label = made("UILabel");
    refusal(label, "performSelector:withObject:", {{{"selector", "setFont:"}}, "text"});
    EXPECT_NE(refusal(label, "setValue:forKey:", {"text", "font"}), "");
    EXPECT_NE(refusal(label, "setValue:forKeyPath:", {"text", "font"}), "");
    host.message(label, "performSelector:withObject:", {{{"selector", "setText:"}}, "text"});
    EXPECT_EQ(host.message(label, "text"), "text");
    show(label);
}

TEST_F(Arguments, OfClassMethodsAreComparedToo) {
    EXPECT_NE(refusal({{"class", "UIImageSymbolConfiguration"}},
                      "configurationWithFont:", json::array({"text"})),
              "");
    EXPECT_NE(refusal({{"class", "UIColor"}}, "colorWithPatternImage:", json::array({"text"})), "");
}

TEST_F(Arguments, OfFoundationsMethodsAreComparedWhereThoseDoNot) {
    EXPECT_NE(host.error({{"do", "make"},
                          {"class", "NSAttributedString"},
                          {"selector", "initWithString:attributes:"},
                          {"args", {"a", "b"}}}),
              "");
    EXPECT_NE(refusal({{"class", "NSBundle"}}, "bundleWithURL:", json::array({"text"})), "");
    EXPECT_EQ(host.message("a", "length"), 1);
}

TEST_F(Arguments, ADelegateOfAnyClassMayDie) {
    const json table = made("UITableView");
    host.message(table, "setDelegate:", {json::array({"a"})});
    EXPECT_EQ(host.message(table, "delegate"), nullptr);
    show(table);
}

TEST_F(Arguments, NilAndSubclassesAreTaken) {
    const json label = made("UILabel");
    host.message(label, "setFont:", {nullptr});
    host.message(label, "addSubview:", {made("UIButton")});
    host.message(label, "setText:", {made("NSMutableString")});
    host.message(label, "addConstraints:", {json::array()});
    show(label);
}

TEST_F(Arguments, AHookedMethodComparesItsArgumentsToo) {
    HostProcess hooked = tests::hostWith({"--automation", "--app", "plain"});
    const json label = hooked.result({{"do", "make"}, {"class", "UILabel"}, {"selector", "init"}});
    EXPECT_NE(
        hooked.error({{"do", "send"}, {"to", label}, {"selector", "setText:"}, {"args", {7}}}), "");
}

TEST_F(Arguments, MemoryThatAMethodWritesToIsRefused) {
    for (const json& text : {json("xyz"), json(nullptr)}) {
        EXPECT_NE(
            refusal("abc", "getCString:", json::array({text})).find("the method writes to it"),
            std::string::npos);
        EXPECT_NE(refusal("abc", "getCString:maxLength:", json::array({text, 100'000})), "");
    }
    EXPECT_NE(refusal("abc", "getCharacters:", json::array({nullptr})), "");
    EXPECT_NE(refusal({{"data", "AAAA"}}, "getBytes:", json::array({nullptr})), "");
    EXPECT_EQ(host.message({{"class", "NSString"}}, "stringWithUTF8String:", {"abc"}), "abc");
}

TEST_F(Arguments, NullHasNoBytesToCount) {
    EXPECT_NE(refusal({{"class", "NSData"}}, "dataWithBytes:length:", {nullptr, 5}), "");
    EXPECT_NE(refusal({{"class", "NSString"}}, "stringWithCharacters:length:", {nullptr, 1}), "");
    EXPECT_EQ(host.message({{"class", "NSData"}}, "dataWithBytes:length:", {nullptr, 0}),
              json::parse(R"({"data":""})"));
}

TEST_F(Arguments, NoSelectorIsRefusedWhereOneIsSent) {
    EXPECT_EQ(refusal("abc", "respondsToSelector:", json::array({nullptr})),
              "argument 1 cannot be null (its type is :)");
    EXPECT_NE(refusal({{"class", "NSTimer"}},
                      "scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:",
                      {1, "abc", nullptr, nullptr, false}),
              "");
    host.result({{"do", "make"},
                 {"class", "UITapGestureRecognizer"},
                 {"selector", "initWithTarget:action:"},
                 {"args", {nullptr, nullptr}}});
}

TEST_F(Arguments, CodeIsRefusedWhereAMethodCallsIt) {
    EXPECT_NE(refusal({1, 2}, "enumerateObjectsUsingBlock:", json::array({nullptr})), "");
    EXPECT_NE(refusal({1, 2}, "sortedArrayUsingComparator:", json::array({nullptr})), "");
    EXPECT_NE(refusal({{"class", "NSTimer"}},
                      "scheduledTimerWithTimeInterval:repeats:block:", {1, false, nullptr}),
              "");
    EXPECT_NE(
        refusal({{"class", "SFSpeechRecognizer"}}, "requestAuthorization:", json::array({nullptr})),
        "");
    EXPECT_NE(refusal({1, 2}, "sortedArrayUsingFunction:context:", {nullptr, nullptr}), "");
}

} // namespace
