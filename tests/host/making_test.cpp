// Objects made in one step.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;
using support::HostProcess;

json making(const json& cls, const json& selector, const json& arguments = json::array()) {
    return {{"do", "make"}, {"class", cls}, {"selector", selector}, {"args", arguments}};
}

class Making : public testing::Test {
protected:
    json make(const char* cls, const char* selector, const json& arguments = json::array()) {
        return host.result(making(cls, selector, arguments));
    }

    HostProcess host = tests::automatedHost({"--app", "plain"});
};

TEST_F(Making, AnInitialisedObjectIsLikeTheResultOfAMessage) {
    const json label = make("UILabel", "initWithFrame:", {{{"rect", {1, 2, 30, 40}}}});
    EXPECT_EQ(label.at("class"), "UILabel");
    EXPECT_EQ(host.message(label, "frame"), json::parse(R"({"rect":[1,2,30,40]})"));
    EXPECT_EQ(make("NSString", "initWithString:", {"你好"}), "你好");
    EXPECT_EQ(make("NSMutableArray", "init"), json::array());
    EXPECT_EQ(host.result({{"do", "make"}, {"class", "UIView"}, {"selector", "init"}}).at("class"),
              "UIView");
}

TEST_F(Making, OnlyTheHandleKeepsTheObject) {
    const json object = make("NSObject", "init");
    EXPECT_EQ(host.message(object, "retainCount"), 1);
    EXPECT_EQ(host.message(object, "self").at("object"), object.at("object"));
}

TEST_F(Making, AnInitialiserMayGiveNil) {
    EXPECT_EQ(make("NSURL", "initWithString:", {"a b"}), nullptr);
}

TEST_F(Making, WhatCannotBeMadeIsRefused) {
    const std::vector<json> requests{
        making("NoSuchClass", "init"),
        making(json{{"class", "UIView"}}, "init"),
        making("UIView", "initWithNothing"),
        making("UIView", "new"),
        making("UIView", "initialize"),
        making("UIView", "_setup"),
        making("UIView", ""),
        making("UIView", 7),
        making("UIView", "initWithFrame:"),
        making("UIView", "initWithFrame:", {"a"}),
        making("UIView", "init", 7),
        making("NSString", "initWithFormat:", {"a"}),
        json{{"do", "make"}, {"class", "UIView"}},
        json{{"do", "make"}, {"selector", "init"}},
    };
    for (const json& request : requests) {
        EXPECT_NE(host.error(request), "") << request;
    }
    EXPECT_EQ(host.error(making("NoSuchClass", "init")), "no such class: NoSuchClass");
    EXPECT_EQ(host.error(making("UIView", "new")), "new does not initialise an object");
}

TEST_F(Making, WhatAnInitialiserRaisesIsTold) {
    EXPECT_NE(host.error(making("UIActivityViewController",
                                "initWithActivityItems:applicationActivities:", {nullptr, nullptr}))
                  .find("NSInvalidArgumentException"),
              std::string::npos);
}

} // namespace
