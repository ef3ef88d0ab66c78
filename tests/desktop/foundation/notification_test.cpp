// Foundation's notification centre with blocks of ours, and its main queue on the desktop's run
// loop.
#include "bindings/foundation/notification_center.hpp"
#include "bindings/foundation/thread.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/class.hpp"
#include "desktop/foundation/main_operation_queue.hpp"
#include "desktop/foundation/observers.hpp"
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

struct ListenerKind : objc::Kind<ListenerKind, "NotificationTestListener"> {
    using Kind::Kind;
};

/// Notes the names of the notifications that it gets.
class Listener : public desktop::PlatformClass<Listener, ListenerKind> {
public:
    static constexpr auto methods() { return std::array{objc::method<"hear:", &Listener::hear>()}; }
    static inline std::string heard;

private:
    void hear(ns::Notification notification) { heard += notification.name().utf8() + " "; }
};

class Observers : public testing::Test {
protected:
    static void SetUpTestSuite() {
        desktop::foundation::installObservers();
        Listener::registerClass();
    }
    static void listen(ListenerKind listener, ns::String name, objc::Object object = nullptr) {
        center().addObserver(listener, objc::selector<"hear:">(), name, object);
    }
    static ns::NotificationCenter center() { return ns::NotificationCenter::defaultCenter(); }
    static std::string heardOf(ns::String name, objc::Object object = nullptr) {
        Listener::heard.clear();
        center().post(name, object);
        return Listener::heard;
    }

    objc::Pool pool;
};

TEST_F(Observers, AreForgottenWhenTheyDie) {
    {
        const objc::Pool inner;
        listen(ListenerKind::make(), u"a"_ns);
        EXPECT_EQ(heardOf(u"a"_ns), "a ");
    }
    EXPECT_EQ(heardOf(u"a"_ns), "");
}

TEST_F(Observers, GetWhatTheyHaveAskedForUntilTheyTakeItBack) {
    const auto listener = ListenerKind::make();
    const objc::Object thing = u"thing"_ns;
    listen(listener, u"a"_ns);
    listen(listener, u"b"_ns, thing);
    listen(listener, u"c"_ns);
    listen(listener, u"c"_ns);
    EXPECT_EQ(heardOf(u"b"_ns), "");
    EXPECT_EQ(heardOf(u"b"_ns, thing), "b ");
    EXPECT_EQ(heardOf(u"c"_ns, thing), "c c ");
    center().removeObserver(listener, u"a"_ns, nullptr);
    EXPECT_EQ(heardOf(u"a"_ns), "");
    center().removeObserver(listener, u"b"_ns, listener);
    EXPECT_EQ(heardOf(u"b"_ns, thing), "b ") << "that was of another object";
    center().removeObserver(listener, nullptr, thing);
    EXPECT_EQ(heardOf(u"b"_ns, thing), "");
    EXPECT_EQ(heardOf(u"c"_ns), "c c ");
    center().removeObserver(listener);
    EXPECT_EQ(heardOf(u"c"_ns), "");
    EXPECT_ANY_THROW(center().addObserver(nullptr, objc::selector<"hear:">(), u"a"_ns, nullptr));
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
