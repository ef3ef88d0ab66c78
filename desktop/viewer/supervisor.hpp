// Keeps a phone running: a child process for each application that runs on it, one after the other.
#pragma once

#include <functional>
#include <string>

namespace desktop::viewer {

/// How a phone comes up.
struct Start {
    std::string application;
    /// What the phone was set to, in words that only its processes know; empty for the first one.
    std::string settings;
    /// Whether the process before this one crashed.
    bool afterCrash = false;
    /// The application crashes again and again: it is not to be started before somebody asks.
    bool rests = false;
    /// Where the child writes what it wants to be replaced by, before it ends.
    int successor = -1;
};

/// Runs `phone` in a child process; its result is the child's exit status. When the child has named
/// a successor or has crashed, the next child follows; for an application that crashes again and
/// again, one that rests. A resting child that crashes is the end. A request to stop ends the
/// child, within a moment whatever it is doing, and then this, with status 0. The exit status to
/// end with. Before any thread is started.
int supervise(std::string application, const std::function<int(const Start&)>& phone);

/// Asks, in the child, for another application (or the same one anew), which gets these settings.
/// The child has to end then.
void nameSuccessor(const Start& start, const std::string& application,
                   const std::string& settings = {});

} // namespace desktop::viewer
