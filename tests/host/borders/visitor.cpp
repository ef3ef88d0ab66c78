// The library's side of exceptions: faults in whatever the host enters.
#include "tests/host/borders/gate.hpp"
#include "tests/host/borders/library.hpp"

#include "bindings/dispatch/dispatch.hpp"
#include "bindings/foundation/notification_center.hpp"
#include "bindings/foundation/timer.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/objc/peer.hpp"

#include <vector>

namespace tests {
namespace {

using namespace ns::literals;
using objc::Next;

long departures = 0;

/// Counts how often a frame of the library was left.
struct Departure {
    ~Departure() { ++departures; }
};

/// Fails by the host's fault, or where there is none by the library's own.
void fail(Fault fault) {
    const Departure departure;
    if (Gate::gate().open(fault) != 0) {
        static_cast<void>(std::vector<int>().at(1));
    }
}

struct Visitor : objc::Kind<Visitor, "Visitor"> {
    using Kind::Kind;
};

/// Each method fails in what its name says.
class VisitorPeer : public objc::Peer<VisitorPeer, Visitor> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"inMethod:", &VisitorPeer::inMethod>(),
            objc::method<"inBlocks:", &VisitorPeer::inBlocks>(),
            objc::method<"inDispatchedWork:", &VisitorPeer::inDispatchedWork>(),
            objc::method<"inWorkOfAnotherThread:", &VisitorPeer::inWorkOfAnotherThread>(),
            objc::method<"inDelayedWork:", &VisitorPeer::inDelayedWork>(),
            objc::method<"inTimer:", &VisitorPeer::inTimer>(),
            objc::method<"inNotification:", &VisitorPeer::inNotification>(),
            objc::method<"timerFired:", &VisitorPeer::timerFired>(),
            objc::method<"heard:", &VisitorPeer::heard>(),
            objc::method<"departures", &VisitorPeer::departures_>(),
        };
    }

private:
    void inMethod(Fault fault) { fail(fault); }
    void inBlocks(Fault fault) {
        objc::Block<void()>::from([fault] { fail(fault); })();
    }
    void inDispatchedWork(Fault fault) {
        dispatch::async(dispatch::mainQueue(), [fault] { fail(fault); });
    }
    void inWorkOfAnotherThread(Fault fault) {
        dispatch::async(dispatch::globalQueue(), [fault] { fail(fault); });
    }
    void inDelayedWork(Fault fault) {
        dispatch::after(0.1, dispatch::mainQueue(), [fault] { fail(fault); });
    }
    void inTimer(Fault fault) {
        fault_ = fault;
        ns::Timer::scheduled(0.1, self(), objc::selector<"timerFired:">(), nullptr, false);
    }
    void inNotification(Fault fault) {
        fault_ = fault;
        const auto center = ns::NotificationCenter::defaultCenter();
        center.addObserver(self(), objc::selector<"heard:">(), u"Bell"_ns, nullptr);
        center.post(u"Bell"_ns, nullptr);
        center.removeObserver(self());
    }
    void timerFired(ns::Timer) { fail(fault_); }
    void heard(ns::Notification) { fail(fault_); }
    [[nodiscard]] long departures_() { return departures; }

    Fault fault_ = Fault::none;
};

/// Hands everything on.
long pass(Next<long(Fault)> next, Gate, Fault fault) {
    const Departure departure;
    return next(fault);
}

/// Fails by itself once the host's method has answered.
long failAfterwards(Next<long(Fault)> next, Gate, Fault fault) {
    const Departure departure;
    const long answer = next(Fault::none);
    fail(fault);
    return answer + 1;
}

constexpr std::array hooks{
    objc::hook<"openThroughHook:", &pass>(),
    objc::exchange<"openThroughExchange:", "formerOpen:", &pass>(),
    objc::hook<"openTwice:", &failAfterwards>(),
};

} // namespace

void registerVisitor() {
    VisitorPeer::registerClass();
    for (const objc::Change& hook : hooks) {
        objc::install(hook);
    }
}

} // namespace tests
