// String literals as objects.
#include "bindings/foundation/string.hpp"
#include "bindings/objc/pool.hpp"

#include <gtest/gtest.h>

#include <array>
#include <thread>

namespace {

using namespace ns::literals;

ns::String greeting() { return u"你好, bell"_ns; }

TEST(StringConstant, HoldsItsTextInEveryAlphabet) {
    const objc::Pool pool;
    EXPECT_EQ(greeting().utf16(), u"你好, bell");
    EXPECT_EQ(u"plain"_ns.utf8(), "plain");
    EXPECT_EQ(u"🔝"_ns.length(), 2U);
    EXPECT_EQ(u""_ns.length(), 0U);
    EXPECT_TRUE(u""_ns);
}

TEST(StringConstant, IsOneObjectForTheLifeOfTheProcess) {
    const ns::String first = greeting();
    {
        const objc::Pool pool;
        EXPECT_EQ(greeting(), first);
        first.send<"retain", id>();
        objc_release(first.raw());
    }
    EXPECT_EQ(first.utf16(), u"你好, bell");
}

TEST(StringConstant, IsTheSameObjectForThreadsThatAskAtOnce) {
    std::array<id, 4> found{};
    std::array<std::thread, 4> threads;
    for (std::size_t at = 0; at < threads.size(); ++at) {
        threads[at] = std::thread([&found, at] { found[at] = (u"asked for at once"_ns).raw(); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const id object : found) {
        EXPECT_EQ(object, found[0]);
    }
}

} // namespace
