// The end of a process.
#include "desktop/runtime/process_end.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace {

TEST(ProcessEnd, TearsNothingDownAndLosesNoOutput) {
    constexpr int status = 7;
    const auto end = [] {
        std::atexit([] { std::_Exit(EXIT_FAILURE); });
        std::setvbuf(stderr, nullptr, _IOFBF, BUFSIZ);
        std::fputs("written", stderr);
        desktop::endProcess(status);
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(status), "written");
}

} // namespace
