// Foundation's notification centre with blocks of ours, and its main queue on the desktop's run
// loop.
#include "bindings/foundation/notification_center.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/runtime/event_log.hpp"
#include "desktop/runtime/run_loop.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using namespace ns::literals;

TEST(NotificationCenter, CallsABlockAtOnceOrOnTheMainQueue) {
    const objc::Pool pool;
    const auto center = ns::NotificationCenter::defaultCenter();
    std::vector<std::string> calls;
    const auto recorder = [&calls](const char* name) {
        return objc::Block<void(ns::Notification)>::from(
            [&calls, name](ns::Notification) { calls.emplace_back(name); });
    };
    const objc::Object direct =
        center.observe(u"DesktopTest"_ns, nullptr, nullptr, recorder("at once"));
    const objc::Object queued = center.observe(u"DesktopTest"_ns, nullptr,
                                               ns::OperationQueue::mainQueue(), recorder("queued"));
    center.post(u"DesktopTest"_ns, nullptr);
    desktop::run_loop::runUntilIdle();
    std::ranges::sort(calls);
    EXPECT_EQ(calls, (std::vector<std::string>{"at once", "queued"}));
    center.send<"removeObserver:">(direct);
    center.send<"removeObserver:">(queued);
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
