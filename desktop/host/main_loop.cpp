// The loop around the platform's run loop, and the signals that end it.
#include "desktop/host/main_loop.hpp"

#include "bindings/objc/boundary.hpp"
#include "desktop/runtime/main_queue.hpp"
#include "desktop/runtime/run_loop.hpp"

#include <atomic>
#include <csignal>
#include <cstdio>
#include <limits>

namespace desktop::host {
namespace {

std::atomic<bool> stopRequested{false};
std::atomic<int> signalReceived{0};

void requestStop(int signal) {
    signalReceived = signal;
    stop();
}

} // namespace

void watchForStop() {
    MainQueue::shared(); // made here: a signal handler must not
    struct sigaction action {};
    action.sa_handler = &requestStop;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        sigaction(signal, &action, nullptr);
    }
}

void stop() {
    stopRequested = true;
    MainQueue::shared().wake(); // only writes to a descriptor
}

bool isStopRequested() { return stopRequested; }

int stopSignal() { return signalReceived; }

void runWhatIsDue() {
    try {
        run_loop::runUntilIdle();
    } catch (...) {
        const objc::ExceptionText text = objc::describeCurrentException();
        std::fprintf(stderr, "uncaught: %s: %s\n", text.name.c_str(), text.reason.c_str());
    }
}

void runUntilStopped() {
    runWhatIsDue();
    // Asked right before sleeping: while work runs, the wake-up of a stop is lost.
    while (!isStopRequested()) {
        run_loop::sleep(-1, std::numeric_limits<double>::infinity());
        runWhatIsDue();
    }
}

} // namespace desktop::host
