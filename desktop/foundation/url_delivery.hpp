// What becomes of the bytes that a task loads.
#pragma once

#include "bindings/foundation/url_session.hpp"

#include <memory>
#include <string_view>

namespace desktop::foundation {

/// Takes the bytes of one task and hands the result over, to a completion handler or to the
/// session's delegate.
class UrlDelivery {
public:
    virtual ~UrlDelivery() = default;

    /// The task whose bytes come; before all else.
    void setTask(ns::UrlSession session, ns::UrlSessionTask task);

    /// A piece of the body, on the network's thread; false when it cannot be kept.
    virtual bool receive(std::string_view piece, long long received, long long expected) = 0;
    /// Nothing follows; on the session's queue. `error` is nil when all went well.
    virtual void finish(ns::UrlResponse response, ns::Error error) = 0;

protected:
    /// The delegate when it answers the message, else nil.
    [[nodiscard]] objc::Object delegateFor(SEL message) const;
    void tellDelegateOfEnd(ns::Error error) const;

    ns::UrlSession session_;  ///< not owned: the task keeps it
    ns::UrlSessionTask task_; ///< not owned: it keeps this
};

/// Collects the body, for the handler, or hands each piece to the delegate when it is nil.
std::unique_ptr<UrlDelivery> deliverData(ns::UrlSession::Handler handler);

/// Writes the body to a temporary file, for the handler, or for the delegate when it is nil.
std::unique_ptr<UrlDelivery> deliverFile(ns::UrlSession::DownloadHandler handler);

} // namespace desktop::foundation
