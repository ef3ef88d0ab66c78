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
    EXPECT_EQ(host.error(making("UIView", "initialize")),
              "initialize does not initialise an object");
}

TEST_F(Making, WhatAnInitialiserRaisesIsTold) {
    EXPECT_NE(host.error(making("UIActivityViewController",
                                "initWithActivityItems:applicationActivities:", {nullptr, nullptr}))
                  .find("NSInvalidArgumentException"),
              std::string::npos);
}

TEST_F(Making, AnAllocatedObjectIsTakenByItsInitialiserOnly) {
    for (const char* cls : {"NSURL", "NSThread", "NSString", "NSMutableArray", "NSDate", "NSData",
                            "NSTimer", "NSProxy", "UIFont", "UIView", "NSInvocation"}) {
        const json object = host.message({{"class", cls}}, "alloc");
        EXPECT_EQ(object.value("description", ""), "not initialised") << cls;
        const std::string refused =
            host.error({{"do", "send"}, {"to", object}, {"selector", "description"}});
        EXPECT_EQ(refused, "description does not initialise an object");
        EXPECT_NE(host.error({{"do", "send"},
                              {"to", {{"class", "NSArray"}}},
                              {"selector", "arrayWithObject:"},
                              {"args", {object}}})
                      .find("has not been initialised"),
                  std::string::npos);
    }
    EXPECT_EQ(host.message({{"class", "NSURL"}}, "performSelector:", {{{"selector", "alloc"}}})
                  .at("description"),
              "not initialised");
}

TEST_F(Making, WhatNeedsMoreThanInitIsRefused) {
    for (const char* cls : {"NSURL", "NSScanner", "NSProgress", "NSRegularExpression",
                            "NSURLSessionDataTask", "NSUnarchiver"}) {
        EXPECT_EQ(host.error(making(cls, "init")),
                  std::string(cls) + " has initialisers of its own");
        EXPECT_NE(host.error({{"do", "send"}, {"to", {{"class", cls}}}, {"selector", "new"}}), "");
        const json allocated = host.message({{"class", cls}}, "alloc");
        EXPECT_NE(host.error({{"do", "send"}, {"to", allocated}, {"selector", "init"}}), "");
    }
}

TEST_F(Making, AClassThatMakesAnotherOneMayNeedMoreThanInit) {
    EXPECT_NE(host.error(making("NSXMLParser", "init")).find("has initialisers of its own"),
              std::string::npos);
}

TEST_F(Making, AllocationAndInitialisationAreAPair) {
    const json url = host.message({{"class", "NSURL"}}, "alloc");
    EXPECT_EQ(host.message(url, "initWithString:", {"http://a.b"}), json({{"url", "http://a.b"}}));
    EXPECT_EQ(host.message(url, "host"), "a.b");
    const json label = host.message({{"class", "UILabel"}}, "alloc");
    const json initialised = host.message(label, "init");
    EXPECT_EQ(initialised.at("object"), label.at("object"));
    EXPECT_EQ(host.message(label, "class"), json({{"class", "UILabel"}}));
    EXPECT_EQ(host.message(label, "retainCount"), 1);
}

TEST_F(Making, ObjectsOfOneClassMayBeAllocatedSideBySide) {
    const json one = host.message({{"class", "NSMutableString"}}, "alloc");
    const json other = host.message({{"class", "NSMutableString"}}, "alloc");
    EXPECT_EQ(host.message(one, "initWithString:", {"one"}), "one");
    EXPECT_EQ(host.message(other, "initWithString:", {"other"}), "other");
    EXPECT_EQ(host.message(one, "self"), "one");
}

TEST_F(Making, ARefusedInitialiserLeavesTheObjectAllocated) {
    const json view = host.message({{"class", "UIView"}}, "alloc");
    EXPECT_NE(
        host.error(
            {{"do", "send"}, {"to", view}, {"selector", "initWithFrame:"}, {"args", {"text"}}}),
        "");
    EXPECT_EQ(host.message(view, "init").at("object"), view.at("object"));
}

TEST_F(Making, AnObjectIsInitialisedOnceAndGivenUpByItsHandleOnly) {
    const json array = host.result(
        {{"do", "make"}, {"class", "NSMutableArray"}, {"selector", "init"}, {"handle", true}});
    for (const char* selector :
         {"init", "initWithObjects:count:", "release", "autorelease", "dealloc"}) {
        EXPECT_NE(host.error({{"do", "send"}, {"to", array}, {"selector", selector}}), "")
            << selector;
    }
    EXPECT_EQ(host.error({{"do", "send"}, {"to", array}, {"selector", "init"}}),
              "init is for an object that is not initialised");
    EXPECT_EQ(host.error({{"do", "send"}, {"to", array}, {"selector", "release"}}),
              "release is for the owner of an object, which its handle is");
}

TEST_F(Making, AnyResultCanBeHadAsAHandle) {
    const json array = host.result(
        {{"do", "make"}, {"class", "NSMutableArray"}, {"selector", "init"}, {"handle", true}});
    host.message(array, "addObject:", {"text"});
    EXPECT_EQ(host.message(array, "count"), 1);
    EXPECT_EQ(host.message(array, "self"), json::array({"text"}));
    const json text =
        host.result({{"do", "send"}, {"to", array}, {"selector", "firstObject"}, {"handle", true}});
    EXPECT_EQ(text.at("description"), "text");
    EXPECT_EQ(host.message(text, "length"), 4);
    EXPECT_EQ(
        host.result(
            {{"do", "send"}, {"to", json::array()}, {"selector", "firstObject"}, {"handle", true}}),
        nullptr);
    EXPECT_NE(host.error({{"do", "send"}, {"to", "a"}, {"selector", "self"}, {"handle", 1}}), "");
}

} // namespace
