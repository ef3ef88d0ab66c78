// Dispatch, the clock and the run loop: what runs where, when, and in which order.
#include "bindings/dispatch/dispatch.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/runtime/run_loop.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr std::int64_t secondInNanoseconds = 1'000'000'000;

class Dispatch : public testing::Test {
protected:
    void SetUp() override { desktop::Clock::shared().setMode(desktop::Clock::Mode::virtual_); }
    /// A piece of work that leaves its name and the time behind.
    auto mark(const std::string& name) {
        return [this, name] { ran.push_back(name); };
    }
    std::vector<std::string> ran;
    objc::Pool pool;
};

TEST_F(Dispatch, MainWorkRunsLaterInItsOrderNotInTheCall) {
    dispatch::async(dispatch::mainQueue(), [this] {
        ran.emplace_back("first");
        dispatch::async(dispatch::mainQueue(), mark("nested"));
    });
    dispatch_async(dispatch::mainQueue(),
                   objc::Block<void()>::from([this] { ran.emplace_back("block"); }).raw());
    EXPECT_TRUE(ran.empty());
    desktop::run_loop::runUntilIdle();
    EXPECT_EQ(ran, (std::vector<std::string>{"first", "block", "nested"}));
}

TEST_F(Dispatch, DelayedWorkRunsAtItsMomentInOrderOfMoments) {
    dispatch::after(3, dispatch::mainQueue(), mark("three"));
    dispatch::after(1, dispatch::mainQueue(), [this] {
        ran.emplace_back("one");
        dispatch::after(1, dispatch::mainQueue(), mark("one and one"));
    });
    dispatch::after(2, dispatch::mainQueue(), mark("two"));
    desktop::run_loop::advance(0.999);
    EXPECT_TRUE(ran.empty());
    desktop::run_loop::advance(1.5);
    EXPECT_EQ(ran, (std::vector<std::string>{"one", "two", "one and one"}));
    desktop::run_loop::advance(1);
    EXPECT_EQ(ran.back(), "three");
}

TEST_F(Dispatch, CancelledCallsNeverRun) {
    auto& clock = desktop::Clock::shared();
    const auto ticket = clock.at(clock.now() + 1, mark("cancelled"));
    clock.at(clock.now() + 1, mark("kept"));
    clock.cancel(ticket);
    desktop::run_loop::advance(2);
    EXPECT_EQ(ran, std::vector<std::string>{"kept"});
}

TEST_F(Dispatch, GlobalWorkRunsOnAnotherThreadAndComesBack) {
    const auto main = std::this_thread::get_id();
    std::thread::id worker = main;
    std::atomic<bool> back = false;
    dispatch::async(dispatch::globalQueue(), [&] {
        worker = std::this_thread::get_id();
        dispatch::async(dispatch::mainQueue(), [&] {
            EXPECT_EQ(std::this_thread::get_id(), main);
            back = true;
        });
    });
    while (!back) {
        desktop::run_loop::sleep(-1, 10);
        desktop::run_loop::runUntilIdle();
    }
    EXPECT_NE(worker, main);
}

TEST_F(Dispatch, AThrowingPieceOfWorkDoesNotStopTheNext) {
    dispatch::async(dispatch::mainQueue(), [] { throw std::runtime_error("work"); });
    dispatch::async(dispatch::mainQueue(), mark("next"));
    desktop::run_loop::runUntilIdle();
    EXPECT_EQ(ran, std::vector<std::string>{"next"});
}

} // namespace
