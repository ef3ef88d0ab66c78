// Runs a test in a process of its own: what other tests have changed in classes is not so there.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <unistd.h>

namespace tests {

/// Calls `body` in a process that has run no other test, started anew rather than forked. What
/// fails there fails here, and nothing that is installed there is left here.
template <class Body>
void inProcessOfItsOwn(Body body) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto run = [&body] {
        body();
        std::fflush(stdout);
        _exit(testing::Test::HasFailure() ? 1 : 0);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

} // namespace tests
