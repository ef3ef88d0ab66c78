// Work that is added while other work runs.
#include "desktop/viewer/turns.hpp"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

TEST(Turns, WhatIsAddedMeanwhileWaitsItsTurn) {
    desktop::viewer::Turns turns;
    std::string seen;
    turns.add([&] {
        seen += "first begins, ";
        turns.add([&] {
            seen += "second, ";
            turns.add([&] { seen += "fourth"; });
        });
        turns.add([&] { seen += "third, "; });
        seen += "first ends, ";
    });
    EXPECT_EQ(seen, "first begins, first ends, second, third, fourth");
    turns.add([&] { seen = "later"; });
    EXPECT_EQ(seen, "later");
}

TEST(Turns, GoOnAfterWorkThatThrows) {
    desktop::viewer::Turns turns;
    std::string seen;
    const auto fail = [&] {
        turns.add([&] { seen += "behind, "; });
        throw std::runtime_error("failed");
    };
    EXPECT_THROW(turns.add(fail), std::runtime_error);
    turns.add([&] { seen += "next"; });
    EXPECT_EQ(seen, "behind, next");
}

} // namespace
