// Commands for the clock, for waiting, and for what has happened meanwhile.
#include "desktop/host/arguments.hpp"
#include "desktop/host/commands.hpp"
#include "desktop/host/view_search.hpp"

#include "desktop/runtime/event_log.hpp"
#include "desktop/runtime/run_loop.hpp"
#include "desktop/runtime/stop_request.hpp"

#include <algorithm>
#include <chrono>

namespace desktop::host {
namespace {

Json eventsOfKind(Values& values, const std::string& kind) {
    Json list = Json::array();
    for (const LoggedEvent& event : EventLog::shared().events()) {
        if (event.kind == kind) {
            list.push_back(toJson(values, event));
        }
    }
    return list;
}

/// What is there already of what is waited for: views, or events of a kind.
Json present(Values& values, const Json& wanted) {
    if (!wanted.contains("event")) {
        return findNodes(values, wanted);
    }
    if (wanted.size() != 1) {
        throw RequestError("an event is waited for by its kind alone");
    }
    return eventsOfKind(values, stringArgument(wanted, "event"));
}

} // namespace

Json toJson(Values& values, const LoggedEvent& event) {
    Json entry = values.toJson(event.fields);
    entry["kind"] = event.kind;
    return entry;
}

Json advance(Session&, const Json& request) {
    run_loop::advance(secondsArgument(request, "seconds"));
    return nullptr;
}

Json wait(Session& session, const Json& request) {
    using Clock = std::chrono::steady_clock;
    using Seconds = std::chrono::duration<double>;
    const Json& wanted = objectArgument(request, "for");
    constexpr double patience = 10;
    const Seconds limit(secondsArgument(request, "seconds", patience));
    const auto start = Clock::now();
    for (;;) {
        run_loop::runUntilIdle();
        Json found = present(session.values, wanted);
        if (!found.empty()) {
            return found;
        }
        if (stop_request::isMade()) {
            return nullptr;
        }
        const Seconds left = limit - Seconds(Clock::now() - start);
        if (left <= Seconds::zero()) {
            throw RequestError("waited in vain for " + written(wanted));
        }
        constexpr Seconds nap(0.02); // other threads may change views without telling the loop
        run_loop::sleep(-1, std::min(nap, left).count());
    }
}

Json events(Session& session, const Json& request) {
    EventLog& log = EventLog::shared();
    const bool keep = flagArgument(request, "keep");
    Json list = Json::array();
    for (const LoggedEvent& event : keep ? log.events() : log.take()) {
        list.push_back(toJson(session.values, event));
    }
    return list;
}

} // namespace desktop::host
