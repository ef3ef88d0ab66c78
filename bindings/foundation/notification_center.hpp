// NSNotificationCenter.
#pragma once

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/exception.hpp"
#include "bindings/foundation/notification.hpp"
#include "bindings/foundation/operation_queue.hpp"
#include "bindings/objc/block.hpp"

namespace ns {

struct NotificationCenter : objc::Kind<NotificationCenter, "NSNotificationCenter"> {
    using Kind::Kind;

    static NotificationCenter defaultCenter() {
        return sendClass<"defaultCenter", NotificationCenter>();
    }
    void post(String name, objc::Object object, Dictionary userInfo = nullptr) const {
        send<"postNotificationName:object:userInfo:">(name, object, userInfo);
    }
    /// Calls `block` for each notification of that name (any object when `object` is nil); on the
    /// posting thread when `queue` is nil. The result is the observer's token.
    objc::Object addObserverForName(String name, objc::Object object, OperationQueue queue,
                                    objc::Block<void(Notification)> block) const {
        return send<"addObserverForName:object:queue:usingBlock:", objc::Object>(name, object,
                                                                                 queue, block);
    }
    /// Sends `observer`, which is not retained, the message with each notification of that name (of
    /// any object when `object` is nil).
    void addObserver(objc::Object observer, SEL message, String name, objc::Object object) const {
        send<"addObserver:selector:name:object:">(observer, message, name, object);
    }
    /// Takes back what `addObserver` said of that name and object.
    void removeObserver(objc::Object observer, String name, objc::Object object) const {
        send<"removeObserver:name:object:">(observer, name, object);
    }
    void removeObserver(objc::Object observer) const { send<"removeObserver:">(observer); }
};

} // namespace ns
