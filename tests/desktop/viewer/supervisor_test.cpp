// Children that end, crash or name their successors.
#include "desktop/viewer/supervisor.hpp"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

namespace {

using namespace desktop::viewer;

TEST(Supervisor, GivesTheStatusOfAnOrdinaryEnd) {
    EXPECT_EQ(supervise("one", [](const Start&) { return 0; }), 0);
    EXPECT_EQ(supervise("one", [](const Start&) { return 3; }), 3);
}

TEST(Supervisor, StartsTheNamedSuccessor) {
    const auto phone = [](const Start& start) {
        if (start.application == "one") {
            nameSuccessor(start, "two", "a phone");
            return 5;
        }
        const bool isNamed = start.application == "two" && start.settings == "a phone";
        return isNamed && !start.afterCrash ? 7 : 8;
    };
    EXPECT_EQ(supervise("one", phone), 7);
}

TEST(Supervisor, StartsAgainAfterACrash) {
    const auto phone = [](const Start& start) {
        if (!start.afterCrash) {
            raise(SIGKILL);
        }
        return start.application == "one" ? 9 : 8;
    };
    EXPECT_EQ(supervise("one", phone), 9);
}

TEST(Supervisor, RestsWhenCrashesComeAgainAndAgainUntilSomebodyAsks) {
    const auto phone = [](const Start& start) {
        if (start.application == "two") {
            return start.rests ? 8 : 7;
        }
        if (start.rests) {
            nameSuccessor(start, "two");
            return 0;
        }
        return raise(SIGKILL);
    };
    EXPECT_EQ(supervise("one", phone), 7);
}

TEST(Supervisor, GivesUpWhenNotEvenRestingWorks) {
    EXPECT_EQ(supervise("one", [](const Start&) { return raise(SIGKILL); }), EXIT_FAILURE);
}

} // namespace
