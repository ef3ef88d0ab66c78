// Reading requests, carrying them out, answering.
#include "desktop/host/automation.hpp"

#include "desktop/host/arguments.hpp"
#include "desktop/host/commands.hpp"
#include "desktop/host/main_loop.hpp"
#include "desktop/host/request_line.hpp"
#include "desktop/host/response_line.hpp"

#include "bindings/objc/boundary.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/runtime/run_loop.hpp"
#include "desktop/runtime/stop_request.hpp"

#include <limits>

namespace desktop::host {
namespace {

Json parse(const std::string& line) {
    if (line.size() > Streams::longestLine) {
        throw RequestError("the line is longer than 64 MB");
    }
    return readRequest(line);
}

Json carryOut(Session& session, const Json& request) {
    const std::string& name = stringArgument(request, "do");
    const Command command = commandNamed(name);
    if (command == nullptr) {
        throw RequestError("unknown command: " + name);
    }
    Json result = command(session, request);
    run_loop::runUntilIdle();
    if (stop_request::isMade()) {
        throw RequestError("the host has been asked to stop");
    }
    return result;
}

} // namespace

std::string answer(Session& session, const std::string& line) {
    const objc::Pool pool;
    Json response{{"ok", false}};
    try {
        const Json request = parse(line);
        if (const Json* id = argument(request, "id"); id != nullptr) {
            response["id"] = *id;
        }
        response["result"] = carryOut(session, request);
        response["ok"] = true;
    } catch (const MalformedLine& error) {
        if (!error.id.is_null()) {
            response["id"] = error.id;
        }
        response["error"] = error.what();
    } catch (const std::exception& error) {
        response["error"] = error.what();
    } catch (...) {
        const objc::ExceptionText text = objc::describeCurrentException();
        response["error"] = text.name + ": " + text.reason;
    }
    return written(response);
}

void automate(Streams& streams, Values& values) {
    Session session{values};
    while (!session.quits && !stop_request::isMade()) {
        if (const auto line = streams.nextLine()) {
            if (!streams.write(answer(session, *line))) {
                return;
            }
            continue;
        }
        if (streams.ended()) {
            return;
        }
        runWhatIsDue();
        run_loop::sleep(streams.input(), std::numeric_limits<double>::infinity());
        streams.receive();
    }
}

} // namespace desktop::host
