// The settings application with the library loaded.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

namespace {

TEST(SettingsScreen, ShowsWhatItShowsWithoutTheLibrary) {
    tests::Phone phone({"--app", "settings"});
    for (const char* text : {"设置", "飞行模式", "Screen Time", "电池"}) {
        EXPECT_EQ(phone.find({{"text", text}, {"visible", true}}).size(), 1U) << text;
    }
    EXPECT_TRUE(phone.swallowed().empty());
}

} // namespace
