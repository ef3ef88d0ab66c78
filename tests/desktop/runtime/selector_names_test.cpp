// Selectors' names, however the selector was made.
#include "bindings/objc/runtime.hpp"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <thread>

extern "C" SEL sel_registerTypedName(const char* name, const char* types);

namespace {

TEST(SelectorNames, AreThoseOfRegistration) {
    for (int round = 0; round < 2; ++round) { // asked for, and known
        for (int number = 0; number < 5000; ++number) {
            const std::string name = "named" + std::to_string(number) + ":";
            EXPECT_EQ(sel_getName(sel_registerName(name.c_str())), name);
            EXPECT_EQ(sel_getName(sel_registerTypedName(name.c_str(), "v@:i")), name);
        }
    }
    EXPECT_STREQ(sel_getName(nullptr), "<null selector>");
}

TEST(SelectorNames, CanBeAskedForByManyThreadsAtOnce) {
    std::array<std::thread, 4> threads;
    for (std::thread& thread : threads) {
        thread = std::thread([] {
            for (int number = 0; number < 5000; ++number) {
                const std::string name = "shared" + std::to_string(number);
                EXPECT_EQ(sel_getName(sel_registerName(name.c_str())), name);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

} // namespace
