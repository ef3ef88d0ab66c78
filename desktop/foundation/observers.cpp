// Foundation's centre sends to its observers even when they are dead. So it knows only relays of
// ours, which die with their observers.
#include "desktop/foundation/observers.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/notification_center.hpp"
#include "bindings/objc/associated.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/objc/weak.hpp"
#include "desktop/class.hpp"

#include <mutex>

namespace desktop::foundation {
namespace {

struct RelayKind : objc::Kind<RelayKind, "ObserverRelay"> {
    using Kind::Kind;
};

/// What an observer has asked for: which notifications of which centre, and by which message.
struct Observation {
    objc::Weak<ns::NotificationCenter> center;
    objc::Weak<objc::Object> observer;
    SEL message = nullptr;
    objc::Copied<ns::String> name;
    id object = nullptr; ///< only compared
};

class Relay : public PlatformClass<Relay, RelayKind> {
public:
    static constexpr auto methods() {
        return std::array{objc::method<"receive:", &Relay::receive>()};
    }
    static RelayKind with(Observation observation) {
        const auto relay = RelayKind::make();
        of(relay).observation_ = std::move(observation);
        return relay;
    }
    ~Relay() { observation_.center.strong().removeObserver(self()); }

    /// Whether the observation is one of these; a nil name or object stands for any.
    [[nodiscard]] bool isAmong(ns::NotificationCenter center, ns::String name,
                               objc::Object object) const {
        const Observation& own = observation_;
        return own.center == center && (!name || name.isEqual(own.name)) &&
               (!object || own.object == object.raw());
    }

private:
    void receive(ns::Notification notification) {
        const objc::Strong<RelayKind> kept = self(); // the observer may ask to be forgotten
        if (const auto observer = observation_.observer.strong(); observer) {
            objc::sendTo(observer.raw(), observation_.message, notification);
        }
    }

    Observation observation_;
};

std::mutex relaysMutex;

ns::Array relaysOf(objc::Object observer) {
    return objc::associated<"observerRelays", ns::Array>(observer);
}

void setRelays(objc::Object observer, ns::Array relays) {
    objc::associate<"observerRelays">(observer, relays, objc::Association::retainNonatomic);
}

void keep(objc::Object observer, RelayKind relay) {
    const std::scoped_lock lock(relaysMutex);
    const auto relays = ns::MutableArray::make();
    for (const objc::Object former : relaysOf(observer)) {
        relays.add(former);
    }
    relays.add(relay);
    setRelays(observer, relays);
}

void drop(ns::NotificationCenter center, objc::Object observer, ns::String name,
          objc::Object object) {
    objc::Strong<ns::Array> former; // released after the lock: a relay's end comes back here
    const objc::Pool pool;
    const std::scoped_lock lock(relaysMutex);
    former = relaysOf(observer);
    if (!former) {
        return;
    }
    const auto left = ns::MutableArray::make();
    for (const objc::Object relay : former) {
        if (!Relay::of(relay.assume<RelayKind>()).isAmong(center, name, object)) {
            left.add(relay);
        }
    }
    setRelays(observer, left);
}

using Add = objc::Next<void(objc::Object, SEL, ns::String, objc::Object)>;
void add(Add next, ns::NotificationCenter center, objc::Object observer, SEL message,
         ns::String name, objc::Object object) {
    if (!observer || message == nullptr) {
        next(observer, message, name, object); // which refuses it
        return;
    }
    const objc::Pool pool;
    const auto relay = Relay::with({center, observer, message, name, object.raw()});
    keep(observer, relay);
    next(relay, objc::selector<"receive:">(), name, object);
}

using Remove = objc::Next<void(objc::Object, ns::String, objc::Object)>;
void remove(Remove next, ns::NotificationCenter center, objc::Object observer, ns::String name,
            objc::Object object) {
    if (observer) {
        drop(center, observer, name, object);
    }
    next(observer, name, object); // perhaps it was there before us
}

} // namespace

void installObservers() {
    static const bool once = [] {
        Relay::registerClass();
        objc::install(
            objc::hook<"NSNotificationCenter", "addObserver:selector:name:object:", &add>());
        objc::install(objc::hook<"NSNotificationCenter", "removeObserver:name:object:", &remove>());
        return true;
    }();
    static_cast<void>(once);
}

} // namespace desktop::foundation
