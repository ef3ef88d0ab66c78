// Bringing operations and observers of the main queue to the main thread.
#include "desktop/foundation/main_operation_queue.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "bindings/foundation/operation.hpp"
#include "bindings/foundation/thread.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/objc/hook_primitive.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/runtime/main_queue.hpp"

namespace desktop::foundation {
namespace {

void addOperation(objc::Next<void(ns::Operation)> next, ns::OperationQueue queue,
                  ns::Operation operation) {
    if (queue != ns::OperationQueue::mainQueue()) {
        next(operation);
        return;
    }
    MainQueue::shared().add([kept = objc::Strong(operation)] {
        const objc::Pool pool;
        kept.start();
    });
}

using Observer = objc::Block<void(ns::Notification)>;

/// Calls the block on the main thread: now, or in its turn.
Observer onMainThread(Observer block) {
    return Observer::from([kept = objc::Strong<Observer>(objc::Copied<Observer>(block))](
                              ns::Notification notification) {
        if (ns::Thread::isMainThread()) {
            kept(notification);
            return;
        }
        MainQueue::shared().add([kept, posted = objc::Strong(notification)] {
            const objc::Pool pool;
            kept(posted);
        });
    });
}

using AddObserver = objc::Object (*)(id, SEL, ns::String, objc::Object, ns::OperationQueue,
                                     Observer);
AddObserver formerAddObserver = nullptr;

objc::Object addObserver(id center, SEL selector, ns::String name, objc::Object object,
                         ns::OperationQueue queue, Observer block) {
    const bool isMain = queue && queue == ns::OperationQueue::mainQueue();
    return formerAddObserver(center, selector, name, object, isMain ? nullptr : queue,
                             isMain ? onMainThread(block) : block);
}

} // namespace

void installMainOperationQueue() {
    objc::install(objc::hook<"addOperation:", &addOperation>());
    if (formerAddObserver != nullptr) {
        return; // once
    }
    // Foundation was compiled without blocks and writes their type differently: a hook that
    // compares the types would refuse.
    IMP former = nullptr;
    MSHookMessageEx(ns::NotificationCenter::classObject(),
                    objc::selector<"addObserverForName:object:queue:usingBlock:">(),
                    reinterpret_cast<IMP>(&addObserver), &former);
    formerAddObserver = reinterpret_cast<AddObserver>(former);
}

} // namespace desktop::foundation
