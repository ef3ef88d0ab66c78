// Home screen and lock, as scripts use them.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

namespace {

using tests::Json;
using tests::Phone;

class Front : public testing::Test {
protected:
    Json state() {
        return phone_.message(phone_.message({{"class", "UIApplication"}}, "sharedApplication"),
                              "applicationState");
    }
    Json set(const char* command, bool value) {
        return phone_.result({{"do", command}, {"set", value}});
    }

    Phone phone_{{"--app", "plain"}};
};

TEST_F(Front, HomeAndLockPutTheApplicationIntoTheBackground) {
    for (const char* command : {"home", "lock"}) {
        EXPECT_EQ(phone_.result({{"do", command}}), false);
        EXPECT_EQ(set(command, true), true);
        EXPECT_EQ(state(), 2);
        EXPECT_EQ(phone_.result({{"do", "rotate"}, {"to", "landscapeLeft"}}), "portrait");
        EXPECT_EQ(set(command, false), false);
        EXPECT_EQ(state(), 0);
        EXPECT_NE(phone_.error({{"do", command}, {"set", "yes"}}), "");
    }
    EXPECT_EQ(phone_.result({{"do", "shake"}}), nullptr);
}

TEST_F(Front, WhatIsTypedDoesNotReachTheApplication) {
    const Json field = phone_.make("UITextField", {20, 100, 200, 40});
    phone_.message(phone_.window(), "addSubview:", {field});
    phone_.message(field, "becomeFirstResponder");
    phone_.result({{"do", "type"}, {"text", "in"}});
    set("lock", true);
    EXPECT_NE(phone_.error({{"do", "type"}, {"text", "out"}}), "");
    set("lock", false);
    phone_.result({{"do", "type"}, {"text", "!"}});
    EXPECT_EQ(phone_.message(field, "text"), "in!");
}

} // namespace
