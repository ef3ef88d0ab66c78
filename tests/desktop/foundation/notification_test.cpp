// Foundation's notification centre with blocks of ours, and its main queue on the desktop's run
// loop.
#include "bindings/foundation/notification_center.hpp"
#include "bindings/foundation/thread.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/foundation/main_operation_queue.hpp"
#include "desktop/runtime/event_log.hpp"
#include "desktop/runtime/run_loop.hpp"

#include <gtest/gtest.h>

#include <string>
#include <thread>

namespace {

using namespace ns::literals;

class MainOperationQueue : public testing::Test {
protected:
    static void SetUpTestSuite() { desktop::foundation::installMainOperationQueue(); }
    ~MainOperationQueue() override { center.send<"removeObserver:">(observer); }

    void observe() {
        observer = center.addObserverForName(
            u"DesktopTest"_ns, nullptr, ns::OperationQueue::mainQueue(),
            objc::Block<void(ns::Notification)>::from([this](ns::Notification notification) {
                ++calls;
                EXPECT_TRUE(ns::Thread::isMainThread());
                EXPECT_TRUE(notification.name().isEqualToString(u"DesktopTest"_ns));
            }));
    }

    objc::Pool pool;
    ns::NotificationCenter center = ns::NotificationCenter::defaultCenter();
    objc::Object observer;
    int calls = 0;
};

TEST_F(MainOperationQueue, CallsObserversAtOnceOnTheMainThread) {
    observe();
    center.post(u"DesktopTest"_ns, nullptr);
    EXPECT_EQ(calls, 1);
}

TEST_F(MainOperationQueue, CallsObserversInTheirTurnForOtherThreads) {
    observe();
    std::thread([this] {
        const objc::Pool inner;
        center.post(u"DesktopTest"_ns, nullptr);
    }).join();
    EXPECT_EQ(calls, 0);
    desktop::run_loop::runUntilIdle();
    EXPECT_EQ(calls, 1);
}

TEST_F(MainOperationQueue, RunsOperationsInTheirTurn) {
    ns::OperationQueue::mainQueue().send<"addOperationWithBlock:">(
        objc::Block<void()>::from([this] {
            ++calls;
            EXPECT_TRUE(ns::Thread::isMainThread());
        }));
    EXPECT_EQ(calls, 0);
    desktop::run_loop::runUntilIdle();
    EXPECT_EQ(calls, 1);
}

TEST(EventLog, KeepsTheLatestInOrder) {
    const objc::Pool pool;
    auto& log = desktop::EventLog::shared();
    for (std::size_t i = 0; i < desktop::EventLog::mostEvents + 2; ++i) {
        log.record(std::to_string(i), ns::MutableDictionary::make());
    }
    EXPECT_EQ(log.events().front().kind, "2");
    EXPECT_EQ(log.take().size(), desktop::EventLog::mostEvents);
    EXPECT_TRUE(log.events().empty());
}

} // namespace
